#include "host/transport/run_sheet.hpp"

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/reports.hpp"
#include "agenda/contracts/support/paged_record_set.hpp"
#include "family/registers/shop/usual_days.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace kova::host {

namespace {

using family::TransportStop;

constexpr Twips Margin = 567, Width = 10770;
/// Where the columns of a stop begin.
constexpr Twips Hour = 0, What = 780, Where = 1750, Animal = 7150;
constexpr Twips WidthOfWhere = 5200, WidthOfAnimal = 3620, LineHeight = 240;
constexpr Colour LightInk = Rgb(160, 160, 160);

ReportControlDesign Words(ReportControlKind kind, const char* name, const char* content, Twips left,
                          Twips top, Twips width)
{
    return {.kind = kind,
            .name = name,
            .content = content,
            .left = left,
            .top = top,
            .width = width,
            .height = LineHeight};
}

ReportControlDesign Label(const char* name, const char* caption, Twips left, Twips top, Twips width)
{
    return Words(ReportControlKind::Label, name, caption, left, top, width);
}

/// As high as what it holds.
ReportControlDesign Field(const char* name, Twips left, Twips top, Twips width)
{
    ReportControlDesign field = Words(ReportControlKind::TextBox, name, name, left, top, width);
    field.canGrow = true;
    return field;
}

ReportControlDesign Rule(const char* name, Twips left, Twips top, Twips width)
{
    ReportControlDesign rule;
    rule.kind = ReportControlKind::Line;
    rule.name = name;
    rule.left = left;
    rule.top = top;
    rule.width = width;
    return rule;
}

ReportControlDesign Bold(ReportControlDesign control, float points = 9.75F)
{
    control.bold = true;
    control.fontSize = points;
    control.height = std::max(control.height, static_cast<Twips>(points * 25));
    return control;
}

ReportControlDesign Light(ReportControlDesign control)
{
    control.foreColor = LightInk;
    return control;
}

ReportControlDesign AtTheRight(ReportControlDesign control)
{
    control.alignment = ReportAlignment::Right;
    return control;
}

ReportSectionDesign Head()
{
    constexpr float Large = 15, Middle = 12;
    return {ReportSectionKind::PageHead,
            "Cabecalho",
            2000,
            {Bold(Label("Empresa", "", Hour, 0, 8000), Large),
             Bold(Label("Dia", "", Hour, 440, 8000), Middle), Label("Contagem", "", Hour, 810, 8000),
             AtTheRight(Label("Emissao", "Emissão: %d %t", 8000, 60, 2770)),
             AtTheRight(Label("Pagina", "Página %p de %P", 8000, 330, 2770)),
             Label("Motorista", "", Hour, 1200, Width), Bold(Label("TituloDaHora", "Hora", Hour, 1640, 760)),
             Bold(Label("TituloDoLugar", "Bairro, endereço, cliente, telefone", Where, 1640, WidthOfWhere)),
             Bold(Label("TituloDoAnimal", "Animal, e com quem", Animal, 1640, WidthOfAnimal)),
             Rule("FimDoCabecalho", Hour, 1940, Width)}};
}

ReportSectionDesign Stop()
{
    constexpr Twips First = 90, Second = 350, Third = 610, Fourth = 870, Signed = 1130;
    constexpr float Middle = 12, Small = 8;
    ReportControlDesign signature = Label("Assinatura", "Assinatura", Animal, Signed + 20, WidthOfAnimal);
    signature.fontSize = Small;
    return {ReportSectionKind::Details,
            "Parada",
            1480,
            {Bold(Field("Hora", Hour, First, 760), Middle), Bold(Field("OQue", What, First, 940)),
             Bold(Field("Bairro", Where, First, WidthOfWhere)),
             Field("Endereco", Where, Second, WidthOfWhere), Field("Cliente", Where, Third, WidthOfWhere),
             Field("Telefone", Where, Fourth, WidthOfWhere),
             Bold(Field("Animal", Animal, First, WidthOfAnimal)),
             Field("Funcionario", Animal, Second, WidthOfAnimal),
             Rule("LinhaDaAssinatura", Animal, Signed, WidthOfAnimal), signature,
             Light(Rule("FimDaParada", Hour, 1460, Width))}};
}

ReportSectionDesign Foot()
{
    return {ReportSectionKind::PageFoot,
            "Rodape",
            360,
            {Rule("InicioDoRodape", Hour, 60, Width), Label("Programa", "Kovaris", Hour, 120, 2000)}};
}

const ReportDesign& Design()
{
    static const ReportDesign design = {.name = "FolhaDeTransporte",
                                        .caption = "Folha de transporte",
                                        .width = Width,
                                        .leftMargin = Margin,
                                        .topMargin = Margin,
                                        .rightMargin = Margin,
                                        .bottomMargin = Margin,
                                        .orientation = ReportOrientation::Portrait,
                                        .windowState = ReportWindowState::Maximized,
                                        .sections = {Head(), Stop(), Foot()}};
    return design;
}

/// What stands in a stop's boxes, by the names of their fields.
struct StopField {
    const char* name;
    std::string (*read)(const RunSheet& sheet, const TransportStop& stop);
};
constexpr std::array<StopField, 9> FieldsOfStop{{
    // The first day in it names the file that it is saved into.
    {"DataInicial", [](const RunSheet& sheet, const TransportStop&) { return FormatDate(sheet.day); }},
    {"Hora", [](const RunSheet&, const TransportStop& stop) { return stop.time; }},
    {"OQue", [](const RunSheet&, const TransportStop& stop) { return WhatIsDone(stop); }},
    {"Bairro", [](const RunSheet&, const TransportStop& stop) { return stop.district; }},
    {"Endereco", [](const RunSheet&, const TransportStop& stop) { return WhereItIs(stop); }},
    {"Cliente", [](const RunSheet&, const TransportStop& stop) { return stop.customer; }},
    {"Telefone", [](const RunSheet&, const TransportStop& stop) { return PhonesOf(stop); }},
    {"Animal", [](const RunSheet&, const TransportStop& stop) { return stop.animal; }},
    {"Funcionario", [](const RunSheet&, const TransportStop& stop) { return "com " + stop.employee; }},
}};

std::vector<std::string> NamesOfFields()
{
    std::vector<std::string> names;
    for (const StopField& field : FieldsOfStop)
        names.emplace_back(field.name);
    return names;
}

class StopRecords : public PagedRecordSet {
public:
    explicit StopRecords(RunSheet sheet) : PagedRecordSet(NamesOfFields()), sheet_(std::move(sheet)) { }

protected:
    Long RowCount() const override { return static_cast<Long>(sheet_.stops.size()); }
    Value CellAt(Long row, int field) const override
    {
        return FieldsOfStop[static_cast<std::size_t>(field)].read(
            sheet_, sheet_.stops[static_cast<std::size_t>(row)]);
    }

private:
    const RunSheet sheet_;
};

std::string LineOfDriver(const std::string& driver)
{
    return "Motorista: " + (driver.empty() ? std::string(34, '_') : driver)
        + "     Saída: ____:____     Volta: ____:____";
}

bool IsPhone(std::string_view channel)
{
    return !channel.empty() && channel.find('@') == std::string_view::npos
        && std::ranges::any_of(channel, [](char letter) { return letter >= '0' && letter <= '9'; });
}

} // namespace

std::string WhatIsDone(const TransportStop& stop) { return stop.isFetch ? "Buscar" : "Levar"; }

std::string WhereItIs(const TransportStop& stop)
{
    return stop.address.empty() ? "(sem endereço no cadastro)" : stop.address;
}

std::string PhonesOf(const TransportStop& stop)
{
    std::string phones;
    std::string_view left = stop.channels;
    while (!left.empty()) {
        const std::size_t end = std::min(left.find(';'), left.size());
        std::string_view channel = left.substr(0, end);
        left.remove_prefix(std::min(end + 1, left.size()));
        channel.remove_prefix(std::min(channel.find_first_not_of(' '), channel.size()));
        if (IsPhone(channel))
            phones += (phones.empty() ? "" : "; ") + std::string(channel);
    }
    return phones;
}

std::string CountOf(const std::vector<TransportStop>& stops)
{
    if (stops.empty())
        return "Nenhuma parada";
    const auto fetches = std::ranges::count_if(stops, &TransportStop::isFetch);
    const std::size_t all = stops.size();
    return std::to_string(all) + (all == 1 ? " parada: " : " paradas: ") + std::to_string(fetches)
        + " para buscar, " + std::to_string(static_cast<std::ptrdiff_t>(all) - fetches) + " para levar";
}

ReportRef MakeRunSheet(Toolkit& toolkit, const RunSheet& sheet)
{
    ReportRef report = toolkit.CreateReport(Design());
    ReportSection& head = report->Section("Cabecalho");
    head.Label("Empresa").Caption(sheet.company);
    head.Label("Dia").Caption("Transporte: " + family::registers::DayInWords(FormatDate(sheet.day)));
    head.Label("Contagem").Caption(CountOf(sheet.stops));
    head.Label("Motorista").Caption(LineOfDriver(sheet.driver));
    report->DataSource(std::make_shared<StopRecords>(sheet));
    return report;
}

void Show(Toolkit& toolkit, const RunSheet& sheet) { MakeRunSheet(toolkit, sheet)->ShowModal(); }

} // namespace kova::host
