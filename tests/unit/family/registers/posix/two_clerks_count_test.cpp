// Two processes change one row of a register at the same time, a thousand times together.

#include "tests/unit/family/registers/register_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"

#include <sys/wait.h>
#include <unistd.h>

namespace kova::family::test {

using namespace registers;

namespace {

/// What one process has met with.
struct Counted {
    int done = 0, clashes = 0, failed = 0;
};

/// Where it counts, and by how much.
struct Counter {
    const char* label;
    int step;
};

constexpr Key Row = 10;

/// Opens the row, raises its number, saves; once more on what is stored where somebody was quicker.
void CountUp(Database& database, const Counter& counter, int times, Counted& counted)
{
    const Register& customers = CustomerRegister();
    const std::size_t field = FieldNamed(customers.Fields(), counter.label);
    const Author author{"7", "Lia", "2026-11-20 09:04:05", "BALCAO-1"};
    while (counted.done < times && counted.failed == 0) {
        const registers::Texts before = customers.Read(database, Row).value();
        registers::Texts typed = before;
        typed[field] = std::to_string(std::stoi(typed[field]) + counter.step);
        const SaveAnswer answer = customers.Save(database, Row, before, typed, author);
        if (answer.IsDone())
            ++counted.done;
        else
            ++(answer.clash.empty() ? counted.failed : counted.clashes);
    }
}

[[noreturn]] void CountAndTell(const std::string& path, const Counter& counter, int times, int start,
                               int result)
{
    Counted counted;
    try {
        const std::shared_ptr<Database> database = OpenDatabase(path);
        char nothing;
        while (read(start, &nothing, 1) > 0) { }
        CountUp(*database, counter, times, counted);
    } catch (const std::exception&) {
        ++counted.failed;
    }
    _exit(write(result, &counted, sizeof counted) == sizeof counted ? 0 : 1);
}

} // namespace

class TwoClerks : public RegisterTest {
protected:
    static constexpr int Edits = 500;

    TwoClerks()
    {
        Run("update cliente set complemento = '0', bairro = '0' where codigo = 10");
        CloseSharedDatabases();
    }

    std::array<Counted, 2> CountIn(const Counter& first, const Counter& second)
    {
        int start[2], results[2][2];
        EXPECT_EQ(pipe(start), 0);
        pid_t clerks[2];
        const Counter counters[] = {first, second};
        for (int at = 0; at < 2; ++at) {
            EXPECT_EQ(pipe(results[at]), 0);
            clerks[at] = fork();
            if (clerks[at] == 0) {
                close(start[1]);
                CountAndTell(shop_.DataSource(), counters[at], Edits, start[0], results[at][1]);
            }
            close(results[at][1]);
        }
        close(start[0]);
        close(start[1]);
        std::array<Counted, 2> counted;
        for (int at = 0; at < 2; ++at) {
            EXPECT_EQ(read(results[at][0], &counted[at], sizeof(Counted)),
                      static_cast<ssize_t>(sizeof(Counted)));
            close(results[at][0]);
            waitpid(clerks[at], nullptr, 0);
        }
        return counted;
    }
};

TEST_F(TwoClerks, InDifferentFieldsOfOneRowLoseNoChange)
{
    for (const Counted& clerk : CountIn({"Complemento", 1}, {"Bairro", 1})) {
        EXPECT_EQ(clerk.done, Edits);
        EXPECT_EQ(clerk.clashes, 0);
        EXPECT_EQ(clerk.failed, 0);
    }
    EXPECT_EQ(Texts("select complemento || ' ' || bairro from cliente where codigo = 10"),
              std::vector<std::string>{"500 500"});
    EXPECT_EQ(Count("auditoria where tabela = 'cliente' and chave = 10"), 2 * Edits);
}

TEST_F(TwoClerks, InOneFieldOfOneRowLoseNoChangeEither)
{
    int clashes = 0;
    for (const Counted& clerk : CountIn({"Complemento", 1}, {"Complemento", 1000})) {
        EXPECT_EQ(clerk.done, Edits);
        EXPECT_EQ(clerk.failed, 0);
        clashes += clerk.clashes;
    }
    EXPECT_GT(clashes, 0);
    EXPECT_EQ(Texts("select complemento from cliente where codigo = 10"), std::vector<std::string>{"500500"});
}

} // namespace kova::family::test
