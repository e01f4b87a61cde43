#include "family/business/appointments/appointment_history.hpp"

#include "family/business/audit_words.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/register_names.hpp"

#include <algorithm>
#include <cstdlib>

namespace kova::family {

namespace {

Key Number(const std::string& kept) { return std::strtoll(kept.c_str(), nullptr, 10); }

std::string AsItIs(Database&, const std::string& kept) { return kept; }
std::string DateOf(Database&, const std::string& kept) { return ShownDate(kept); }
std::string SexOf(Database&, const std::string& kept) { return ShownSex(kept); }
std::string YesOrNoOf(Database&, const std::string& kept) { return YesOrNo(Number(kept) != 0); }
std::string StatusOf(Database&, const std::string& kept)
{
    return ShownStatus(static_cast<int>(Number(kept)));
}
std::string KindOf(Database&, const std::string& kept)
{
    return Number(kept) == 1 ? "Simplificado" : "Completo";
}
template <std::string (*Named)(Database&, Key)>
std::string NameOf(Database& database, const std::string& kept)
{
    return Named(database, Number(kept));
}

/// A column that people know by a name.
struct ShownColumn {
    const char* column;
    const char* caption;
    std::string (*show)(Database&, const std::string& kept);
};

constexpr ShownColumn Columns[] = {
    {"tipo_do_agendamento", "Tipo do agendamento", KindOf},
    {"codigo_do_cliente", "Cliente", NameOf<NamedCustomer>},
    {"codigo_do_animal", "Animal", NameOf<NamedAnimal>},
    {"nome_do_cliente", "Nome ou razão social", AsItIs},
    {"canais_do_cliente", "Canais de comunicação", AsItIs},
    {"nome_do_animal", "Nome do animal", AsItIs},
    {"sexo_do_animal", "Sexo", SexOf},
    {"especie_do_animal", "Espécie", AsItIs},
    {"raca_do_animal", "Raça", AsItIs},
    {"cor_do_animal", "Cor", AsItIs},
    {"numero_do_tipo_de_servico", "Tipo de serviço", NameOf<NamedServiceType>},
    {"codigo_do_servico", "Serviço", NameOf<NamedService>},
    {"data_inicial", "Data inicial", DateOf},
    {"hora_inicial", "Hora inicial", AsItIs},
    {"data_final", "Data final", DateOf},
    {"hora_final", "Hora final", AsItIs},
    {"codigo_do_funcionario", "Funcionário(a)", NameOf<NamedEmployee>},
    {"codigo_do_pacote", "Pacote", AsItIs},
    {"observacao", "Observação", AsItIs},
    {"transporte_buscar", "Buscar", YesOrNoOf},
    {"transporte_levar", "Levar", YesOrNoOf},
    {"situacao", "Situação", StatusOf},
    {"importacao", "Importação", AsItIs},
};

std::string Shown(Database& database, const ShownColumn& column, const AuditedColumns& kept)
{
    const auto found = kept.find(column.column);
    const bool empty = found == kept.end() || !found->second || found->second->empty();
    return empty ? "" : column.show(database, *found->second);
}

} // namespace

std::vector<FieldHistory> ChangedFieldsOf(Database& database, const AuditedColumns& before,
                                          const AuditedColumns& after)
{
    std::vector<FieldHistory> fields;
    for (const ShownColumn& column : Columns) {
        FieldHistory field{column.caption, Shown(database, column, before), Shown(database, column, after)};
        if (field.before != field.after)
            fields.push_back(std::move(field));
    }
    return fields;
}

std::vector<HistoryLine> HistoryOf(Database& database, Key number, Database* archive)
{
    std::vector<HistoryLine> history;
    for (const AuditLine& line : FindAllAuditLines(database, archive, AppointmentRow::Table, number))
        history.push_back({ShownMoment(line.moment), line.user, line.desk,
                           WordsOfOperation(line.operation).one,
                           ChangedFieldsOf(database, line.before, line.after)});
    std::ranges::reverse(history);
    return history;
}

} // namespace kova::family
