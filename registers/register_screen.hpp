#pragma once

#include "family/users/user_rights.hpp"
#include "registers/desk.hpp"
#include "registers/record_actions.hpp"
#include "registers/record_form.hpp"
#include "registers/row_model.hpp"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QTableView;

namespace kova::screens {
class SearchBox;
}

namespace kova::registers {

class FormDraft;
class FormPages;
class MoreButton;

/// One register: a list that searches as one types, and beside it the form of the row that is marked.
class RegisterScreen : public QWidget {
public:
    using Register = family::registers::Register;

    /// Of `actions` it offers those of its register.
    RegisterScreen(const Register& of, const Desk& desk, const RecordActions& actions, QWidget* parent);

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
    family::registers::Listed WhichRows() const;
    /// How many were found, and what there is to do where none was.
    QString Found() const;
    /// The row is shown in the form; a form that is changed is asked about first.
    void TurnTo(family::Key key);
    void ShowRow(family::Key key);
    void ShowNew();
    void MarkRow(family::Key key);
    bool MayBeSaved();
    void ShowAnswer(const family::registers::SaveAnswer& answer);
    void FocusForm();
    /// Goes on from the search to the form of the row that is marked.
    void OpenFound();
    void Refuse(std::span<const family::registers::RefusedField> refused);
    void ShowSaved(const family::registers::SaveAnswer& answer);
    /// Whether it was saved.
    bool SaveRow();
    /// Where the row may be there already: asks, and shows that one where the user wants it.
    bool IsNoDouble();
    /// What the user has picked behind "Mais...".
    void Run(const RecordAction& action);
    void Tell(const QString& text);
    void OfferButtons();
    /// Why nothing may be written here, and no row added; empty where that may be.
    QString WhyNotWritten() const;
    QString WhyNothingNew() const;
    QString TitleOfNew() const;
    /// Offers rows that many shops have.
    void Suggest();
    void LayOut();
    void Connect();
    /// Runs what needs the database and tells what it reports. False where it failed.
    bool Try(const std::function<void()>& act);
    bool event(QEvent* event) override;
    QString NameOf(family::Key key) const;

    const Register& register_;
    const Desk& desk_;
    RowModel* rows_;
    screens::SearchBox* search_;
    QCheckBox* inactive_;
    QTableView* list_;
    QLabel *found_, *title_, *told_;
    RecordForm* form_;
    FormPages* pages_;
    FormDraft* draft_;
    QPushButton *new_, *save_, *discard_, *remove_;
    MoreButton* more_;
    /// Null where there is nothing to suggest.
    QPushButton* suggest_ = nullptr;
    family::DeniedRights denied_;
    /// The list follows the form and not the other way round.
    bool isMarking_ = false;
};

} // namespace kova::registers
