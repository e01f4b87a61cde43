#include "toolkits/qt/look/laid_out_text.hpp"

#include <QFont>
#include <QHash>

namespace kova::qt {

namespace {

// The labels of many rows; beyond it the oldest are only in the way.
constexpr qsizetype MostTexts = 2048;

/// What tells the product's fonts apart; a font as a whole is slow to hash.
struct Key {
    QString text;
    QString family;
    int pixels = 0;
    bool bold = false;

    friend bool operator==(const Key&, const Key&) = default;
};

std::size_t qHash(const Key& key, std::size_t seed)
{
    return qHashMulti(seed, key.text, key.pixels, key.bold);
}

} // namespace

const QStaticText& LaidOutText(const QString& text, const QFont& font)
{
    static QHash<Key, QStaticText> texts;
    const Key key{text, font.family(), font.pixelSize(), font.bold()};
    const auto known = texts.constFind(key);
    if (known != texts.constEnd())
        return *known;
    if (texts.size() >= MostTexts)
        texts.clear();
    // The layout breaks lines at separators only.
    QStaticText made(QString(text).replace(QLatin1Char('\n'), QChar::LineSeparator));
    made.setTextFormat(Qt::PlainText);
    made.prepare(QTransform(), font);
    return *texts.insert(key, made);
}

} // namespace kova::qt
