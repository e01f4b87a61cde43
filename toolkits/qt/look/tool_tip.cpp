#include "toolkits/qt/look/tool_tip.hpp"

#include "toolkits/qt/look/theme.hpp"

#include <QStringList>

namespace kova::qt {

QString ToolTipOf(const Text& text)
{
    constexpr int longestLine = 60;
    QString lines;
    qsizetype length = 0;
    for (const QString& line : Lines(text).split(QLatin1Char('\n'))) {
        if (!lines.isEmpty())
            lines += QLatin1Char('\n');
        length = 0;
        for (const QString& word : line.split(QLatin1Char(' '))) {
            const bool breaks = length + 1 + word.size() > longestLine;
            if (length > 0)
                lines += breaks ? QLatin1Char('\n') : QLatin1Char(' ');
            lines += word;
            length = breaks ? word.size() : length + word.size() + (length > 0 ? 1 : 0);
        }
    }
    return lines;
}

} // namespace kova::qt
