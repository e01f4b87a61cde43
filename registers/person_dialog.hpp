#pragma once

#include "registers/record_actions.hpp"

#include "family/privacy/anonymise.hpp"
#include "family/users/user_rights.hpp"

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace kova::screens {
class RefusalLabel;
}

namespace kova::registers {

class BackgroundJob;

/// What a customer can ask of the shop about his data: to get all of them, and to be made anonymous.
class PersonDialog : public QDialog {
public:
    PersonDialog(const Desk& desk, family::Key customer, QWidget* parent);

    /// Whether the customer was made anonymous.
    bool IsAnonymous() const { return isAnonymous_; }

    /// Ends work that is under way, and closes the dialog where there is none.
    void reject() override;

private:
    void AddExport(QVBoxLayout& layout);
    void AddAnonymising(QVBoxLayout& layout);
    void AddOutcome(QVBoxLayout& layout);
    QLabel* AddText(QVBoxLayout& layout, const QString& text);
    QPushButton* Button(const char* name, const QString& text);

    void ChooseFolder();
    void Export();
    void Anonymise();
    void ShowAnswer(const family::privacy::AnonymiseAnswer& answer);
    /// Runs in the background; `done` tells what has come of it where it has not failed.
    void Begin(std::function<void(const family::LongWork&)> act, std::function<void()> done);
    /// For the thread of the work.
    family::LongWork Followed(std::stop_token stop);
    void Offer();
    /// Why whoever is at the desk may not do it.
    QString Why(family::Right right) const;
    /// As high as its texts want it.
    void MakeRoom();

    const Desk& desk_;
    const family::Key customer_;
    /// Where the shop's data lie.
    const std::string source_;
    const family::DeniedRights denied_;
    QLineEdit *folder_, *code_;
    QPushButton *choose_, *export_, *anonymise_, *close_;
    QCheckBox* sameName_;
    QProgressBar* progress_;
    screens::RefusalLabel* failure_;
    QLabel* told_;
    BackgroundJob* job_;
    bool isAnonymous_ = false;
};

/// "Dados da pessoa..." of a customer.
RecordAction PersonAction();

} // namespace kova::registers
