// A day's list on paper: a thousand appointments laid out and written as PDF, against the toolkit's bare
// drawing of the same texts. Usage: bench_report FOLDER

#include "agenda/contracts/support/memory_record_set.hpp"
#include "agenda/printing/layouts.hpp"
#include "bench/measure.hpp"
#include "reports/layout.hpp"
#include "reports/qt/font_metrics.hpp"
#include "reports/qt/output.hpp"
#include "reports/qt/page_painter.hpp"

#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

#include <iostream>
#include <map>
#include <stdexcept>
#include <utility>

#include <malloc.h>

namespace kova::bench {

namespace {

constexpr int Rounds = 7;
constexpr int Appointments = 1000;
constexpr int ManyAppointments = 4 * Appointments;
constexpr double Limit = 2;
constexpr double MillisecondsAllowed = 1000;
constexpr double GrowthLimit = 1.1;

/// As an appointment is: names, a few words, now and then a remark of several lines.
Text FieldText(const Text& field, int number)
{
    const Text name = std::to_string(number);
    if (field.starts_with("Hora"))
        return number % 2 == 0 ? "10:15" : "14:30";
    if (field == "Observacao")
        return number % 5 == 0 ? "Animal agitado: usar focinheira e avisar a tutora " + name
                + " antes de cortar as unhas. Secar à mão, sem secador, e entregar até as 18 horas."
                               : "Banho " + name;
    if (field == "TiposECanaisDeComunicacao")
        return "Celular: (12) 99" + name + "-1234 - E-mail: cliente" + name + "@exemplo.com.br";
    return field.substr(0, 9) + " da Conceição " + name;
}

RecordSetRef Records(const ReportDesign& design, int count)
{
    std::vector<Text> fields;
    for (const ReportControlDesign& control : design.sections[1].controls) {
        if (control.kind == ReportControlKind::TextBox)
            fields.push_back(control.content);
    }
    std::vector<std::vector<Value>> rows;
    for (int number = 1; number <= count; ++number) {
        std::vector<Value> row;
        for (const Text& field : fields)
            row.push_back(FieldText(field, number));
        rows.push_back(std::move(row));
    }
    return std::make_shared<MemoryRecordSet>(fields, rows);
}

reports::Document LayOut(const ReportDesign& design, const RecordSetRef& records)
{
    return reports::LayOut({design, records.get(), {{2026, 11, 20}, {10, 15, 0}}}, paper::FontMetrics());
}

/// One line of text as the floor draws it: it knows the place beforehand.
struct BareText {
    QPointF place;
    QString text;
    const QFont* font;
};
using BarePage = std::vector<BareText>;

std::vector<BarePage> BareTexts(const reports::Document& document,
                                std::map<std::pair<float, bool>, QFont>& fonts)
{
    std::vector<BarePage> pages;
    for (const reports::Page& page : document.pages) {
        BarePage& bare = pages.emplace_back();
        for (const reports::Item& item : page.items) {
            const auto font = fonts.try_emplace({item.font.size, item.font.bold}, paper::PageFont(item.font));
            for (const reports::TextLine& line : item.lines)
                bare.push_back({QPointF(static_cast<double>(line.left),
                                        static_cast<double>(line.top) + paper::AscentOf(item.font)),
                                QString::fromStdString(line.text), &font.first->second});
        }
    }
    return pages;
}

void DrawBare(const std::vector<BarePage>& pages, const QString& path)
{
    QPdfWriter writer(path);
    writer.setResolution(static_cast<int>(paper::TwipsOfInch));
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF()));
    QPainter painter(&writer);
    bool isFirst = true;
    for (const BarePage& page : pages) {
        if (!std::exchange(isFirst, false))
            writer.newPage();
        for (const BareText& text : page) {
            painter.setFont(*text.font);
            painter.drawText(text.place, text.text);
        }
    }
}

double BytesInUse()
{
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
}

double BytesOfAPage(const ReportDesign& design, const RecordSetRef& records)
{
    const double before = BytesInUse();
    const reports::Document document = LayOut(design, records);
    return (BytesInUse() - before) / static_cast<double>(document.pages.size());
}

void Measure(const QString& folder)
{
    ReportDesign design = agenda::DesenhoDedrListaDeAgendamentos();
    design.orientation = ReportOrientation::Landscape;
    const RecordSetRef records = Records(design, Appointments);
    const reports::Document laidOut = LayOut(design, records);
    std::map<std::pair<float, bool>, QFont> fonts;
    const std::vector<BarePage> bare = BareTexts(laidOut, fonts);
    const QString path = folder + QStringLiteral("/lista.pdf");
    const Comparison times = Alternate(
        Rounds,
        [&] {
            if (!paper::WritePdf(LayOut(design, records), path).isEmpty())
                throw std::runtime_error("the list could not be written");
        },
        [&] { DrawBare(bare, folder + QStringLiteral("/texto.pdf")); });
    PrintLine("(h) list of 1,000 as PDF", times, "ms", Limit);
    PrintLine("(h) the same, against one second", {times.measured, MillisecondsAllowed}, "ms", 1);
    const RecordSetRef many = Records(design, ManyAppointments);
    constexpr double kilobyte = 1024;
    const double few = BytesOfAPage(design, records) / kilobyte;
    PrintLine("(h) a page's memory, 4,000 to 1,000", {BytesOfAPage(design, many) / kilobyte, few}, "KB",
              GrowthLimit);
    std::size_t texts = 0;
    for (const BarePage& page : bare)
        texts += page.size();
    PrintNote("list: " + std::to_string(bare.size()) + " pages, " + std::to_string(texts) + " lines of text");
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    QGuiApplication application(count, words);
    if (count != 2) {
        std::cerr << "bench_report FOLDER\n";
        return 2;
    }
    try {
        kova::bench::Measure(QString::fromLocal8Bit(words[1]));
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << "\n";
        return 1;
    }
    return 0;
}
