#pragma once

#include "family/registers/description/register.hpp"
#include "family/users/user_rights.hpp"
#include "registers/desk.hpp"
#include "registers/record_actions.hpp"
#include "registers/record_form.hpp"

#include <QWidget>

#include <memory>

class QLabel;

namespace kova::registers {

class RowButtons;
class FormDraft;
class FormPages;
class RowSaving;
class SearchPane;

/// One register: a list that searches as one types, and beside it the form of the row that is marked.
class RegisterScreen : public QWidget {
public:
    using Register = family::registers::Register;

    /// Of `actions` it offers those of its register.
    RegisterScreen(const Register& of, const Desk& desk, const RecordActions& actions, QWidget* parent);
    ~RegisterScreen() override;

    /// Whether something is typed that was not saved.
    bool IsChanged() const;
    /// Where something is typed that was not saved: asks what becomes of it. False where the user stays with
    /// it.
    bool MayLeave();
    /// Asks about what was typed when the program ended without a word, where there is such.
    void OfferDraft();

    void New();
    void Save();
    /// Back to what is stored.
    void Discard();
    void Remove();
    void FocusSearch();
    /// Shows what is stored now; what is typed and not saved stays.
    void Refresh();
    /// Shows the inactive rows, too, or leaves them out again.
    void TurnInactive();
    /// To the next page of the form.
    void TurnPage();
    /// Whoever is at the desk lacks those rights from now on: what he may not do is shut, and says why.
    void LookAtRights(const family::DeniedRights& denied);

private:
    void Find();
    /// The row is shown in the form; a form that is changed is asked about first.
    void TurnTo(family::Key key);
    void ShowRow(family::Key key);
    void ShowNew();
    void FocusForm();
    void ShowSaved(const family::registers::SaveAnswer& answer);
    /// What the user has picked behind "Mais...".
    void Run(const RecordAction& action);
    void Tell(const QString& text);
    void OfferButtons();
    /// Offers rows that many shops have.
    void Suggest();
    void LayOut();
    void Connect();
    bool event(QEvent* event) override;

    const Register& register_;
    const Desk& desk_;
    SearchPane* search_;
    QLabel *title_, *told_;
    RecordForm* form_;
    FormPages* pages_;
    FormDraft* draft_;
    std::unique_ptr<RowSaving> saving_;
    RowButtons* buttons_;
};

} // namespace kova::registers
