#include "toolkits/qt/report/report_desk.hpp"

#include "toolkits/qt/dialogs/message_box.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QWidget>

namespace kova::qt {

void ReportDesk::Tell(QWidget* over, MessageKind kind, const QString& text)
{
    ShowMessageBox(over, kind, ToText(text), ToText(over->windowTitle()));
}

} // namespace kova::qt
