#include "family/presentation/labels/label_desk.hpp"

namespace kova::family {

namespace {

/// With the line breaks that message boxes take.
Text BoxText(QString text) { return text.replace(QLatin1Char('\n'), QLatin1String("\r\n")).toStdString(); }

} // namespace

void LabelDesk::Tell(QWidget*, MessageKind kind, const QString& text)
{
    toolkit_.MessageBox(kind, BoxText(text), title_);
}

void LabelDesk::Gone(QWidget* over, const reports::Document& labels, const QString& file)
{
    const QString trouble = note_ ? note_(labels, file) : QString();
    if (!trouble.isEmpty())
        Tell(over, MessageKind::Critical,
             QStringLiteral("As etiquetas saíram, mas isso não pôde ser anotado na auditoria.\n\n")
                 + trouble);
}

bool LabelDesk::Ask(const QString& text)
{
    return toolkit_.MessageBox(MessageKind::Question, BoxText(text), title_) == Reply::Yes;
}

} // namespace kova::family
