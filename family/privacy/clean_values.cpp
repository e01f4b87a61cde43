#include "family/privacy/clean_values.hpp"

#include "family/data/audit/short_names.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/people_rows.hpp"

namespace kova::family::privacy {

namespace {

constexpr const char* NoPerson = "Pessoa anonimizada";
constexpr const char* NoAnimal = "Animal anonimizado";

void CleanValue(Holds holds, const std::string& nobody, AuditedValues& value)
{
    const bool isText = value.is_string();
    switch (holds) {
    case Holds::Name:
        if (isText && !value.get_ref<const std::string&>().empty())
            value = nobody;
        return;
    case Holds::Text:
    case Holds::Composed:
        if (isText)
            value = "";
        return;
    case Holds::OptionalText: value = nullptr; return;
    case Holds::NoPerson:
    case Holds::Staff:
    case Holds::Figure:
    case Holds::ValuesOfRows: return;
    }
}

/// An appointment that was deleted can be put back from these values, and is looked for by this text then.
void ComposeSearchText(AuditedValues& values)
{
    const auto text = values.find("texto_de_busca");
    if (text != values.end() && ValueOf(values, "tipo_do_agendamento") == "1")
        *text =
            FoldText(ValueOf(values, "nome_do_cliente")) + "\n" + FoldText(ValueOf(values, "nome_do_animal"));
}

} // namespace

std::string NameOfNobody(std::string_view table, std::string_view column, Key key)
{
    if (table == CustomerRow::Table)
        return NoPerson + (" " + std::to_string(key));
    if (table == AnimalRow::Table)
        return NoAnimal + (" " + std::to_string(key));
    return column == "nome_do_animal" ? NoAnimal : NoPerson;
}

void CleanValues(std::string_view table, Key key, AuditedValues& values)
{
    for (auto& [name, value] : values.items()) {
        const std::string_view column = ColumnOfName(name);
        CleanValue(HoldsOf(table, column).value_or(Holds::Text), NameOfNobody(table, column, key), value);
    }
    if (table == AppointmentRow::Table)
        ComposeSearchText(values);
}

} // namespace kova::family::privacy
