#include "family/registers/shop/shop_columns.hpp"

#include "family/data/checks/documents.hpp"
#include "family/registers/contacts/phone_numbers.hpp"
#include "family/registers/description/column_kinds.hpp"

#include <cstdio>
#include <utility>

namespace kova::family::registers {

namespace {

using namespace shop_columns;

constexpr int MinutesOfADay = 24 * 60;
constexpr int SomeLeapYear = 2000;

/// Without a year it is a holiday of every year.
std::string ReadDay(const std::string& text, HolidayRow& holiday)
{
    holiday.dia = holiday.mes = {};
    holiday.data = {};
    if (const auto date = ReadDate(text)) {
        holiday.data = IsoDate(*date);
        return {};
    }
    const auto everyYear = ReadDate(text + "/" + std::to_string(SomeLeapYear));
    if (!everyYear)
        return "não é uma data válida. Escreva dd/mm, para todos os anos, ou dd/mm/aaaa.";
    holiday.dia = everyYear->day;
    holiday.mes = everyYear->month;
    return {};
}

Column<HolidayRow> HolidayDay()
{
    Column<HolidayRow> column =
        ColumnsOf<HolidayRow>::InMember(Day, FieldKind::DayOrDate, 10, &HolidayRow::data);
    column.field.stored = {"dia", "mes", "data"};
    column.read = ReadDay;
    column.write = WriteDay;
    column.clear = [](HolidayRow& holiday) {
        holiday.dia = holiday.mes = {};
        holiday.data = {};
    };
    return column;
}

Column<CompanyRow> CompanyDocument()
{
    Column<CompanyRow> column =
        ColumnsOf<CompanyRow>::InMember(CompanyNumber, FieldKind::Document, 18, &CompanyRow::cnpj);
    column.read = [](const std::string& text, CompanyRow& company) -> std::string {
        const auto document = ReadDocument(text);
        if (!document)
            return "não é um CNPJ nem um CPF válido: confira os dígitos.";
        company.cnpj = *document;
        return {};
    };
    column.write = [](const CompanyRow& company) { return ShownDocument(company.cnpj); };
    return column;
}

Column<CompanyRow> CompanyPhone()
{
    Column<CompanyRow> column = ColumnsOf<CompanyRow>::Text(Phone, &CompanyRow::telefone, 50);
    column.read = [readText = column.read](const std::string& text, CompanyRow& company) {
        if (std::string why = readText(text, company); !why.empty())
            return why;
        PhoneText phone = ReadPhone(text, PhoneKind::Any);
        company.telefone = std::move(phone.kept);
        return std::move(phone.why);
    };
    return column;
}

} // namespace

std::string WriteDay(const HolidayRow& holiday)
{
    if (!holiday.data.IsNull())
        return ShownDate(holiday.data.value);
    if (holiday.dia.IsNull())
        return {};
    char text[32];
    std::snprintf(text, sizeof text, "%02d/%02d", holiday.dia.ValueOr(0), holiday.mes.ValueOr(0));
    return text;
}

const Columns<ServiceTypeRow>& ServiceTypeColumns()
{
    using Cols = ColumnsOf<ServiceTypeRow>;
    static const Columns<ServiceTypeRow> columns = {
        Cols::Code("Número", &ServiceTypeRow::numero),
        Unique(Required(Cols::Text(Name, &ServiceTypeRow::nome, 100))),
        Cols::OneOf(Situation, &ServiceTypeRow::situacao, ActiveOrNot),
    };
    return columns;
}

const Columns<ServiceRecord>& ServiceColumns()
{
    using Cols = ColumnsOf<ServiceRecord>;
    static const Columns<ServiceRecord> columns = {
        Cols::Code("Código", &ServiceRecord::codigo),
        Helped("Um só serviço de cada tipo tem este nome.",
               Unique(Required(Cols::Text(Name, &ServiceRecord::nome, 100)))),
        Cols::Text("Descrição", &ServiceRecord::descricao, 255),
        AskedAs("Tipo", RefersTo("tipos", Required(Cols::Code(TypeOfService, &ServiceRecord::numeroDoTipo)))),
        Required(Cols::Number("Duração em minutos", &ServiceRecord::duracaoEmMinutos, 1, MinutesOfADay)),
        Helped("O preço novo vale para o que se agendar; as pré-vendas feitas ficam como estão.",
               Required(Cols::Money("Preço", &ServiceRecord::precoEmCentavos))),
        Cols::Money("Custo", &ServiceRecord::custoEmCentavos),
        Helped("De um pacote, quantas sessões ele tem; vazio em um serviço avulso.",
               Cols::Number("Sessões", &ServiceRecord::quantidadeDeSessoes, 1, 999)),
        Cols::OneOf(Situation, &ServiceRecord::situacao, ActiveOrNot),
    };
    return columns;
}

const Columns<EmployeeRow>& EmployeeColumns()
{
    using Cols = ColumnsOf<EmployeeRow>;
    static const Columns<EmployeeRow> columns = {
        Cols::Code("Código", &EmployeeRow::codigo),
        Helped("Como aparece na agenda.", Required(Cols::Text(Nickname, &EmployeeRow::apelido, 50))),
        Required(Cols::Text(Name, &EmployeeRow::nome, 100)),
        Helped("Quantos atende ao mesmo tempo; 0 é sem limite.",
               Cols::Number("Agendamentos simultâneos", &EmployeeRow::agendamentosSimultaneos, 0, 999)),
        Cols::OneOf(Situation, &EmployeeRow::situacao, ActiveOrNot),
    };
    return columns;
}

const Columns<HolidayRow>& HolidayColumns()
{
    using Cols = ColumnsOf<HolidayRow>;
    static const Columns<HolidayRow> columns = {
        Cols::Code("Código", &HolidayRow::codigo),
        Required(Cols::Text(Name, &HolidayRow::nome, 100)),
        Helped("dd/mm para todos os anos, ou dd/mm/aaaa.", Required(HolidayDay())),
    };
    return columns;
}

const Columns<SpeciesRow>& SpeciesColumns()
{
    using Cols = ColumnsOf<SpeciesRow>;
    static const Columns<SpeciesRow> columns = {
        Cols::Code("Código", &SpeciesRow::codigo),
        Unique(Required(Cols::Text(Name, &SpeciesRow::nome, 50))),
        Cols::OneOf(Situation, &SpeciesRow::situacao, ActiveOrNot),
    };
    return columns;
}

const Columns<BreedRecord>& BreedColumns()
{
    using Cols = ColumnsOf<BreedRecord>;
    static const auto ofSpecies = [] {
        Column<BreedRecord> column = Cols::Text(Species, &BreedRecord::species, 50);
        column.field.stored = {"codigo_da_especie"};
        return column;
    };
    static const Columns<BreedRecord> columns = {
        Cols::Code("Código", &BreedRecord::codigo),
        RefersTo("especies", Required(ofSpecies())),
        Helped("Uma só raça de cada espécie tem este nome.",
               Unique(Required(Cols::Text(Name, &BreedRecord::nome, 50)))),
        Cols::OneOf(Situation, &BreedRecord::situacao, ActiveOrNot),
    };
    return columns;
}

const Columns<CompanyRow>& CompanyColumns()
{
    using Cols = ColumnsOf<CompanyRow>;
    static const Columns<CompanyRow> columns = {
        Cols::Code("Código", &CompanyRow::codigo),
        Helped("Como a loja se chama; está no título da janela e no que se imprime.",
               Required(Cols::Text("Nome fantasia", &CompanyRow::nomeFantasia, 100))),
        Cols::Text("Razão social", &CompanyRow::razaoSocial, 100),
        AskedAs("CNPJ ou CPF", CompanyDocument()),
        Cols::Text("Endereço", &CompanyRow::endereco, 255),
        Helped("Com DDD, como (11) 3123-4567.", CompanyPhone()),
    };
    return columns;
}

} // namespace kova::family::registers
