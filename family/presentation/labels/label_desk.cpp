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

bool LabelDesk::Ask(const QString& text)
{
    return toolkit_.MessageBox(MessageKind::Question, BoxText(text), title_) == Reply::Yes;
}

} // namespace kova::family
