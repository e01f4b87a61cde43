#pragma once

#include "family/data/engine/key.hpp"
#include "timetable/appointment_moves.hpp"
#include "timetable/commands.hpp"

#include <QWidget>

#include <functional>
#include <optional>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QTimer;

namespace kova::timetable {

class BlockModel;
class CommandMenu;
class TimetableView;
struct BlockShift;

/// "Horários": one day with a column for each employee, or one employee's week from Monday to Sunday, with
/// what is booked, closed and free. What can be done with an appointment or a place comes from outside, as
/// commands; moving an appointment and taking that back the page does itself.
class TimetablePage : public QWidget {
public:
    TimetablePage(Desk desk, Commands commands, QWidget* parent);
    ~TimetablePage() override;

    /// Reads everything anew; the cursor stays at its place.
    void Refresh();
    /// The same soon, once nobody is in the midst of something: no block is moved, and no form, box or menu
    /// is open. What is not on show is read when it is shown again.
    void RefreshSoon();
    /// The days on show.
    Date FirstDay() const;
    int Days() const;
    void ShowDay(Date date);
    Date Day() const;
    TimetableView& View() const { return *view_; }
    /// Shows the day, and the cursor on an appointment, where it is there.
    void ShowAppointment(family::Key number, Date date);
    /// What has been done, or why not: in a line of its own, which a screen reader says.
    void Tell(const QString& text);

    /// Why nothing may be moved, as a sentence; empty where it may.
    std::function<QString()> whyNotMoved = [] { return QString(); };

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* MakeBar();
    void AddShortcuts();
    void FillEmployees();
    void Step(int direction);
    void ShowToday();
    void BeginAtNow();
    void TellPlace();
    family::Key Employee() const;
    bool IsWeek() const { return Employee() != 0; }
    void Read();
    void RefreshIfIdle();
    std::optional<Target> Under() const;
    void Move(const BlockShift& shift);
    void TellShift(const std::optional<BlockShift>& shift);
    void TakeBack();
    void Show(const MoveOutcome& outcome);

    const Desk desk_;
    AppointmentMoves moves_;
    BlockModel* blocks_;
    TimetableView* view_;
    QDateEdit* day_;
    QComboBox *employee_, *step_;
    QCheckBox* cancelled_;
    bool wasShown_ = false;
    QTimer* soon_;
    QLabel *told_, *place_;
    CommandMenu* commands_;
};

} // namespace kova::timetable
