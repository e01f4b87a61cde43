#pragma once

#include "family/registers/customers/customer_merge.hpp"
#include "registers/record_actions.hpp"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;
class QTableView;

namespace kova::screens {
class RefusalLabel;
class SearchBox;
} // namespace kova::screens

namespace kova::registers {

class RowModel;

/// "Unir com outro cadastro...": looks for the customer who is the same as the one on show, tells what a
/// merge of the two does, and does it. The one on show goes on.
class MergeDialog : public QDialog {
public:
    MergeDialog(const ActionTarget& target, QWidget* parent);

    /// What was done; "" where nothing was.
    const QString& Done() const { return done_; }

private:
    void LayOut();
    void Find();
    /// Shows what a merge with the marked customer does.
    void Plan();
    void ShowAlike();
    void Merge();
    std::vector<family::registers::AlikeAnimals> Joined() const;
    void ShowAnswer(const family::registers::MergeAnswer& answer);
    /// Tells what the database reports.
    void Try(const std::function<void()>& act);

    const Desk& desk_;
    const family::Key kept_;
    RowModel* rows_;
    screens::SearchBox* search_;
    QTableView* list_;
    QLabel *plan_, *alikeTitle_;
    QListWidget* alike_;
    screens::RefusalLabel* failure_;
    QPushButton* merge_;
    std::optional<family::registers::CustomerMerge> planned_;
    QString done_;
};

/// The entry of the customers' menu.
RecordAction MergeAction();

} // namespace kova::registers
