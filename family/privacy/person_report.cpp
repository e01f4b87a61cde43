#include "family/privacy/person_report.hpp"

#include "family/business/audit_words.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/stores/pre_sales.hpp"
#include "family/registers/registers.hpp"

namespace kova::family::privacy {

namespace {

using registers::Register;
using registers::Texts;

std::string Shown(const Nullable<std::string>& text) { return text.IsNull() ? std::string() : text.value; }

std::string NumberOrNothing(const Nullable<Key>& number)
{
    return number.IsNull() ? std::string() : std::to_string(number.value);
}

ReportRecord RecordOf(const Register& of, const Texts& texts)
{
    ReportRecord record;
    for (std::size_t at = 0; at < texts.size(); ++at)
        record.push_back({std::string(of.Fields()[at].label), texts[at]});
    return record;
}

ReportGroup Customer(const PersonData& data)
{
    ReportGroup group{"Cadastro", {}, {}};
    if (data.customer)
        group.records.push_back(RecordOf(registers::CustomerRegister(), *data.customer));
    return group;
}

ReportGroup Channels(const PersonData& data)
{
    ReportGroup group{"Canais de comunicação", {}, {}};
    for (const ChannelRow& row : data.channels)
        group.records.push_back({{"Tipo", row.tipo}, {"Canal", row.canal}});
    return group;
}

ReportGroup Animals(const PersonData& data)
{
    ReportGroup group{"Animais", {}, {}};
    for (const Texts& animal : data.animals)
        group.records.push_back(RecordOf(registers::AnimalRegister(), animal));
    return group;
}

void AddTimes(const AppointmentRow& row, ReportRecord& record)
{
    record.push_back({"Número", std::to_string(row.numero)});
    record.push_back({"Início", ShownDate(row.dataInicial) + " " + row.horaInicial});
    record.push_back({"Término", ShownDate(row.dataFinal) + " " + row.horaFinal});
    record.push_back({"Situação", ShownStatus(row.situacao)});
}

void AddService(const PersonAppointment& appointment, ReportRecord& record)
{
    record.push_back({"Tipo de serviço", appointment.serviceType});
    record.push_back({"Serviço", appointment.service});
    record.push_back({"Funcionário(a)", appointment.employee});
}

void AddTypedTexts(const AppointmentRow& row, ReportRecord& record)
{
    record.push_back({"Nome ou razão social", row.nomeDoCliente});
    record.push_back({"Canais de comunicação", row.canaisDoCliente});
    record.push_back({"Nome do animal", row.nomeDoAnimal});
    record.push_back({"Sexo", ShownSex(row.sexoDoAnimal)});
    record.push_back({"Espécie", row.especieDoAnimal});
    record.push_back({"Raça", row.racaDoAnimal});
    record.push_back({"Cor", row.corDoAnimal});
}

void AddRest(const AppointmentRow& row, ReportRecord& record)
{
    record.push_back({"Pacote", NumberOrNothing(row.codigoDoPacote)});
    record.push_back({"Observação", Shown(row.observacao)});
    record.push_back({"Buscar", YesOrNo(row.transporteBuscar != 0)});
    record.push_back({"Levar", YesOrNo(row.transporteLevar != 0)});
    record.push_back({"Incluído em", ShownMoment(row.incluidoEm)});
    record.push_back({"Incluído por", row.incluidoPor});
    record.push_back({"Alterado em", row.alteradoEm.IsNull() ? "" : ShownMoment(row.alteradoEm.value)});
    record.push_back({"Alterado por", Shown(row.alteradoPor)});
}

ReportGroup Appointments(const PersonData& data)
{
    ReportGroup group{"Agendamentos", {}, {}};
    for (const PersonAppointment& appointment : data.appointments) {
        ReportRecord record;
        AddTimes(appointment.row, record);
        record.push_back({"Animal", appointment.animal});
        AddService(appointment, record);
        AddTypedTexts(appointment.row, record);
        AddRest(appointment.row, record);
        group.records.push_back(std::move(record));
    }
    return group;
}

std::string Reason(Likeness likeness)
{
    switch (likeness) {
    case Likeness::Contact: return "mesmo telefone ou e-mail";
    case Likeness::NameAndAnimal: return "mesmo nome e animal de mesmo nome";
    case Likeness::Name: return "só o mesmo nome; pode ser de outra pessoa";
    case Likeness::None: break;
    }
    return {};
}

/// What may be another person's is shown no further than this one needs to know whether it is his.
ReportGroup LikelyAppointments(const PersonData& data)
{
    ReportGroup group{
        "Agendamentos possivelmente desta pessoa",
        "Foram marcados sem cadastro e não trazem o código do cliente. Confira antes de entregar: "
        "onde só o nome é o mesmo, o contato, o animal e a observação não são mostrados.",
        {}};
    for (const PersonAppointment& appointment : data.likely) {
        ReportRecord record;
        AddTimes(appointment.row, record);
        record.push_back({"Motivo", Reason(appointment.likeness)});
        AddService(appointment, record);
        if (IsHis(appointment.likeness)) {
            AddTypedTexts(appointment.row, record);
            AddRest(appointment.row, record);
        } else {
            record.push_back({"Nome ou razão social", appointment.row.nomeDoCliente});
        }
        group.records.push_back(std::move(record));
    }
    return group;
}

ReportGroup Packages(const PersonData& data)
{
    ReportGroup group{"Pacotes", {}, {}};
    for (const PersonPackage& package : data.packages)
        group.records.push_back({{"Código", std::to_string(package.row.codigo)},
                                 {"Serviço", package.service},
                                 {"Criado em", ShownMoment(package.row.criadoEm)},
                                 {"Criado por", package.row.criadoPor}});
    return group;
}

std::string ShownSituation(int situation)
{
    switch (situation) {
    case pre_sale_status::Open: return "Aberta";
    case pre_sale_status::Cancelled: return "Cancelada";
    case pre_sale_status::Billed: return "Faturada";
    default: return {};
    }
}

ReportGroup PreSales(const PersonData& data)
{
    ReportGroup group{"Pré-vendas", {}, {}};
    for (const PreSaleRow& row : data.preSales)
        group.records.push_back({{"Código", std::to_string(row.codigo)},
                                 {"Agendamento", std::to_string(row.numeroDoAgendamento)},
                                 {"Valor", ShownMoney(row.valorEmCentavos)},
                                 {"Situação", ShownSituation(row.situacao)},
                                 {"Criada em", ShownMoment(row.criadaEm)}});
    return group;
}

ReportGroup WaitingList(const PersonData& data)
{
    ReportGroup group{"Lista de espera", {}, {}};
    for (const PersonWaiting& one : data.waiting)
        group.records.push_back(
            {{"Código", std::to_string(one.row.codigo)},
             {"Animal", one.animal},
             {"Serviços", one.services},
             {"Funcionários", one.employees},
             {"Do dia", ShownDate(one.row.dataInicial)},
             {"Até o dia", ShownDate(one.row.dataFinal)},
             {"Dias da semana", ShownWeekdays(one.row.diasDaSemana)},
             {"Das", one.row.horaInicial},
             {"Até as", one.row.horaFinal},
             {"Observação", Shown(one.row.observacao)},
             {"Situação", ShownWaitingStatus(one.row.situacao)},
             {"Agendamento", NumberOrNothing(one.row.numeroDoAgendamento)},
             {"Incluído em", ShownMoment(one.row.incluidoEm)},
             {"Incluído por", one.row.incluidoPor},
             {"Alterado em", one.row.alteradoEm.IsNull() ? "" : ShownMoment(one.row.alteradoEm.value)},
             {"Alterado por", Shown(one.row.alteradoPor)}});
    return group;
}

ReportEntry Values(const char* label, const std::vector<std::pair<std::string, std::string>>& values)
{
    ReportEntry entry{label, {}, {}, true};
    for (const auto& [column, value] : values)
        entry.parts.push_back({column, value});
    return entry;
}

ReportGroup Changes(const PersonData& data)
{
    ReportGroup group{"Histórico",
                      "Quem gravou estes registros, quando, e o que havia antes e depois, pelos nomes das "
                      "colunas do banco de dados.",
                      {}};
    for (const PersonChange& change : data.changes)
        group.records.push_back({{"Momento", ShownMoment(change.moment)},
                                 {"Quem", change.user},
                                 {"Operação", WordsOfOperation(change.operation).one},
                                 {"Registro", change.table + " " + std::to_string(change.key)},
                                 Values("Antes", change.before),
                                 Values("Depois", change.after)});
    return group;
}

} // namespace

PersonReport InWords(const PersonData& data, DateTime now)
{
    PersonReport report;
    report.title = "Dados da pessoa: cliente " + std::to_string(data.code);
    report.heading = {{"Loja", data.shop},
                      {"Gerado em", ShownMoment(IsoMoment(now))},
                      {"Código do cliente", std::to_string(data.code)}};
    report.groups = {Customer(data),     Channels(data),           Animals(data),
                     Appointments(data), LikelyAppointments(data), Packages(data),
                     PreSales(data),     WaitingList(data),        Changes(data)};
    return report;
}

} // namespace kova::family::privacy
