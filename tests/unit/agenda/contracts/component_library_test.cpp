#include "agenda/contracts/support/component_library.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"

#include <gtest/gtest.h>
#include <set>

namespace kova {

using test::NumberOfFailure;

namespace {

constexpr const char* ClassId = "{0A1B2C3D-0000-4000-8000-00000000ABCD}";

class Thing : public Component, public std::enable_shared_from_this<Thing> {
public:
    Value Get(std::string_view) override { return Value(shared_from_this()); }
    void Set(std::string_view, const Value&) override { throw Failure(FailureNumber::NoSuchMember); }
    using Component::Call;
    Value Call(std::string_view, std::span<Argument>) override { throw Failure(FailureNumber::NoSuchMember); }
};

class RecordingHost : public ServerHost {
public:
    bool Register(const ClassRegistration& registration) override
    {
        if (!writable)
            return false;
        pathWasEmpty = registration.libraryPath.empty();
        return classes.insert(registration.className + registration.classId).second;
    }
    bool Unregister(std::string_view className) override
    {
        removed.insert(std::string(className));
        return writable;
    }
    Platform& GetPlatform() override { throw Failure(FailureNumber::NoObject); }
    std::string DataSource() const override { return {}; }

    bool writable = true;
    bool pathWasEmpty = false;
    std::set<std::string> classes;
    std::set<std::string> removed;
};

/// A library with one class that works, one that refuses and one that fails.
class ComponentLibraryTest : public testing::Test {
protected:
    ComponentRef Create(const char* classId)
    {
        ComponentRef object;
        Factory(classId)->CreateInstance(nullptr, &object);
        return object;
    }
    ClassFactory* Factory(const char* classId)
    {
        ClassFactory* factory = nullptr;
        EXPECT_EQ(library.GetClassObject(classId, &factory), 0);
        return factory;
    }

    RecordingHost host;
    ComponentLibrary library{{
        {"Teste.clsCoisa", ClassId, [](ServerHost&) { return std::make_unique<Thing>(); }},
        {"Teste.clsRecusa", "{00000000-0000-4000-8000-000000000002}",
         [](ServerHost&) { return std::unique_ptr<Thing>(); }},
        {"Teste.clsFalha", "{00000000-0000-4000-8000-000000000003}",
         [](ServerHost&) -> std::unique_ptr<Thing> { throw Failure(FailureNumber::OutOfMemory); }},
    }};
};

constexpr auto Ok = static_cast<std::int32_t>(ServerStatus::Ok);
constexpr auto Busy = static_cast<std::int32_t>(ServerStatus::Busy);
constexpr auto Refused = static_cast<std::int32_t>(ServerStatus::Refused);
constexpr auto RegistrationFailed = static_cast<std::int32_t>(ServerStatus::RegistrationFailed);

} // namespace

TEST_F(ComponentLibraryTest, GivesTheFactoryOfAClassWhateverTheCaseOfItsIdentifier)
{
    EXPECT_EQ(Factory(ClassId), Factory("{0a1b2c3d-0000-4000-8000-00000000abcd}"));
}

TEST_F(ComponentLibraryTest, LeavesTheFactoryNullOnAnyFailure)
{
    auto* const sentinel = Factory(ClassId);
    ClassFactory* factory = sentinel;
    EXPECT_EQ(library.GetClassObject("{FFFFFFFF-0000-4000-8000-00000000ABCD}", &factory),
              static_cast<std::int32_t>(0x80040111));
    EXPECT_EQ(factory, nullptr);
    factory = sentinel;
    EXPECT_EQ(library.GetClassObject(nullptr, &factory), static_cast<std::int32_t>(0x80070057));
    EXPECT_EQ(factory, nullptr);
    EXPECT_EQ(library.GetClassObject(ClassId, nullptr), static_cast<std::int32_t>(0x80070057));
}

TEST_F(ComponentLibraryTest, CreatesNothingWithoutAHost)
{
    ComponentRef object;
    EXPECT_EQ(Factory(ClassId)->CreateInstance(nullptr, &object), ServerStatus::Refused);
    EXPECT_EQ(object, nullptr);
}

TEST_F(ComponentLibraryTest, RefusesAnOuterObject)
{
    library.AttachHost(&host);
    ComponentRef object = std::make_shared<Thing>();
    Thing outer;
    EXPECT_EQ(Factory(ClassId)->CreateInstance(&outer, &object), ServerStatus::NoAggregation);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(Factory(ClassId)->CreateInstance(nullptr, nullptr), ServerStatus::InvalidArgument);
}

TEST_F(ComponentLibraryTest, IsBusyWhileAnObjectLives)
{
    library.AttachHost(&host);
    EXPECT_EQ(library.CanUnloadNow(), Ok);
    auto object = Create(ClassId);
    ASSERT_NE(object, nullptr);
    auto second = object;
    object.reset();
    EXPECT_EQ(library.CanUnloadNow(), Busy);
    second.reset();
    EXPECT_EQ(library.CanUnloadNow(), Ok);
}

TEST_F(ComponentLibraryTest, CountsAnObjectThatOnlyItsOwnReferenceKeeps)
{
    library.AttachHost(&host);
    Value self = Create(ClassId)->Get("Eu");
    EXPECT_EQ(library.LiveObjects(), 1);
    self = Value();
    EXPECT_EQ(library.LiveObjects(), 0);
}

TEST_F(ComponentLibraryTest, CountsNothingWhereTheClassRefusesOrFails)
{
    library.AttachHost(&host);
    EXPECT_EQ(Create("{00000000-0000-4000-8000-000000000002}"), nullptr);
    EXPECT_EQ(NumberOfFailure([&] { Create("{00000000-0000-4000-8000-000000000003}"); }), 7);
    EXPECT_EQ(library.CanUnloadNow(), Ok);
}

TEST_F(ComponentLibraryTest, IsBusyWhileItIsLocked)
{
    auto* factory = Factory(ClassId);
    factory->LockServer(false);
    factory->LockServer(true);
    factory->LockServer(true);
    factory->LockServer(false);
    EXPECT_EQ(library.CanUnloadNow(), Busy);
    factory->LockServer(false);
    EXPECT_EQ(library.CanUnloadNow(), Ok);
}

TEST_F(ComponentLibraryTest, IsBusyWhileAnybodyHoldsIt)
{
    std::shared_ptr<void> held = library.Hold();
    std::shared_ptr<void> copy = held;
    held.reset();
    EXPECT_EQ(library.CanUnloadNow(), 1);
    EXPECT_EQ(library.LiveObjects(), 1);
    copy.reset();
    EXPECT_EQ(library.CanUnloadNow(), 0);
}

TEST_F(ComponentLibraryTest, RefusesAnotherHostWhileObjectsLive)
{
    RecordingHost other;
    EXPECT_EQ(library.AttachHost(&host), Ok);
    auto object = Create(ClassId);
    EXPECT_EQ(library.AttachHost(&host), Ok);
    EXPECT_EQ(library.AttachHost(&other), Refused);
    EXPECT_EQ(library.AttachHost(nullptr), Refused);
    EXPECT_EQ(library.Host(), &host);
    object.reset();
    EXPECT_EQ(library.AttachHost(&other), Ok);
    EXPECT_EQ(library.AttachHost(nullptr), Ok);
    EXPECT_EQ(library.Host(), nullptr);
}

TEST_F(ComponentLibraryTest, RegistersEveryClassAndLeavesThePathToTheHost)
{
    library.AttachHost(&host);
    EXPECT_EQ(library.RegisterServer(), Ok);
    EXPECT_EQ(host.classes.size(), 3U);
    EXPECT_EQ(host.classes.count(std::string("Teste.clsCoisa") + ClassId), 1U);
    EXPECT_TRUE(host.pathWasEmpty);
    EXPECT_EQ(library.UnregisterServer(), Ok);
    EXPECT_EQ(host.removed, (std::set<std::string>{"Teste.clsCoisa", "Teste.clsFalha", "Teste.clsRecusa"}));
}

TEST_F(ComponentLibraryTest, TellsWhereItCannotRegister)
{
    EXPECT_EQ(library.RegisterServer(), RegistrationFailed);
    EXPECT_EQ(library.UnregisterServer(), RegistrationFailed);
    host.writable = false;
    library.AttachHost(&host);
    EXPECT_EQ(library.RegisterServer(), RegistrationFailed);
    EXPECT_EQ(library.UnregisterServer(), RegistrationFailed);
}

} // namespace kova
