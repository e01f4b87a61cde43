#include "toolkits/qt/look/apply_look.hpp"

#include "toolkits/qt/look/flat_style.hpp"

#include <QApplication>
#include <QPalette>

namespace kova::qt {

void ApplyLook(QApplication& application, Look look)
{
    CurrentLook(look);
    application.setStyle(new FlatStyle);
    application.setPalette(CurrentPalette());
    application.setFont(MakeFont("Arial", 9.75));
}

} // namespace kova::qt
