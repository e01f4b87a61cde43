// A first key in the search of the customers' list until the filtered list is painted, against a bare view
// that shows what a look through the same texts in memory finds. Usage: bench_register_list DATABASE

#include "bench/floor_list.hpp"
#include "bench/measure.hpp"
#include "bench/paint_watch.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/registers.hpp"
#include "registers/registers_page.hpp"
#include "registers/row_model.hpp"
#include "toolkits/qt/look/apply_look.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <array>
#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int Rounds = 15;
constexpr double FrameOfTheScreen = 1000.0 / 60;
constexpr double ListLimit = 1.7;
constexpr double SearchLimit = 1.2;
/// In many of the texts, in fewer, in few.
constexpr std::array FirstKeys = {"a", "m", "z", "1", "@"};
/// Typed letter by letter: many hold the beginning, few all of it.
constexpr std::array Words = {"maria j", "peçan", "(11) 9", "ze.lu"};

/// The list of the customers in a window of the usual size.
class ListInWindow {
public:
    explicit ListInWindow(const std::string& path)
        : database_(family::OpenDatabase(path)),
          page_({database_,
                 [] {
                     return family::Author{"1", "Ana", "2026-11-20 09:00:00"};
                 }},
                nullptr),
          search_(*page_.findChild<QLineEdit*>(QStringLiteral("pesquisa"))),
          list_(*page_.findChild<QTableView*>(QStringLiteral("lista")))
    {
        page_.resize(1366, 700);
        page_.show();
        Settle();
    }

    family::Database& Database() { return *database_; }
    const QTableView& List() const { return list_; }

    void Clear()
    {
        search_.clear();
        Settle();
    }

    /// Milliseconds from the key until what it finds is painted.
    double Press(const QString& letter)
    {
        const QString expected = search_.text() + letter;
        PaintWatch painted(page_);
        const double time = Milliseconds([&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, letter);
            QApplication::sendEvent(&search_, &press);
            Settle();
        });
        if (search_.text() != expected || painted.Take().isEmpty())
            throw std::runtime_error("the list was not painted");
        return time;
    }
    double PressFirst(const char* letter)
    {
        Clear();
        return Press(QString::fromUtf8(letter));
    }

    /// Fails unless it shows exactly those.
    void RequireRows(const std::vector<BareCustomer>& customers, const std::vector<std::size_t>& places)
    {
        const auto& rows = dynamic_cast<const registers::RowModel&>(*list_.model());
        bool isSame = static_cast<std::size_t>(rows.rowCount()) == places.size();
        for (std::size_t row = 0; isSame && row < places.size(); ++row)
            isSame = rows.KeyAt(static_cast<int>(row)) == customers[places[row]].code;
        if (!isSame)
            throw std::runtime_error("the two do not find the same customers");
    }

private:
    std::shared_ptr<family::Database> database_;
    registers::RegistersPage page_;
    QLineEdit& search_;
    QTableView& list_;
};

std::string InMilliseconds(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.1f ms", value);
    return text;
}

/// "7.1 ms, at least 6.4 ms"
std::string MedianAndLeast(const std::vector<double>& times)
{
    return InMilliseconds(Median(times)) + ", at least " + InMilliseconds(std::ranges::min(times));
}

/// A first key after a customer was changed at another desk.
std::vector<double> PressAfterAChange(ListInWindow& window, const std::string& path)
{
    const auto other = family::OpenDatabase(path);
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        window.Clear();
        other->Session() << "begin immediate";
        other->Session() << "update cliente set nome_de_busca = nome_de_busca where codigo = 77";
        family::AuditChange(*other, {"1", "Ana", "2026-11-20 09:00:00"}, "cliente", 77, {}, {});
        other->Session() << "commit";
        times.push_back(
            window.Press(QString::fromUtf8(FirstKeys[static_cast<std::size_t>(round) % FirstKeys.size()])));
    }
    return times;
}

/// The slowest key behind the first ones.
double PressFurther(ListInWindow& window)
{
    double slowest = 0;
    for (const char* word : Words) {
        const QString letters = QString::fromUtf8(word);
        std::vector<std::vector<double>> times(static_cast<std::size_t>(letters.size()));
        for (int round = 0; round < Rounds; ++round) {
            window.Clear();
            for (int at = 0; at < letters.size(); ++at)
                times[static_cast<std::size_t>(at)].push_back(window.Press(letters.mid(at, 1)));
        }
        for (std::size_t at = 1; at < times.size(); ++at)
            slowest = std::max(slowest, Median(times[at]));
    }
    return slowest;
}

Comparison SearchAlone(family::Database& database, const std::vector<BareCustomer>& customers)
{
    using namespace family::registers;
    std::size_t sum = 0;
    const auto all = [](const auto& find) {
        for (const char* letter : FirstKeys)
            find(letter);
    };
    const Comparison times = Alternate(
        Rounds,
        [&] {
            all([&](const char* letter) {
                sum += CustomerRegister().Find(database, letter, Listed::Active).size();
            });
        },
        [&] { all([&](const char* letter) { sum -= LookThrough(customers, letter).size(); }); });
    if (sum != 0)
        throw std::runtime_error("the two do not find as many customers");
    return times;
}

void MeasureKeys(ListInWindow& window, FloorList& floor, const std::vector<BareCustomer>& customers)
{
    std::vector<double> measured, bare;
    std::size_t found = 0;
    for (int round = 0; round < Rounds; ++round) {
        for (const char* letter : FirstKeys) {
            measured.push_back(window.PressFirst(letter));
            floor.Find("");
            Settle();
            bare.push_back(Milliseconds([&] {
                floor.Find(letter);
                Settle();
            }));
            const std::vector<std::size_t> places = LookThrough(customers, letter);
            window.RequireRows(customers, places);
            found += places.size();
        }
    }
    PrintLine("(m) first key to filtered list", {Median(measured), Median(bare)}, "ms", ListLimit);
    PrintTold("(m) the same, beside a frame", {Median(measured), FrameOfTheScreen}, "ms");
    PrintNote("(m) " + std::to_string(customers.size()) + " active customers, " + std::to_string(found)
              + " found by " + std::to_string(measured.size()) + " first keys: " + MedianAndLeast(measured)
              + "; floor: " + MedianAndLeast(bare));
}

void Measure(const std::string& path)
{
    std::unique_ptr<ListInWindow> window;
    const double opening = Milliseconds([&] { window = std::make_unique<ListInWindow>(path); });
    const double veryFirst = window->PressFirst(FirstKeys.front());
    const std::vector<BareCustomer> customers = ReadBareCustomers(window->Database());
    FloorList floor(customers, window->List());
    floor.show();
    Settle();
    MeasureKeys(*window, floor, customers);
    PrintLine("(m) 5 searches alone", SearchAlone(window->Database(), customers), "ms", SearchLimit);
    PrintNote("(m) the tab opened in " + InMilliseconds(opening) + ", its first key of all "
              + InMilliseconds(veryFirst) + "; the slowest key behind a first one "
              + InMilliseconds(PressFurther(*window)));
    PrintNote("(m) a first key after a customer was changed: "
              + MedianAndLeast(PressAfterAChange(*window, path)));
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    QApplication application(count, words);
    kova::qt::ApplyLook(application);
    if (count != 2) {
        std::cerr << "usage: bench_register_list DATABASE" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1]);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_register_list: " << failure.what() << std::endl;
        return 1;
    }
}
