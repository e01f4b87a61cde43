#pragma once

#include "family/presentation/labels/label_desk.hpp"
#include "family/presentation/labels/label_output.hpp"
#include "family/presentation/labels/label_pages.hpp"
#include "reports/qt/font_metrics.hpp"
#include "tests/support/pdf_text.hpp"
#include "tests/support/qt_application.hpp"
#include "toolkits/headless/toolkit.hpp"

#include <gtest/gtest.h>

#include <QPrinter>
#include <QTemporaryDir>

namespace kova::family::test {

/// A desktop whose user answers what a test says.
class ScriptedDesk : public LabelDesk {
public:
    using LabelDesk::LabelDesk;

    /// "" is a user who thinks better of it.
    QString path;
    QString printTo;
    bool hasPrinter = true;
    QPageSize::PageSizeId otherPaper = QPageSize::Custom;

    QString proposal;
    int asked = 0;

    QString AskPdfPath(QWidget*, const QString& proposed) override
    {
        ++asked;
        proposal = proposed;
        return path;
    }
    bool HasPrinter() const override { return hasPrinter; }
    bool ChoosePrinter(QWidget*, QPrinter& printer, std::size_t, bool) override
    {
        ++asked;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(printTo);
        if (otherPaper != QPageSize::Custom)
            printer.setPageSize(QPageSize(otherPaper));
        return !printTo.isEmpty();
    }
};

/// Addresses, files, and a headless toolkit that takes the messages.
class LabelTest : public testing::Test {
protected:
    LabelTest() { kova::test::NeedApplication(); }

    static PostalAddress Jose()
    {
        return {.nickname = "Zé",
                .name = "José Antônio Peçanha",
                .street = "Rua do Ipê",
                .number = "110",
                .complement = "Apto. 3",
                .district = "Céu Azul",
                .town = "Vale Sereno",
                .state = "SP",
                .postalCode = "00456789"};
    }

    static reports::Document PagesOf(const char* key, int first, int copies)
    {
        reports::Document pages =
            LabelPages({&LabelSheetOf(key), first, copies}, LinesOf(Jose(), false), paper::FontMetrics());
        pages.title = "Etiqueta de endereço - José";
        return pages;
    }

    QString File(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }

    /// The words of a PDF in their order, a bar between sheets.
    static std::string TextOf(const QString& path)
    {
        std::string text;
        for (const std::string& page : kova::test::PdfPages(path))
            text += (text.empty() ? "" : " | ") + page;
        return text;
    }

    static constexpr const char* LabelText =
        "José Antônio Peçanha Rua do Ipê, 110 - Apto. 3 Céu Azul Vale Sereno/SP CEP 00456-789";

    QTemporaryDir folder_;
    headless::HeadlessToolkit toolkit;
};

} // namespace kova::family::test
