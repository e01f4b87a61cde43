#include "toolkits/qt/laid_out_text.hpp"

#include <QFont>
#include <QHash>

#include <utility>

namespace kova::qt {

namespace {

// The labels of many rows; beyond it the oldest are only in the way.
constexpr qsizetype MostTexts = 2048;

} // namespace

const QStaticText& LaidOutText(const QString& text, const QFont& font)
{
    static QHash<std::pair<QString, QFont>, QStaticText> texts;
    const std::pair<QString, QFont> key(text, font);
    const auto known = texts.constFind(key);
    if (known != texts.constEnd())
        return *known;
    if (texts.size() >= MostTexts)
        texts.clear();
    QStaticText made(text);
    made.setTextFormat(Qt::PlainText);
    made.prepare(QTransform(), font);
    return *texts.insert(key, made);
}

} // namespace kova::qt
