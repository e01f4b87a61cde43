#include "screens/refusal_label.hpp"

#include "screens/scrolled_body.hpp"
#include "toolkits/qt/look/theme.hpp"

namespace kova::screens {

RefusalLabel::RefusalLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    ColourAsRefusal(*this);
    hide();
}

void RefusalLabel::Show(const QString& reason)
{
    setText(reason);
    setVisible(!reason.isEmpty());
}

void RefusalLabel::Tell(const QString& reason)
{
    Show(reason);
    if (!reason.isEmpty())
        RevealInBody(*this);
}

// Which of the two colours counts follows from the ground that the label lies on.
void ColourAsRefusal(QLabel& label)
{
    QPalette colours = label.palette();
    colours.setColor(QPalette::WindowText, qt::look::Refusal);
    colours.setColor(QPalette::Text, qt::look::Refusal);
    label.setPalette(colours);
}

} // namespace kova::screens
