#include "tests/unit/toolkits/qt/report/report_preview_fixture.hpp"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QWheelEvent>

namespace kova::qt::test {

QString ScriptedDesk::AskPdfPath(QWidget*, const QString& proposed)
{
    ++asked;
    proposal = proposed;
    return path;
}

bool ScriptedDesk::ChoosePrinter(QWidget*, QPrinter& printer, std::size_t, bool)
{
    ++asked;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(printTo);
    return !printTo.isEmpty();
}

void ScriptedDesk::Tell(QWidget*, MessageKind, const QString& text) { told += text.toStdString(); }

Preview::Preview()
{
    window_.show();
    Settle();
}

void Preview::Press(int key, Qt::KeyboardModifiers modifiers)
{
    QWidget* target = window_.focusWidget() ? window_.focusWidget() : &window_;
    test::Press(target, key, QString(), modifiers);
}

void Preview::Wheel(int turn, Qt::KeyboardModifiers modifiers)
{
    QWidget* target = Canvas().viewport();
    const QPointF place(50, 50);
    QWheelEvent event(place, target->mapToGlobal(place), QPoint(), QPoint(0, turn), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

QAbstractButton* Preview::Button(const char* name) const
{
    return window_.findChild<QAbstractButton*>(QString::fromLatin1(name));
}

std::string Preview::Label(const char* name) const
{
    return window_.findChild<QLabel*>(QString::fromLatin1(name))->text().toStdString();
}

QLineEdit* Preview::Search() const { return window_.findChild<QLineEdit*>(QStringLiteral("localizar")); }

} // namespace kova::qt::test
