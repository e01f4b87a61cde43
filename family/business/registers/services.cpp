#include "family/business/registers/services.hpp"

#include "family/business/kept_record_set.hpp"
#include "family/business/selection_arguments.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/selections/service_selection.hpp"
#include "family/data/sources/shared_database.hpp"

#include <array>
#include <string_view>

namespace kova::family {

namespace {

/// Positions of the arguments of Selecionar.
enum Position { Mode, PageRows, Constant, SearchedText, Type, Name, Code };
constexpr std::size_t FewestArguments = Type + 1;
constexpr std::size_t MostArguments = Code + 1;

using Row = FoundServiceOf<std::string_view>;

constexpr KeptField<FoundServiceOf> Fields[] = {
    {"Codigo", [](const Row& row) { return Value(static_cast<Double>(row.codigo)); }},
    {"Nome", [](const Row& row) { return Value(row.nome); }},
    {"Descricao", [](const Row& row) { return Value(row.descricao); }},
    {"ValorDeVenda", [](const Row& row) { return Value(ShownMoney(row.precoEmCentavos)); }},
    {"Custo", [](const Row& row) { return Value(ShownMoney(row.custoEmCentavos)); }},
    {"NumeroDoTipoDeServico", [](const Row& row) { return Value(static_cast<Long>(row.numeroDoTipo)); }},
    {"TempoDeExecucao", [](const Row& row) { return Value(ShownDuration(row.duracaoEmMinutos)); }},
};

/// The same for who may not see prices and costs.
constexpr auto FieldsWithoutPrices = [] {
    auto fields = std::to_array(Fields);
    for (auto& field : fields) {
        const std::string_view name = field.name;
        if (name == "ValorDeVenda" || name == "Custo")
            field.read = [](const Row&) { return Value(Text()); };
    }
    return fields;
}();

std::span<const KeptField<FoundServiceOf>> FieldsOf(const std::string& dataSource)
{
    if (ArePricesHidden(dataSource))
        return FieldsWithoutPrices;
    return Fields;
}

ServiceFilter FilterOf(std::span<const Argument> arguments)
{
    ServiceFilter filter;
    filter.text = arguments[SearchedText].Get().ToText();
    filter.type = arguments[Type].Get().ToLong();
    if (arguments.size() > Name)
        filter.name = arguments[Name].Get().ToText();
    if (arguments.size() > Code)
        filter.code = KeyOf(arguments[Code].Get());
    return filter;
}

} // namespace

std::span<const Method<Services>> Services::Methods()
{
    static constexpr Method<Services> methods[] = {
        {"Selecionar", FewestArguments, MostArguments, &Services::Selecionar}};
    return methods;
}

std::span<const Property<Services>> Services::Properties() { return SelectionProperties<Services>; }

Value Services::Selecionar(std::span<Argument> arguments)
{
    return Select("Selecionar", [&] {
        auto selection = std::make_shared<KeptRecordSet<FoundServiceOf>>(
            FieldsOf(Host().DataSource()), SelectServices(Data(), FilterOf(arguments)));
        selection->PageSize(RowsOfPage(arguments, selection->RecordCount()));
        return selection;
    });
}

} // namespace kova::family
