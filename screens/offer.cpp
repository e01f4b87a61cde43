#include "screens/offer.hpp"

#include <QAction>
#include <QVariant>
#include <QWidget>

namespace kova::screens {

namespace {

/// What is told while nothing is denied, as long as something is.
constexpr const char* UsualTip = "kovaUsualTip";

QString TipOf(const QWidget& button) { return button.toolTip(); }
/// An entry that has none tells its text.
QString TipOf(const QAction&) { return {}; }

/// Answers whether something was to be changed.
template <class Thing> bool Explain(Thing& thing, bool isOffered, const QString& why)
{
    thing.setEnabled(isOffered && why.isEmpty());
    const QVariant usual = thing.property(UsualTip);
    if (why.isEmpty() && !usual.isValid())
        return false;
    if (!usual.isValid())
        thing.setProperty(UsualTip, TipOf(thing));
    thing.setToolTip(why.isEmpty() ? usual.toString() : why);
    if (why.isEmpty())
        thing.setProperty(UsualTip, QVariant());
    return true;
}

} // namespace

void Offer(QWidget& button, bool isOffered, const QString& why)
{
    if (Explain(button, isOffered, why))
        button.setAccessibleDescription(why);
}

void Offer(QAction& entry, bool isOffered, const QString& why)
{
    if (Explain(entry, isOffered, why))
        entry.setStatusTip(why);
}

} // namespace kova::screens
