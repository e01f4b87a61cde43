#include "host/session/daily_backup.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace kova::host {

namespace {

/// What the database does when it is asked.
struct DatabaseScript {
    std::function<Value()> onStart = [] { return Value(Integer{0}); };
    std::function<Value()> onLook = [] { return Value(true); };
    Text reason;
};

class ScriptedDatabase : public Component {
public:
    explicit ScriptedDatabase(const DatabaseScript& script) : script_(script) { }

    Value Get(std::string_view member) override
    {
        return member == "CopiaDoDiaTerminou" ? script_.onLook() : Value(script_.reason);
    }
    void Set(std::string_view, const Value&) override { }
    Value Call(std::string_view, std::span<Argument>) override { return script_.onStart(); }
    using Component::Call;

private:
    const DatabaseScript& script_;
};

class OneDatabase : public ComponentService {
public:
    explicit OneDatabase(const DatabaseScript& script) : script_(script) { }
    ComponentRef CreateObject(std::string_view) override
    {
        return std::make_shared<ScriptedDatabase>(script_);
    }

private:
    const DatabaseScript& script_;
};

class CopyOfTheDay : public WithApplication {
protected:
    /// What is told of one copy; waits for it.
    std::string Told()
    {
        std::string told = "nothing";
        QEventLoop loop;
        DailyBackup backup(service_, [&](const std::string& reason) {
            told = reason;
            loop.quit();
        });
        QTimer::singleShot(0, &loop, [&] { backup.Begin(); });
        QTimer::singleShot(10'000, &loop, &QEventLoop::quit);
        loop.exec();
        return told;
    }
    DatabaseScript script_;
    OneDatabase service_{script_};
};

Value Fails() { throw Failure(FailureNumber::TypeMismatch, "não é assim"); }
Value FailsOtherwise() { throw std::runtime_error("out of range"); }

} // namespace

TEST_F(CopyOfTheDay, IsToldOnceItHasEndedAndNotBefore)
{
    int looks = 0;
    script_.onLook = [&] { return Value(++looks == 3); };
    EXPECT_EQ(Told(), "");
    EXPECT_EQ(looks, 3);
}

TEST_F(CopyOfTheDay, BeginsOnceWhileItIsBeingMade)
{
    int begun = 0;
    script_.onStart = [&] {
        ++begun;
        return Value(Integer{0});
    };
    DailyBackup backup(service_, [](const std::string&) {});
    backup.Begin();
    backup.Begin();
    EXPECT_EQ(begun, 1);
}

TEST_F(CopyOfTheDay, IsToldWithItsReasonOnceItHasEnded)
{
    script_.reason = "sem espaço";
    EXPECT_EQ(Told(), "sem espaço");
}

TEST_F(CopyOfTheDay, ThatCannotBeginIsToldWhateverTheKindOfFailure)
{
    script_.onStart = Fails;
    EXPECT_EQ(Told(), "não é assim");
    script_.onStart = FailsOtherwise;
    EXPECT_EQ(Told(), "out of range");
}

TEST_F(CopyOfTheDay, ThatFailsLaterIsToldAndEndsNothingElse)
{
    script_.onLook = Fails;
    EXPECT_EQ(Told(), "não é assim");
    script_.onLook = FailsOtherwise;
    EXPECT_EQ(Told(), "out of range");
}

} // namespace kova::host
