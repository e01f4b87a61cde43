#pragma once

#include "family/data/stores/waiting_list.hpp"
#include "waiting/desk.hpp"

#include <QDialog>

#include <array>
#include <optional>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLineEdit;
class QListWidget;
class QTableView;
class QTimeEdit;

namespace kova::registers {
class RowModel;
}

namespace kova::screens {
class RefusalLabel;
class SearchBox;
} // namespace kova::screens

namespace kova::waiting {

/// One of those who wait: the customer and the animal, any of which services, with whom, and which days and
/// hours would do. What is refused is told with its reason, and nothing that was typed is lost.
class EntryDialog : public QDialog {
public:
    /// Without an entry a new one.
    EntryDialog(const Desk& desk, std::optional<family::WaitingEntry> entry, QWidget* parent);

    /// Who waits now, for the user.
    const QString& Saved() const { return saved_; }

private:
    QWidget* MakeWho();
    QWidget* MakeWhat();
    QWidget* MakeWhen();
    void LayOut();
    void Fill();
    void FillChoices();
    void FindCustomers();
    void TakeCustomer();
    family::WaitingEntry Typed() const;
    void Save();
    void Refuse(const std::string& field, const QString& text);

    const Desk& desk_;
    family::WaitingEntry entry_;
    QString saved_;
    registers::RowModel* customers_;
    screens::SearchBox* search_;
    QTableView* found_;
    QComboBox* animal_;
    QListWidget *services_, *employees_;
    QDateEdit *from_, *until_;
    std::array<QCheckBox*, 7> weekdays_{};
    QTimeEdit *begin_, *end_;
    QLineEdit* remark_;
    screens::RefusalLabel* refusal_;
};

} // namespace kova::waiting
