#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>

#include <string>
#include <vector>

namespace kova::test {

/// What a program of the system writes; a test in which it fails fails.
inline QString OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The pages of a PDF: their words as they stand, with single blanks. `options` go to pdftotext.
inline std::vector<std::string> PdfPages(const QString& path, const QStringList& options = {})
{
    std::vector<std::string> pages;
    const QString text =
        OutputOf(QStringLiteral("pdftotext"), options + QStringList{path, QStringLiteral("-")});
    for (const QString& page : text.split(QLatin1Char('\f'), Qt::SkipEmptyParts))
        pages.push_back(page.simplified().toStdString());
    return pages;
}

} // namespace kova::test
