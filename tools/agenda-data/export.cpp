#include "family/csv/exporting.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/csv_options.hpp"
#include "tools/agenda-data/shown_work.hpp"

namespace kova::data {

namespace {

/// Fewer records are done before anybody asks how far they are.
constexpr long long RecordsWithoutProgress = 5000;

int Run(const Call& call, Surroundings& surroundings)
{
    const csv::ExportOrder order{&FindRegister(call, 1), call.Operand(2),
                                 GivenEncoding(call).value_or(csv::Encoding::Utf8),
                                 GivenSeparator(call).value_or(';')};
    const long long records =
        csv::ExportTo(call.Operand(0), order, AuthorOf(call, surroundings),
                      LongWorkOf(surroundings.error, "Exportação", RecordsWithoutProgress));
    surroundings.output << records << (records == 1 ? " linha exportada" : " linhas exportadas") << " em "
                        << csv::NameOf(order.encoding) << ".\n";
    return 0;
}

} // namespace

const Command ExportCommand{
    {"export",
     "Exporta um cadastro para um novo arquivo CSV (padrão: utf-8 e \";\"), que pode ser\n"
     "importado de novo.",
     {"BANCO", "CADASTRO", "ARQUIVO"},
     {EncodingOption, SeparatorOption}},
    Run,
};

} // namespace kova::data
