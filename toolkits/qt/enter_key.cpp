#include "toolkits/qt/enter_key.hpp"

#include <QVariant>
#include <QWidget>

namespace kova::qt {

namespace {

constexpr const char* KeepsEnterProperty = "kovaKeepsEnter";

} // namespace

void KeepEnter(QWidget& widget) { widget.setProperty(KeepsEnterProperty, true); }

bool KeepsEnter(const QWidget& widget) { return widget.property(KeepsEnterProperty).toBool(); }

} // namespace kova::qt
