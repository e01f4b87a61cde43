#pragma once

#include "agenda/contracts/platform.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/appointments/agenda.hpp"

namespace kova::family::test {

/// A host whose clock stands; everything else of its platform fails.
class DeskHost : public TestHost, private Platform, private kova::Clock {
public:
    using TestHost::TestHost;
    Platform& GetPlatform() override { return *this; }

    DateTime now{{2026, 11, 20}, {9, 4, 5}};

private:
    ComponentService& Components() override { throw Failure(FailureNumber::NoObject); }
    kova::Toolkit& Toolkit() override { throw Failure(FailureNumber::NoObject); }
    kova::Clock& Clock() override { return *this; }
    kova::Profile& Profile() override { throw Failure(FailureNumber::NoObject); }
    Text SettingsFolder() const override { return {}; }
    Text SettingsTitle() const override { return {}; }
    DateTime Now() const override { return now; }
    Double Timer() const override { return 0; }
};

/// A session's user.
class DeskUser : public Component {
public:
    explicit DeskUser(Text name) : name_(std::move(name)) { }
    using Component::Call;
    Value Get(std::string_view member) override;
    void Set(std::string_view, const Value&) override { throw Failure(FailureNumber::NoSuchMember); }
    Value Call(std::string_view, std::span<Argument>) override { throw Failure(FailureNumber::NoSuchMember); }

private:
    Text name_;
};

/// The shop with a user at its desk, who changes statuses. Beside the appointments of the shop there is a
/// package, 1, of three baths: 21, 22 and 23, booked, on 27/11/2026 one after another from 09:00 to 12:00.
class DeskTest : public ShopTest {
protected:
    DeskTest();

    /// A component with everything that the list sets before a change of status.
    std::unique_ptr<Agenda> Desk(int number, int status);
    /// The write status of a change of one appointment, by a component of its own.
    Integer Change(int number, int status);

    soci::session& Session();
    /// Runs a statement on the data.
    void Run(const std::string& statement) { Session() << statement; }
    /// Makes every write of that kind fail with "parada de teste", until Mend. `event` is like "before
    /// insert", `condition` one on the row `new`, or empty.
    void Break(const std::string& table, const std::string& event, const std::string& condition = "");
    void Mend(const std::string& table);
    /// The rows of a selection of one text column.
    std::vector<std::string> Texts(const std::string& selection);
    int Count(const std::string& table);
    /// The rows of a table for which the condition holds: all columns but for `left`, each as a text.
    std::vector<std::string> RowsOf(const std::string& table, const std::string& condition,
                                    const std::string& left = "");
    int StatusOf(int number);
    /// Status and stamps of all appointments, all pre-sales and the audit, to compare before and after.
    std::vector<std::string> Everything();
    /// "APPOINTMENT PRICE STATUS MOMENT" of every pre-sale.
    std::vector<std::string> PreSales();
    /// "TABLE KEY OPERATION BEFORE AFTER" of every line.
    std::vector<std::string> Audit();

    DeskHost desk_{host_.DataSource()};
};

} // namespace kova::family::test
