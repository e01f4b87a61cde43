#include "tools/agenda-data/csv_options.hpp"
#include "family/csv/registers/all_registers.hpp"

namespace kova::data {

std::optional<csv::Encoding> GivenEncoding(const Call& call)
{
    const auto name = call.Option(EncodingOption.name);
    if (!name)
        return std::nullopt;
    if (*name == "utf-8")
        return csv::Encoding::Utf8;
    if (*name == "latin-1")
        return csv::Encoding::Latin1;
    call.Refuse("A codificação \"" + *name + "\" não é conhecida. Use utf-8 ou latin-1.");
}

std::optional<char> GivenSeparator(const Call& call)
{
    const auto text = call.Option(SeparatorOption.name);
    if (!text)
        return std::nullopt;
    if (*text == "," || *text == ";")
        return text->front();
    call.Refuse("O separador \"" + *text + "\" não é conhecido. Use \",\" ou \";\".");
}

const csv::Register& FindRegister(const Call& call, std::size_t operand)
{
    const std::string& name = call.Operand(operand);
    if (const csv::Register* found = csv::RegisterNamed(name))
        return *found;
    std::string names;
    for (const csv::Register* one : csv::Registers())
        names.append(names.empty() ? "" : ", ").append(one->name);
    call.Refuse("O cadastro \"" + name + "\" não existe. Cadastros: " + names + ".");
}

} // namespace kova::data
