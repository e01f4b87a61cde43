#pragma once

#include "agenda/contracts/platform.hpp"
#include "host/shell/main_window.hpp"
#include "host/timetable/agenda_screens.hpp"
#include "timetable/free_place_dialog.hpp"

#include <QObject>
#include <QPointer>

#include <memory>
#include <string>

class QWidget;

namespace kova::host {

/// "Próximo horário livre" (Ctrl+L) in the day's list, in the timetable and over an open record form. A place
/// that is chosen opens the form of a new appointment with it, or goes into the one that is open. It reads by
/// a connection of its own, which is opened when it is asked for the first time.
class FreePlaceFinder : public QObject {
public:
    /// All must outlive the window.
    FreePlaceFinder(std::string source, const Clock& clock, AgendaScreens& agenda);

    /// Its key in the list and the record form, and its entry in the menu.
    void AddTo(MainWindow& window);
    /// Shows the dialog over that widget and books what is chosen. Answers "", or for the user why nothing
    /// can be booked.
    std::string Find(QWidget& over, const timetable::PlaceQuestion& question);

    /// The same without booking; nothing where none was chosen.
    std::optional<timetable::ChosenPlace> Ask(QWidget& over, const timetable::PlaceQuestion& question);

    static const QString Name;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool IsMeant(const QObject* object) const;
    void FindForRecord(QWidget& over);
    void FindForList();

    const std::string source_;
    const Clock& clock_;
    AgendaScreens& agenda_;
    QPointer<MainWindow> window_;
    std::shared_ptr<family::Database> database_;
};

} // namespace kova::host
