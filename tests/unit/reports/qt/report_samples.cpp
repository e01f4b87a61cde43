#include "tests/unit/reports/qt/report_samples.hpp"

#include "agenda/contracts/support/memory_record_set.hpp"
#include "reports/layout.hpp"
#include "reports/qt/font_metrics.hpp"

#include <algorithm>
#include <map>

namespace kova::qt::test {

namespace {

constexpr std::size_t NameLength = 50;
constexpr std::size_t RemarkLength = 500;

Text Filled(std::size_t length)
{
    Text text;
    for (int word = 1; text.size() < length; ++word)
        text += (word % 3 == 0 ? "Conceicao " : word % 3 == 1 ? "Observa " : "pulgas, ");
    text.resize(length);
    if (text.back() == ' ')
        text.back() = 'x';
    return text;
}

Text LongText(const Text& field)
{
    if (field.starts_with("Observacao"))
        return Filled(RemarkLength);
    if (field.starts_with("Endereco") || field.starts_with("TiposECanais"))
        return Filled(3 * NameLength);
    if (field.starts_with("Hora"))
        return "10:15";
    if (field.starts_with("DataEHora"))
        return "10:15 20/11/2026";
    if (field.starts_with("Codigo"))
        return "2147483647";
    const std::map<Text, Text> fixed{{"SexoDoAnimal", "Fêmea"},
                                     {"PorteDoAnimal", "Pequeno"},
                                     {"TransporteBuscarDoAgendamento", "Não"},
                                     {"TransporteLevarDoAgendamento", "Sim"}};
    const auto found = fixed.find(field);
    return found == fixed.end() ? Filled(NameLength) : found->second;
}

Text TextFor(const Text& field, Filling filling)
{
    switch (filling) {
    case Filling::Empty: return {};
    case Filling::Short: return "ação";
    case Filling::Long: return LongText(field);
    }
    return {};
}

std::vector<Text> FieldsOf(const ReportDesign& design)
{
    std::vector<Text> fields;
    for (const ReportSectionDesign& section : design.sections) {
        for (const ReportControlDesign& control : section.controls) {
            if (control.kind == ReportControlKind::TextBox)
                fields.push_back(control.content);
        }
    }
    return fields;
}

ReportControlDesign& Control(ReportDesign& design, std::string_view name)
{
    for (ReportSectionDesign& section : design.sections) {
        for (ReportControlDesign& control : section.controls) {
            if (control.name == name)
                return control;
        }
    }
    throw Failure(FailureNumber::NoSuchMember);
}

ReportDesign Captioned(const ReportDesign& layout, Filling filling)
{
    const bool isLong = filling == Filling::Long;
    ReportDesign design = layout;
    design.caption = "Imprimir agendamentos";
    Control(design, "lblNomeFantasiaDaEmpresa").content = isLong
        ? "Clínica Veterinária e Banho e Tosa Patinhas Felizes do Jardim das Acácias Ltda"
        : "Patinhas";
    Control(design, "lblTituloDoAplicativo").content = "Kova";
    if (!IsList(layout))
        return design;
    design.orientation = ReportOrientation::Landscape;
    Control(design, "lblTitulo").content = "Agendamentos (lista para transportes)";
    Control(design, "lblSubtitulo").content = isLong
        ? "Lista filtrada por situação: todas as situações, tipo de serviço: banho e tosa completos, "
          "funcionário(a): todos os funcionários e transporte: buscar e levar"
        : "Lista completa";
    return design;
}

Text NumberedText(const Text& field, const Text& number)
{
    if (field.starts_with("Hora"))
        return "10:15";
    if (field == "ApelidoOuNomeFantasiaDoCliente")
        return "tutora-" + number;
    return field == "NomeDoAnimal" ? "animal-" + number : "ação";
}

} // namespace

const std::vector<const ReportDesign*>& AllLayouts()
{
    using namespace agenda;
    static const std::vector<const ReportDesign*> layouts{
        &DesenhoDedrListaDeAgendamentos(), &DesenhoDedrListaDeAgendamentosParaTransporte(),
        &DesenhoDedrFichaDoAgendamentoParaTransporte(), &DesenhoDedrFichaDoAgendamentoParaInspecaoDoAnimal()};
    return layouts;
}

bool IsList(const ReportDesign& layout) { return layout.name.starts_with("drLista"); }

Sample FilledReport(const ReportDesign& layout, Filling filling, int records)
{
    const std::vector<Text> fields = FieldsOf(layout);
    std::vector<Value> row;
    for (const Text& field : fields)
        row.push_back(TextFor(field, filling));
    const std::vector<std::vector<Value>> rows(static_cast<std::size_t>(records), row);
    return {Captioned(layout, filling), std::make_shared<MemoryRecordSet>(fields, rows)};
}

reports::Document LaidOut(const Sample& sample)
{
    return reports::LayOut({sample.design, sample.records.get(), {{2026, 11, 20}, {10, 15, 0}}},
                           paper::FontMetrics());
}

Sample NumberedList(int appointments)
{
    const ReportDesign& layout = agenda::DesenhoDedrListaDeAgendamentos();
    const std::vector<Text> fields = FieldsOf(layout);
    std::vector<std::vector<Value>> rows;
    for (int number = 1; number <= appointments; ++number) {
        std::vector<Value> row;
        for (const Text& field : fields)
            row.push_back(NumberedText(field, std::to_string(number)));
        rows.push_back(std::move(row));
    }
    return {Captioned(layout, Filling::Short), std::make_shared<MemoryRecordSet>(fields, rows)};
}

} // namespace kova::qt::test
