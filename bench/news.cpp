// News from desk to desk: 16 desks write 20 changes a second between them, and each has to hear of each.
// Beside them listen a bare program and the application's own window, which nobody touches.
// Usage: bench_news DATABASE DAY PLACE, where PLACE is "file" or "server"

#include "bench/bare_listener.hpp"
#include "bench/desks.hpp"
#include "bench/measure.hpp"
#include "bench/open_window.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/sources/data_source.hpp"
#include "host/session/news_of_desks.hpp"

#include <sys/mman.h>
#include <sys/resource.h>

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <thread>

namespace kova::bench {

namespace {

constexpr int Desks = 16, WritesInASecond = 20, Seconds = 12, Writes = WritesInASecond * Seconds;
/// The place of the bare listener, behind the desks.
constexpr int Bare = Desks;
constexpr double Settling = 5, LongestWait = 3;

double Now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// What all processes see: when each change was about to be written, and when each desk heard of it; 0 is
/// never. Processor seconds of the window and of the bare listener while there were changes.
struct Board {
    std::array<double, Writes> written{};
    std::array<std::array<double, Writes>, Desks + 1> heard{};
    double ofWindow = 0, ofBare = 0;
};

class SharedBoard {
public:
    SharedBoard()
        : place_(mmap(nullptr, sizeof(Board), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))
    {
        if (place_ == MAP_FAILED)
            throw std::runtime_error("no memory");
        board_ = new (place_) Board;
    }
    ~SharedBoard() { munmap(place_, sizeof(Board)); }
    SharedBoard(const SharedBoard&) = delete;
    SharedBoard& operator=(const SharedBoard&) = delete;

    Board* operator->() { return board_; }

private:
    void* place_;
    Board* board_;
};

/// The appointments that are changed, one by each change, those of the day first; by their numbers.
using Changes = std::map<family::Key, int>;

Changes ChosenAppointments(const std::string& source, const std::string& day)
{
    const std::shared_ptr<family::Database> database = family::OpenDatabase(source);
    const soci::rowset<long long> numbers =
        (database->Session().prepare
             << "select numero from agendamento where situacao = 1 order by case when data_inicial = :dia"
                " then 0 else 1 end, numero limit "
                 + std::to_string(Writes),
         soci::use(day, "dia"));
    Changes changes;
    for (const long long number : numbers)
        changes.emplace(number, static_cast<int>(changes.size()));
    if (changes.size() != Writes)
        throw std::runtime_error("the shop has too few appointments");
    return changes;
}

double OwnProcessorSeconds()
{
    constexpr double microseconds = 1e-6;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * microseconds;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// A desk with a connection that writes, and the news as the window's areas get them.
class Desk {
public:
    Desk(int desk, const std::string& source, const Changes& changes, SharedBoard& board)
        : desk_(desk),
          database_(family::OpenDatabase(source)),
          news_(source, [](auto, auto) { return host::Writer::Another; }),
          board_(board),
          changes_(changes)
    {
        for (const auto& [number, change] : changes) {
            if (change % Desks == desk)
                own_[change] = number;
        }
        news_.Follow(here_, [this](const host::DeskNews& news) { Hear(news); });
        news_.Begin();
        news_.CatchUp(std::chrono::seconds(30));
    }

    void Work(const OpenWindow& window)
    {
        const double start = Now(), before = window.ProcessorSeconds();
        for (const auto& [change, number] : own_)
            QTimer::singleShot(1000 * change / WritesInASecond, Qt::PreciseTimer, &here_,
                               [this, change = change, number = number] { Write(change, number); });
        QTimer::singleShot(1000 * Seconds, &here_, [&] {
            if (desk_ == 0)
                board_->ofWindow = (window.ProcessorSeconds() - before) / (Now() - start);
        });
        QTimer::singleShot(static_cast<int>(1000 * (Seconds + LongestWait)), &here_, [] { qApp->quit(); });
        QCoreApplication::exec();
        news_.End();
    }

private:
    void Write(int change, family::Key number)
    {
        board_->written[static_cast<std::size_t>(change)] = Now();
        const family::Author author{"2", "Carla", "2026-11-20 09:04:05", "POSTO-" + std::to_string(desk_)};
        if (!ChangeStatus(*database_, number, 2, author).IsDone())
            throw std::runtime_error("a change was refused");
    }

    void Hear(const host::DeskNews& news)
    {
        for (const host::AppointmentNews& one : news.appointments)
            board_
                ->heard[static_cast<std::size_t>(desk_)][static_cast<std::size_t>(changes_.at(one.number))] =
                Now();
    }

    int desk_;
    std::shared_ptr<family::Database> database_;
    host::NewsOfDesks news_;
    QObject here_;
    SharedBoard& board_;
    const Changes& changes_;
    std::map<int, family::Key> own_;
};

DeskWork Prepared(int desk, const std::string& source, const Changes& changes, SharedBoard& board,
                  const OpenWindow& window)
{
    if (desk == Bare) {
        const std::shared_ptr<BareListener> listener = BareListener::Of(source);
        return [listener, &changes, &board] {
            const double before = OwnProcessorSeconds();
            listener->Listen(Seconds, [&](long long number) {
                board->heard[Bare][static_cast<std::size_t>(changes.at(number))] = Now();
            });
            board->ofBare = (OwnProcessorSeconds() - before) / Seconds;
            listener->Listen(LongestWait, [&](long long number) {
                board->heard[Bare][static_cast<std::size_t>(changes.at(number))] = Now();
            });
        };
    }
    static int count = 1;
    static char name[] = "bench_news";
    static char* words[] = {name, nullptr};
    const auto application = std::make_shared<QCoreApplication>(count, words);
    const auto one = std::make_shared<Desk>(desk, source, changes, board);
    return [application, one, &window] { one->Work(window); };
}

/// Milliseconds from each change until each desk heard of it. Throws where one was never heard of.
std::vector<double> Waits(SharedBoard& board, int first, int last)
{
    constexpr double milliseconds = 1000;
    std::vector<double> waits;
    for (int desk = first; desk <= last; ++desk)
        for (std::size_t change = 0; change < Writes; ++change) {
            const double heard = board->heard[static_cast<std::size_t>(desk)][change];
            if (heard == 0)
                throw std::runtime_error("desk " + std::to_string(desk) + " has not heard of change "
                                         + std::to_string(change));
            waits.push_back((heard - board->written[change]) * milliseconds);
        }
    return waits;
}

host::Options OptionsOf(const std::string& source, const std::string& day)
{
    host::Options options;
    options.database = source;
    options.date = RequireDate(day);
    options.size = host::WindowSize{1366, 768};
    return options;
}

void Measure(const std::string& source, const std::string& day, const std::string& place)
{
    constexpr double OneSecond = 1000, MostPercent = 2, percent = 100;
    SharedBoard board;
    const OpenWindow window(OptionsOf(source, day));
    std::this_thread::sleep_for(std::chrono::duration<double>(Settling));
    const double before = window.ProcessorSeconds();
    std::this_thread::sleep_for(std::chrono::duration<double>(Settling));
    const double quiet = (window.ProcessorSeconds() - before) / Settling;
    const Changes changes = ChosenAppointments(source, family::IsoDate(RequireDate(day)));
    SecondsOfDesks(Desks + 1, [&](int desk) { return Prepared(desk, source, changes, board, window); });

    const std::vector<double> waits = Waits(board, 0, Desks - 1), bare = Waits(board, Bare, Bare);
    const std::string of = ", " + place;
    PrintLine("(p) slowest news, against 1 s" + of, {*std::ranges::max_element(waits), OneSecond}, "ms", 1);
    PrintTold("(p) news, median" + of, {Median(waits), Median(bare)}, "ms");
    PrintLine("(p) idle window, of 2 % of a core" + of, {board->ofWindow * percent, MostPercent}, "% ", 1);
    PrintTold("(p) the same, beside a bare listener" + of,
              {board->ofWindow * percent, board->ofBare * percent}, "% ");
    PrintNote("(p) " + place + ": " + std::to_string(waits.size()) + " times one of " + std::to_string(Desks)
              + " desks heard of one of " + std::to_string(Writes) + " changes, "
              + std::to_string(WritesInASecond) + " a second; the window took "
              + std::to_string(quiet * percent) + " % of a core while nobody wrote");
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    if (count != 4) {
        std::cerr << "usage: bench_news DATABASE DAY PLACE" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1], words[2], words[3]);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_news: " << failure.what() << std::endl;
        return 1;
    }
}
