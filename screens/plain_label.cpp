#include "screens/plain_label.hpp"

#include <QLabel>

namespace kova::screens {

QLabel* MakePlainLabel(const QString& name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace kova::screens
