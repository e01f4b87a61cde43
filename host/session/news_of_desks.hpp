#pragma once

#include "agenda/contracts/business_services.hpp"
#include "family/data/audit/days_of_news.hpp"

#include <QObject>
#include <QPointer>

#include <chrono>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kova::host {

class NewsListener;

/// Who has written a line of the audit: not this program, the agenda by its components, or another area of
/// the window.
enum class Writer { Another, Agenda, OtherArea };

/// Of a line about that appointment, in the audit of the shop at that source. Fails with a Failure where the
/// components cannot be asked.
Writer WriterOf(ComponentService& components, const std::string& source, family::Key line,
                family::Key number);

/// That an appointment was added, changed or deleted.
struct AppointmentNews {
    family::Key number = 0;
    /// By this program, whoever was at the desk; what another window on this computer writes is not.
    bool isOwn = false;
    /// By the agenda, whose list has read it since.
    bool isByAgenda = false;
    /// When it was before, where it was there, and when it is from then on, where it is there; once where it
    /// has stayed.
    std::vector<family::DaysOfAppointment> days;

    /// Days are "yyyy-mm-dd".
    bool IsOn(std::string_view day) const;
    bool BeginsOn(std::string_view day) const;

    bool operator==(const AppointmentNews&) const = default;
};

/// What was written into the shop's data, in the order in which it was kept, by this desk or by another.
struct DeskNews {
    std::vector<AppointmentNews> appointments;
    /// Of which something else than appointments was written.
    std::set<std::string> otherTables;

    bool operator==(const DeskNews&) const = default;
};

/// Tells the areas of the window what is written into the shop's data, on a server at once and in a file
/// within a second; the window waits for neither. A desk that has lost the server tries again, less often
/// each time, and is then told all that it has missed.
class NewsOfDesks {
public:
    /// Who has written that line of the audit, about that appointment. Asked in the window's thread, of lines
    /// of this computer alone.
    using AskWriter = std::function<Writer(family::Key line, family::Key number)>;
    using Hear = std::function<void(const DeskNews& news)>;

    NewsOfDesks(std::string source, AskWriter writer);
    ~NewsOfDesks();
    NewsOfDesks(const NewsOfDesks&) = delete;
    NewsOfDesks& operator=(const NewsOfDesks&) = delete;

    /// Runs `hear` in the window's thread with what is written from now on, as long as `area` is there. It
    /// may come while a form or a box is open, from within its event loop, or while the agenda selects a day.
    void Follow(QObject& area, Hear hear);

    /// Listens from now on.
    void Begin();
    /// Tells nobody anything any more.
    void End();

    /// Tells what was written until now before it returns, so that what is told afterwards is newer than what
    /// is read next. Waits no longer than that, and not at all where the server is lost.
    void CatchUp(std::chrono::milliseconds patience = std::chrono::milliseconds(50));

private:
    struct Follower {
        QPointer<QObject> area;
        Hear hear;
    };

    void Tell();
    DeskNews Judged(const std::vector<family::NewsOfRow>& rows) const;
    Writer WriterOfRow(const family::NewsOfRow& row) const;

    const std::string source_;
    const AskWriter writer_;
    std::vector<Follower> followers_;
    /// What the listener's thread posts comes here, and nowhere once this has gone.
    QObject here_;
    std::unique_ptr<NewsListener> listener_;
};

} // namespace kova::host
