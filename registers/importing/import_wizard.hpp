#pragma once

#include "family/csv/importing.hpp"
#include "family/registers/import_undo.hpp"
#include "registers/importing/file_desk.hpp"

#include <QDialog>

#include <functional>
#include <memory>

class QHBoxLayout;
class QPushButton;
class QStackedWidget;

namespace kova::registers {

class BackgroundJob;
class CheckPage;
class FilePage;

/// Brings a file of a spreadsheet into a register: which file, how it was understood, what is wrong with it
/// or what it would do, and only then the writing, with the way back. The work runs beside the window, and
/// can be cancelled.
class ImportWizard : public QDialog {
public:
    ImportWizard(FileDesk desk, std::string_view registerName, QWidget* parent);
    ~ImportWizard() override;

    /// The shop's registers stand otherwise than before.
    std::function<void()> onWritten = [] {};

    /// Ends work that is under way first; then closes.
    void reject() override;

private:
    QPushButton* AddButton(QHBoxLayout& row, const QString& name, const QString& text,
                           void (ImportWizard::*act)());
    void Back();
    void Check();
    void Write();
    void Undo() { TakeBack(family::registers::ChangedRows::Refuse); }
    void UndoRest() { TakeBack(family::registers::ChangedRows::Keep); }
    void TakeBack(family::registers::ChangedRows changed);

    void ShowChecked(const std::string& failure);
    void ShowWritten(const std::string& failure);
    void ShowTakenBack(const std::string& failure);
    /// Tells the page, from the thread of the work.
    family::csv::ImportWatch WatchFrom(std::stop_token stop);
    void BeginWork(const QString& what);
    /// These alone can be pressed beside the last one, which cancels or closes; Enter presses the first of
    /// them, or closes where all is done.
    void Offer(std::initializer_list<QPushButton*> buttons);

    FileDesk desk_;
    QStackedWidget* pages_;
    FilePage* file_;
    CheckPage* check_;
    BackgroundJob* job_;
    QPushButton *back_, *checks_, *import_, *undo_, *undoRest_, *cancel_;

    /// What the work that is under way, or was last, is about. The thread alone writes into them until it is
    /// over.
    std::shared_ptr<const family::csv::ImportOrder> order_;
    std::shared_ptr<family::csv::ImportReport> report_;
    std::shared_ptr<std::vector<family::csv::Problem>> problems_;
    std::shared_ptr<family::registers::UndoneImport> undone_;
    /// Of the import that was written.
    family::Key number_ = 0;
};

} // namespace kova::registers
