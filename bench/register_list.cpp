// A first key in the search of the customers' list until the filtered list is painted, against a look through
// the same texts in memory. Usage: bench_register_list DATABASE

#include "bench/measure.hpp"
#include "bench/paint_watch.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/sources/data_source.hpp"
#include "registers/registers_page.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>

#include <array>
#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int Rounds = 15;
constexpr double FrameOfTheScreen = 1000.0 / 60;
constexpr double Limit = 8;
/// In many of the texts, in fewer, in few.
constexpr std::array FirstKeys = {"a", "m", "z", "1", "@"};

/// Name, nickname, document and channels of every customer in lower case, as the list looks for them.
std::vector<std::string> ReadBareTexts(family::Database& database)
{
    std::vector<std::string> texts;
    std::string text;
    soci::statement statement =
        (database.Session().prepare << "select nome_de_busca || '\n' || apelido || '\n' || documento || '\n'"
                                       " || tipos_e_canais from cliente order by nome_de_busca, codigo",
         soci::into(text));
    statement.execute();
    while (statement.fetch())
        texts.push_back(family::FoldText(text));
    return texts;
}

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

    /// Milliseconds from the key until what it finds is painted.
    double Press(const char* letter)
    {
        search_.clear();
        Settle();
        PaintWatch painted(page_);
        const double time = Milliseconds([&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString::fromUtf8(letter));
            QApplication::sendEvent(&search_, &press);
            Settle();
        });
        if (search_.text() != QString::fromUtf8(letter) || painted.Take().isEmpty())
            throw std::runtime_error("the list was not painted");
        found_ += list_.model()->rowCount();
        return time;
    }
    long long Found() const { return found_; }

private:
    std::shared_ptr<family::Database> database_;
    registers::RegistersPage page_;
    QLineEdit& search_;
    QTableView& list_;
    long long found_ = 0;
};

double LookThrough(const std::vector<std::string>& texts, const char* letter, std::size_t& sum)
{
    return Milliseconds([&] {
        std::vector<std::uint32_t> places;
        for (std::uint32_t place = 0; place < texts.size(); ++place) {
            if (texts[place].find(letter) != std::string::npos)
                places.push_back(place);
        }
        sum += places.size();
    });
}

/// After a customer was changed at another desk.
double PressAfterAChange(ListInWindow& window, const std::string& path)
{
    const auto other = family::OpenDatabase(path);
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        other->Session() << "begin immediate";
        other->Session() << "update cliente set nome_de_busca = nome_de_busca where codigo = 77";
        other->Session()
            << "insert into auditoria (momento, usuario, tabela, chave, operacao, antes, depois)"
               " values ('2026-11-20 09:00:00', '1 - Ana', 'cliente', 77, 'alteracao', '{}', '{}')";
        other->Session() << "commit";
        times.push_back(window.Press(FirstKeys[static_cast<std::size_t>(round) % FirstKeys.size()]));
    }
    return Median(std::move(times));
}

void Measure(const std::string& path)
{
    ListInWindow window(path);
    const std::vector<std::string> texts = ReadBareTexts(window.Database());
    std::vector<double> measured, floor;
    std::size_t sum = 0;
    window.Press(FirstKeys.front());
    for (int round = 0; round < Rounds; ++round) {
        for (const char* letter : FirstKeys) {
            measured.push_back(window.Press(letter));
            floor.push_back(LookThrough(texts, letter, sum));
        }
    }
    const Comparison times{Median(std::move(measured)), Median(std::move(floor))};
    PrintLine("(m) first key to filtered list", times, "ms", Limit);
    PrintLine("(m) the same, against a frame", {times.measured, FrameOfTheScreen}, "ms", 1);
    char text[60];
    std::snprintf(text, sizeof text, "%.1f ms", PressAfterAChange(window, path));
    PrintNote("(m) " + std::to_string(texts.size()) + " customers, " + std::to_string(window.Found())
              + " rows found; a first key after a customer was changed: " + text);
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    QApplication application(count, words);
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
