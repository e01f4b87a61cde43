#include "tests/unit/family/business/appointments/posix/counting_desks.hpp"

#include "tests/unit/family/business/appointments/desk_fixture.hpp"
#include "tests/unit/family/business/appointments/record_form.hpp"

#include "family/data/sources/shared_database.hpp"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

namespace kova::family::test {

namespace {

class CountingDesk {
public:
    CountingDesk(const std::string& dataSource, const Counting& counting, const Counter& counter)
        : host_(dataSource), counting_(counting), counter_(counter)
    {
    }

    Counted Run()
    {
        for (int round = 0; round < counting_.rounds; ++round) {
            Select();
            for (const Key number : counting_.numbers)
                Save(number);
        }
        return counted_;
    }

private:
    void Select()
    {
        if (list_.Call("Selecionar", DayArguments(counting_.day)) != Value(Integer(0)))
            ++counted_.failed;
    }

    void Save(Key number)
    {
        while (Edit(number) == WriteAnswer::Refused) {
            ++counted_.clashes;
            Select();
        }
    }

    Integer Edit(Key number)
    {
        const RecordSetRef records = ResultOf(list_);
        GoTo(*records, number);
        Agenda form(host_);
        SetFromRecord(form, *records);
        form.Set("DadosDoUsuario", std::make_shared<DeskUser>("Lia"));
        const Text text = records->Field(counter_.field).ToText();
        form.Set(counter_.field, std::to_string(std::atoi(text.c_str()) + counter_.step));
        RowVersions& versions = SharedDatabase(host_.DataSource())->Versions();
        const std::optional<Key> read = versions.Of(number);
        const Integer answer = form.Call("Alterar").ToInteger();
        if (answer == WriteAnswer::Done) {
            ++counted_.done;
            // A row that nobody else had changed is known as it was written.
            counted_.merged += versions.Of(number) == read ? 1 : 0;
        } else if (answer != WriteAnswer::Refused)
            ++counted_.failed;
        return answer;
    }

    DeskHost host_;
    const Counting& counting_;
    const Counter counter_;
    Agenda list_{host_};
    Counted counted_;
};

/// A process that counts once `start` is closed at its other end, and what it tells in the end.
struct DeskProcess {
    pid_t id;
    int result;
};

[[noreturn]] void CountAndTell(CountingDesk desk, int start, int result)
{
    char nothing;
    while (read(start, &nothing, 1) > 0) { }
    Counted counted;
    try {
        counted = desk.Run();
    } catch (const std::exception&) {
        ++counted.failed;
    }
    _exit(write(result, &counted, sizeof counted) == sizeof counted ? 0 : 1);
}

DeskProcess StartDesk(const std::string& dataSource, const Counting& counting, const Counter& counter,
                      const int (&start)[2])
{
    int result[2];
    EXPECT_EQ(pipe(result), 0);
    const pid_t id = fork();
    if (id == 0) {
        close(start[1]);
        CountAndTell(CountingDesk(dataSource, counting, counter), start[0], result[1]);
    }
    close(result[1]);
    return {id, result[0]};
}

Counted ResultOf(const DeskProcess& desk)
{
    Counted counted;
    EXPECT_EQ(read(desk.result, &counted, sizeof counted), static_cast<ssize_t>(sizeof counted));
    close(desk.result);
    waitpid(desk.id, nullptr, 0);
    return counted;
}

} // namespace

std::array<Counted, 2> CountOnTwoDesks(const std::string& dataSource, const Counting& counting)
{
    int start[2];
    EXPECT_EQ(pipe(start), 0);
    const DeskProcess first = StartDesk(dataSource, counting, counting.desks[0], start);
    const DeskProcess second = StartDesk(dataSource, counting, counting.desks[1], start);
    close(start[0]);
    close(start[1]);
    return {ResultOf(first), ResultOf(second)};
}

} // namespace kova::family::test
