#include "bench/bare_listener.hpp"

#include "bench/raw_database.hpp"
#include "bench/raw_server.hpp"
#include "family/data/engine/server_client.hpp"
#include "family/data/engine/server_connection.hpp"

#include <poll.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>
#include <vector>

namespace kova::bench {

namespace {

using Clock = std::chrono::steady_clock;
using Tell = std::function<void(long long number)>;

constexpr const char* LastLine = "select coalesce(max(ordem), 0) from elo_da_auditoria";

std::string LinesBehind(const char* mark)
{
    return std::string("select e.ordem, a.chave, a.antes, a.depois from elo_da_auditoria e"
                       " join auditoria a on a.codigo = e.codigo_da_linha where e.ordem > ")
        + mark + " and a.tabela = 'agendamento' order by e.ordem";
}

std::chrono::milliseconds Until(Clock::time_point end)
{
    return std::max(std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()),
                    std::chrono::milliseconds(0));
}

class OnServer : public BareListener {
public:
    explicit OnServer(const std::string& address) : server_(address)
    {
        server_.Prepare("behind", LinesBehind("$1"));
        server_.Run(std::string("listen ") + family::NoticeChannel);
        last_ = server_.Run(LastLine).NumberAt(0, 0);
    }

    void Listen(double seconds, const Tell& tell) override
    {
        const auto end = Clock::now()
            + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
        for (auto left = Until(end); left.count() > 0; left = Until(end)) {
            pollfd socket{server_.Socket(), POLLIN, 0};
            if (poll(&socket, 1, static_cast<int>(left.count())) > 0 && server_.TakeNotices())
                Read(tell);
        }
    }

private:
    void Read(const Tell& tell)
    {
        const ServerAnswer lines =
            server_.RunPrepared("behind", {std::optional<std::string>(std::to_string(last_))});
        for (int line = 0; line < lines.RowCount(); ++line) {
            last_ = lines.NumberAt(line, 0);
            tell(lines.NumberAt(line, 1));
        }
    }

    const RawServer server_;
    std::int64_t last_ = 0;
};

class OnFile : public BareListener {
public:
    explicit OnFile(const std::string& path)
        : database_(path),
          counter_(database_, "pragma data_version"),
          behind_(database_, LinesBehind(":apos"))
    {
        RawStatement last(database_, LastLine);
        last.Step();
        last_ = last.NumberAt(0);
        counted_ = Count();
    }

    void Listen(double seconds, const Tell& tell) override
    {
        for (int second = 0; second < seconds; ++second) {
            std::this_thread::sleep_for(std::chrono::seconds(1));
            const std::int64_t before = counted_;
            counted_ = Count();
            if (counted_ != before)
                Read(tell);
        }
    }

private:
    std::int64_t Count()
    {
        counter_.Step();
        const std::int64_t count = counter_.NumberAt(0);
        counter_.Reset();
        return count;
    }

    void Read(const Tell& tell)
    {
        behind_.Bind("apos", last_);
        while (behind_.Step()) {
            last_ = behind_.NumberAt(0);
            tell(behind_.NumberAt(1));
        }
        behind_.Reset();
    }

    RawDatabase database_;
    RawStatement counter_, behind_;
    std::int64_t last_ = 0, counted_ = 0;
};

} // namespace

std::unique_ptr<BareListener> BareListener::Of(const std::string& source)
{
    if (family::IsServer(source))
        return std::make_unique<OnServer>(source);
    return std::make_unique<OnFile>(source);
}

} // namespace kova::bench
