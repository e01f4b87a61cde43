#pragma once

#include "family/registers/description/related_list.hpp"
#include "registers/desk.hpp"

#include <QWidget>

#include <functional>

class QComboBox;
class QLabel;
class QTableView;

namespace kova::registers {

class RowModel;

/// What belongs to the row on show of a register, to be looked at. It is read when it comes to be seen.
class RelatedPanel : public QWidget {
public:
    RelatedPanel(const family::registers::RelatedList& of, const Desk& desk, QWidget* parent);

    /// Of that row from now on; 0 is none.
    void Show(family::Key key);
    void ShowPrices(bool areShown);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Read();
    void OfferChoices();
    void Find();
    void Tell(int count);
    /// Tells what the database reports in the place of the rows.
    void Try(const std::function<void()>& read);

    const family::registers::RelatedList& list_;
    const Desk& desk_;
    RowModel* rows_;
    QLabel* choiceName_;
    QComboBox* choice_;
    QTableView* table_;
    QLabel* told_;
    family::Key key_ = 0;
    bool isRead_ = false;
};

} // namespace kova::registers
