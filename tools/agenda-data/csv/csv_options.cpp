#include "tools/agenda-data/csv/csv_options.hpp"

namespace kova::data {

std::optional<Encoding> GivenEncoding(const Call& call)
{
    const auto name = call.Option(EncodingOption.name);
    if (!name)
        return std::nullopt;
    if (*name == "utf-8")
        return Encoding::Utf8;
    if (*name == "latin-1")
        return Encoding::Latin1;
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

} // namespace kova::data
