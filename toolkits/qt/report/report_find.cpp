#include "toolkits/qt/report/report_find.hpp"

#include "reports/pages.hpp"
#include "toolkits/qt/look/theme.hpp"

namespace kova::qt {

namespace {

/// A text as it is compared: letters without accents, in one case.
QString Folded(const QString& text)
{
    QString folded;
    const QString apart = text.normalized(QString::NormalizationForm_D);
    for (const QChar character : apart) {
        if (character.category() != QChar::Mark_NonSpacing)
            folded += character;
    }
    return folded.toCaseFolded();
}

} // namespace

std::vector<ReportMatch> FindInReport(const reports::Document& document, const QString& wanted)
{
    std::vector<ReportMatch> matches;
    const QString pattern = Folded(wanted);
    if (pattern.isEmpty())
        return matches;
    for (std::size_t page = 0; const reports::Page& sheet : document.pages) {
        for (std::size_t item = 0; const reports::Item& each : sheet.items) {
            if (Folded(FromText(each.text)).contains(pattern))
                matches.push_back({page, item});
            ++item;
        }
        ++page;
    }
    return matches;
}

} // namespace kova::qt
