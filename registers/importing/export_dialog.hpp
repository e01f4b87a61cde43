#pragma once

#include "registers/importing/file_desk.hpp"

#include <QDialog>

#include <memory>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace kova::family::csv {
struct Register;
}

namespace kova::screens {
class FieldFrame;
}

namespace kova::registers {

class BackgroundJob;

/// Writes a register to a new file for a spreadsheet. The work runs beside the window, and can be cancelled.
class ExportDialog : public QDialog {
public:
    ExportDialog(FileDesk desk, std::string_view registerName, QWidget* parent);
    ~ExportDialog() override;

    /// Ends work that is under way first; then closes.
    void reject() override;

private:
    void LayOut();
    void ChooseFile();
    void Write();
    void ShowWritten(long long records, const std::string& failure);

    FileDesk desk_;
    const family::csv::Register& register_;
    QLineEdit* path_;
    screens::FieldFrame* frame_;
    QLabel* told_;
    QProgressBar* progress_;
    QPushButton *choose_, *export_, *cancel_;
    BackgroundJob* job_;
};

} // namespace kova::registers
