#pragma once

#include "tests/unit/reports/qt/report_samples.hpp"
#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/report/report_desk.hpp"
#include "toolkits/qt/report/report_preview.hpp"

#include <QAbstractButton>

class QLineEdit;

namespace kova::qt::test {

/// A desktop whose user answers what a test says.
class ScriptedDesk final : public ReportDesk {
public:
    /// "" is a user who thinks better of it.
    QString path;
    QString printTo;
    bool hasPrinter = true;

    QString proposal;
    int asked = 0;
    std::string told;
    /// Titles and files of what was printed or saved.
    std::vector<std::string> gone;

    QString AskPdfPath(QWidget* over, const QString& proposed) override;
    bool HasPrinter() const override { return hasPrinter; }
    bool ChoosePrinter(QWidget* over, QPrinter& printer, std::size_t pages, bool hasCurrentPage) override;
    void Tell(QWidget* over, MessageKind kind, const QString& text) override;
    void Gone(QWidget*, const reports::Document& document, const QString& file) override
    {
        gone.push_back(document.title + "|" + file.toStdString());
    }
};

/// The preview of a list of 30 appointments.
class Preview : public QtTest {
protected:
    Preview();

    ReportPreview& Window() { return window_; }
    ScriptedDesk& Desk() { return desk_; }
    const ReportCanvas& Canvas() const { return window_.Canvas(); }
    std::size_t Pages() const { return document_.pages.size(); }

    /// A key, to whatever has the focus.
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Wheel(int turn, Qt::KeyboardModifiers modifiers);
    QAbstractButton* Button(const char* name) const;
    void Click(const char* name) { Button(name)->click(); }
    std::string Label(const char* name) const;
    QLineEdit* Search() const;

private:
    const reports::Document document_ = LaidOut(NumberedList(30));
    ScriptedDesk desk_;
    ReportPreview window_{document_, desk_, Date{2026, 11, 20}, nullptr};
};

} // namespace kova::qt::test
