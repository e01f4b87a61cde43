#pragma once

#include "family/presentation/error_report.hpp"

#include <QDialog>

class QLabel;
class QLayout;
class QPlainTextEdit;
class QVBoxLayout;

namespace kova::family {

/// The error screen: number, description and place in full, with a button that copies them and one that
/// closes. Enter and Escape close.
class ErrorWindow : public QDialog {
public:
    explicit ErrorWindow(const ErrorReport& report, QWidget* parent = nullptr);

    /// Puts all four texts on the clipboard and says so in the window.
    void CopyReport();

private:
    QLayout* MakeHeading();
    void AddField(QVBoxLayout& layout, const QString& title, const Text& text, const QString& objectName);
    QLayout* MakeButtons();
    void PaintWhite();

    ErrorReport report_;
    QLabel* copied_ = nullptr;
};

} // namespace kova::family
