#pragma once

#include "family/presentation/error_report.hpp"

#include <QDialog>

class QGridLayout;
class QLabel;
class QLayout;
class QPlainTextEdit;

namespace kova::family {

/// The error screen: what has happened, what to look at and what to do, and below, small, the failure's
/// number, description and place. What engines and libraries have said stands only in what a button copies.
/// Enter and Escape close.
class ErrorWindow : public QDialog {
public:
    explicit ErrorWindow(const ErrorReport& report, QWidget* parent = nullptr);

    /// Puts all four texts on the clipboard, in full, and says so in the window.
    void CopyReport();

private:
    QLayout* MakeHeading();
    QLayout* MakeValues();
    void AddValue(QGridLayout& grid, const QString& title, const Text& text, const QString& objectName);
    /// A text that can be selected and scrolled, as high as it needs to be up to that many lines.
    QPlainTextEdit* MakeText(const Text& text, const QString& objectName, int width, int mostLines);
    QLayout* MakeButtons();

    ErrorReport report_;
    QLabel* copied_ = nullptr;
};

} // namespace kova::family
