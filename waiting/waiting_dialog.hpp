#pragma once

#include "family/waiting/who_fits.hpp"
#include "waiting/desk.hpp"

#include <QDialog>

#include <optional>
#include <vector>

class QLabel;
class QPushButton;
class QStandardItemModel;
class QTableView;

namespace kova::waiting {

/// Somebody who waits, and the place that was found for him, where one was.
struct Waiter {
    family::WaitingEntry entry;
    std::optional<family::waiting::WaitingFit> fit{};
};

/// "Lista de espera": who waits for a place, the one first who has waited longest. Somebody is added,
/// changed, taken off when he gives up, and chosen to be booked, which whoever has opened the dialog does. Of
/// a place that was freed, those who could have it, each with his; nobody is added there.
class WaitingDialog : public QDialog {
public:
    WaitingDialog(Desk desk, QWidget* parent);
    WaitingDialog(Desk desk, const family::waiting::FreedPlace& freed, QWidget* parent);

    /// Who is to be booked; nothing where the dialog was left.
    const std::optional<Waiter>& Chosen() const { return chosen_; }
    /// In the line below the list.
    void Tell(const QString& text);

private:
    WaitingDialog(Desk desk, std::optional<family::waiting::FreedPlace> freed, QWidget* parent);

    void LayOut();
    void Read();
    void Show();
    void Add();
    void Change();
    void GiveUp();
    void Book();
    std::size_t Marked() const;

    const Desk desk_;
    const std::optional<family::waiting::FreedPlace> freed_;
    std::vector<Waiter> rows_;
    std::optional<Waiter> chosen_;
    QStandardItemModel* cells_;
    QTableView* list_;
    QLabel* told_;
    QPushButton *add_, *change_, *giveUp_, *book_;
};

} // namespace kova::waiting
