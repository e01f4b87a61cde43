#include "tools/agenda-data/older_rows.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/registers/registers.hpp"

namespace kova::data {

namespace {

namespace registers = family::registers;

/// "aviso: clientes 10, CEP \"123\": não é um CEP: são oito dígitos."
std::string LineOf(const registers::Register& of, const registers::JudgedField& judged)
{
    const std::string text = judged.text.empty() ? "" : " \"" + judged.text + "\"";
    return "aviso: " + std::string(of.Name().name) + " " + std::to_string(judged.key) + ", "
        + std::string(of.Fields()[judged.field].label) + text + ": " + judged.why + "\n";
}

} // namespace

void TellOlderRows(const std::string& source, std::ostream& output)
{
    const auto database = family::OpenForReading(source);
    long long count = 0;
    for (const registers::Register* one : registers::Registers())
        one->Judge(*database, [&](const registers::JudgedField& judged) {
            ++count;
            output << LineOf(*one, judged);
        });
    if (count > 0)
        output << count << (count == 1 ? " aviso" : " avisos")
               << ": campos que regras mais antigas aceitavam; ficam como estão até que alguém os altere.\n";
}

} // namespace kova::data
