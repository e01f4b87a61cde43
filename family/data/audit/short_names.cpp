#include "family/data/audit/short_names.hpp"

#include <algorithm>

namespace kova::family {

namespace {

constexpr std::string_view Appointments = "agendamento";

struct ShortName {
    std::string_view column, name;
};
// What was written once is read for ever: a name is never given to another column.
constexpr ShortName ShortNames[] = {
    {"data_inicial", "di"},
    {"hora_inicial", "hi"},
    {"data_final", "df"},
    {"hora_final", "hf"},
    {"tipo_do_agendamento", "ta"},
    {"codigo_do_cliente", "cc"},
    {"codigo_do_animal", "ca"},
    {"nome_do_cliente", "nc"},
    {"canais_do_cliente", "tc"},
    {"nome_do_animal", "na"},
    {"sexo_do_animal", "xa"},
    {"especie_do_animal", "ea"},
    {"raca_do_animal", "ra"},
    {"cor_do_animal", "pa"},
    {"numero_do_tipo_de_servico", "ts"},
    {"codigo_do_servico", "cs"},
    {"codigo_do_funcionario", "cf"},
    {"codigo_do_pacote", "cp"},
    {"observacao", "ob"},
    {"transporte_buscar", "tb"},
    {"transporte_levar", "tl"},
    {"situacao", "si"},
    {"versao", "ve"},
};

} // namespace

std::string_view NameInLine(std::string_view table, std::string_view column)
{
    if (table != Appointments)
        return column;
    const auto* const found = std::ranges::find(ShortNames, column, &ShortName::column);
    return found == std::end(ShortNames) ? column : found->name;
}

std::string_view ColumnOfName(std::string_view name)
{
    const auto* const found = std::ranges::find(ShortNames, name, &ShortName::name);
    return found == std::end(ShortNames) ? name : found->column;
}

std::array<std::string, 2> BeginningsOf(std::string_view column)
{
    const auto beginning = [](std::string_view name) { return "\"" + std::string(name) + "\":"; };
    return {beginning(NameInLine(Appointments, column)), beginning(column)};
}

} // namespace kova::family
