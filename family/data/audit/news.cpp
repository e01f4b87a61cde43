#include "family/data/audit/news.hpp"

#include "family/data/audit/days_of_news.hpp"
#include "family/data/engine/server_client.hpp"
#include "system/network.hpp"

namespace kova::family {

namespace {

class LastOrder : public KeptStatement {
public:
    explicit LastOrder(Database& database)
        : statement_((database.Session().prepare
                          << "select cast(coalesce(max(ordem), 0) as bigint) from elo_da_auditoria",
                      soci::into(last_)))
    {
    }

    Key Run()
    {
        Key last = 0;
        statement_.execute();
        while (statement_.fetch())
            last = last_;
        return last;
    }

private:
    Key last_ = 0;
    soci::statement statement_;
};

class LinesBehind : public KeptStatement {
public:
    explicit LinesBehind(Database& database)
        : statement_(
            (database.Session().prepare
                 << "select e.ordem, a.codigo, a.tabela, a.chave, a.usuario, a.posto,"
                    " case when a.tabela = 'agendamento' then a.antes end,"
                    " case when a.tabela = 'agendamento' then a.depois end,"
                    " g.data_inicial, g.data_final from elo_da_auditoria e"
                    " join auditoria a on a.codigo = e.codigo_da_linha"
                    " left join agendamento g on a.tabela = 'agendamento' and g.numero = a.chave"
                    " where e.ordem > :apos"
                    " order by e.ordem",
             soci::into(order_), soci::into(row_.line), soci::into(row_.table), soci::into(row_.key),
             soci::into(row_.user), soci::into(row_.desk), soci::into(row_.before.value, row_.before.state),
             soci::into(row_.after.value, row_.after.state), soci::into(row_.begins.value, row_.begins.state),
             soci::into(row_.ends.value, row_.ends.state), soci::use(after_, "apos")))
    {
    }

    /// Raises `last` to the last of them.
    std::vector<NewsOfRow> Run(Key& last)
    {
        after_ = last;
        std::vector<NewsOfRow> rows;
        statement_.execute();
        while (statement_.fetch()) {
            rows.push_back(row_);
            last = order_;
        }
        return rows;
    }

private:
    Key after_ = 0, order_ = 0;
    NewsOfRow row_;
    soci::statement statement_;
};

class FileCounter : public KeptStatement {
public:
    explicit FileCounter(Database& database)
        : statement_(
            (database.Session().prepare << database.GetDialect().changesOfOthers, soci::into(counted_)))
    {
    }

    Key Run()
    {
        statement_.execute();
        while (statement_.fetch())
            continue;
        return counted_;
    }

private:
    Key counted_ = 0;
    soci::statement statement_;
};

} // namespace

News::News(Database& database) : database_(database)
{
    // Before the last line is looked for, so that none comes between.
    if (database_.GetDialect().IsServer())
        Listen();
    else
        changes_ = FileChanges();
    last_ = database_.With<LastOrder>([](LastOrder& order) { return order.Run(); });
}

std::vector<NewsOfRow> News::Look()
{
    // What was told once is not told again: a look that fails is made up for by the next one.
    isBehind_ = MayBeNew() || isBehind_;
    if (!isBehind_)
        return {};
    std::vector<NewsOfRow> rows = ReadOnLiveConnection();
    isBehind_ = false;
    return rows;
}

bool News::Await(int milliseconds)
{
    const std::intptr_t socket = Socket();
    return socket != NoSocket && system::AwaitSocket(socket, system::SocketEvent::CanBeRead, milliseconds);
}

std::intptr_t News::Socket()
{
    return isListening_ ? RequireServerClient().SocketOf(database_.Session()) : NoSocket;
}

void News::Listen()
{
    try {
        database_.Session() << std::string("listen ") + NoticeChannel;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database_.Path(), cause);
    }
    isListening_ = true;
}

bool News::MayBeNew()
{
    if (!database_.GetDialect().IsServer()) {
        const Key before = changes_;
        changes_ = FileChanges();
        return changes_ != before;
    }
    if (isListening_) {
        const auto told = RequireServerClient().TakeNotices(database_.Session());
        if (told)
            return *told;
        isListening_ = false;
    }
    ListenAnew();
    return true;
}

void News::ListenAnew()
{
    database_.Reconnect();
    Listen();
}

Key News::FileChanges()
{
    return database_.With<FileCounter>([](FileCounter& counter) { return counter.Run(); });
}

// Before a connection turns out to be lost it may still have something to say.
std::vector<NewsOfRow> News::ReadOnLiveConnection()
{
    try {
        return Read();
    } catch (const DatabaseFailure& failure) {
        isListening_ = false;
        if (failure.GetFault() != Fault::ConnectionLost || !database_.GetDialect().IsServer())
            throw;
    }
    ListenAnew();
    return Read();
}

std::vector<NewsOfRow> News::Read()
{
    Key last = last_;
    std::vector<NewsOfRow> rows =
        database_.WithOnce<LinesBehind>([&](LinesBehind& lines) { return lines.Run(last); });
    last_ = last;
    TakeDaysOfTheTime(rows);
    return rows;
}

} // namespace kova::family
