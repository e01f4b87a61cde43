#pragma once

#include "agenda/contracts/platform.hpp"
#include "host/session/news_of_desks.hpp"

#include <QObject>
#include <QTimer>

#include <optional>
#include <string>

namespace kova::toolkit {
class FormModel;
class GridModel;
class ToolkitModel;
} // namespace kova::toolkit

namespace kova::host {

class HeardComponents;
class MainWindow;

/// Says above the day's list how often others have changed the day since the list has read it; where nobody
/// else has, how often other areas of this window have. The list
/// itself stays as it is until whoever works with it has it read the day anew, by Ctrl+R or a press of what
/// is said; he finds himself at the appointment at which he was. While a form or a box is open it waits. The
/// agenda knows nothing of it: it is driven through the controls of its list.
class DayListNews : public QObject {
public:
    /// All but the window, in which it ends, must outlive it.
    DayListNews(toolkit::ToolkitModel& toolkit, const Clock& clock, NewsOfDesks& news, MainWindow& window);

    /// `components` are those that the agenda selects with.
    void Hear(HeardComponents& components);

private:
    /// Where somebody is in the list.
    struct Place {
        /// Of the appointment whose row he has reached; "" where he has reached none.
        std::string number;
        double firstOfPage = 0;
    };

    toolkit::FormModel* List() const;
    /// Whether the list is what selects appointments now, and not a form above it.
    bool IsListSelecting() const;
    void Selected(const std::string& day);
    void Count(const DeskNews& news);
    bool IsSomethingOpen() const;
    void Show();
    void Reload();
    static Place PlaceIn(const toolkit::FormModel& list);
    static void GoBack(const toolkit::FormModel& list, const Place& place);

    toolkit::ToolkitModel& toolkit_;
    const Clock& clock_;
    NewsOfDesks& news_;
    MainWindow& window_;
    /// The day that the list shows; none before it has read one.
    std::optional<Date> day_;
    /// Of others, and of other areas of this window, which the list has not read either.
    int changes_ = 0, ownChanges_ = 0;
    /// Runs while there is something to be said later.
    QTimer* waiting_;
};

} // namespace kova::host
