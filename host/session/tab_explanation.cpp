#include "host/session/tab_explanation.hpp"

#include "toolkits/qt/look/theme.hpp"

#include <QLabel>

namespace kova::host {

QWidget* ExplanationInTab(const QString& what, const std::string& why, QWidget& parent)
{
    constexpr int Margin = 80;
    auto* label = new QLabel(what + QStringLiteral("\n\n") + qt::Lines(why)
                                 + QStringLiteral("\n\nCorrija a causa e abra o programa novamente."),
                             &parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setMargin(Margin);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace kova::host
