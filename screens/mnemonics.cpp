#include "screens/mnemonics.hpp"

#include <QSet>

namespace kova::screens {

namespace {

bool CanLead(QChar letter) { return letter >= QLatin1Char('a') && letter <= QLatin1Char('z'); }

} // namespace

QStringList WithMnemonics(const QStringList& labels, const QString& taken)
{
    QSet<QChar> used;
    for (const QChar letter : taken)
        used.insert(letter.toLower());
    QStringList marked;
    for (const QString& label : labels) {
        qsizetype at = 0;
        while (at < label.size() && (!CanLead(label[at].toLower()) || used.contains(label[at].toLower())))
            ++at;
        if (at < label.size())
            used.insert(label[at].toLower());
        marked += at < label.size() ? QString(label).insert(at, QLatin1Char('&')) : label;
    }
    return marked;
}

} // namespace kova::screens
