#pragma once

#include "family/business/places/free_places.hpp"
#include "timetable/desk.hpp"

#include <QDialog>

#include <optional>
#include <vector>

class QComboBox;
class QDateEdit;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace kova::timetable {

/// What is known before the search begins; 0 and nothing for what is not.
struct PlaceQuestion {
    family::Key service = 0, employee = 0;
    std::optional<Date> from{};
};

/// A place that the user has chosen for a service.
struct ChosenPlace {
    family::Key service = 0;
    family::FreePlace place;
    /// How many times it is booked, and how many weeks lie between two of them.
    int sessions = 1, weeks = 1;
};

/// "Próximo horário livre": the next places at which there is room for a service, which are looked for anew
/// whenever something of the question changes. Enter takes the one that is marked.
class FreePlaceDialog : public QDialog {
public:
    FreePlaceDialog(Desk desk, const PlaceQuestion& question, QWidget* parent);

    /// Nothing before the dialog was accepted.
    const std::optional<ChosenPlace>& Chosen() const { return chosen_; }

private:
    QWidget* MakeQuestion();
    QWidget* MakeButtons();
    void FillServices(family::Key chosen);
    void FillEmployees(family::Key chosen);
    void TakeService();
    void Find();
    family::PlaceWish Wish() const;
    int Weeks() const;
    QString Told(const family::FreePlace& place) const;
    void Take();

    /// A service that is offered.
    struct Service {
        family::Key code = 0;
        QString name;
        int minutes = 0, sessions = 1;
    };

    const Desk desk_;
    std::vector<Service> services_;
    std::vector<family::FreePlace> places_;
    std::optional<ChosenPlace> chosen_;
    QComboBox *service_, *employee_, *part_, *every_;
    QSpinBox *minutes_, *sessions_, *count_;
    QDateEdit* from_;
    QListWidget* found_;
    QLabel* told_;
    QPushButton* take_;
};

} // namespace kova::timetable
