#include "family/business/registers/animals.hpp"

#include "family/business/combo_selection.hpp"
#include "family/business/fetched_record_set.hpp"
#include "family/business/selection_arguments.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/selections/animal_selection.hpp"

namespace kova::family {

namespace {

/// Positions of the arguments of Selecionar that it looks at.
enum Position { Mode, PageRows, CodeOrText = 3, Customer = 5 };
constexpr std::size_t CountOfArguments = 6;

constexpr Integer Refused = 2;
constexpr int Inactive = 2;
constexpr const char* InactiveText = "Animal inativo. Selecione outro animal.";

using Row = FoundAnimalOf<std::string_view>;

Value SmallNumber(long long number) { return static_cast<Long>(number); }

constexpr KeptField<FoundAnimalOf> Fields[] = {
    {"Codigo", [](const Row& row) { return SmallNumber(row.codigo); }},
    {"Nome", [](const Row& row) { return Value(row.nome); }},
    {"Sexo", [](const Row& row) { return Value(ShownSex(row.sexo)); }},
    {"CodigoDaEspecie", [](const Row& row) { return SmallNumber(row.codigoDaEspecie); }},
    {"NomeDaEspecie", [](const Row& row) { return Value(row.nomeDaEspecie); }},
    {"CodigoDaRaca", [](const Row& row) { return SmallNumber(row.codigoDaRaca); }},
    {"NomeDaRaca", [](const Row& row) { return Value(row.nomeDaRaca); }},
    {"Cor", [](const Row& row) { return Value(row.cor); }},
    {"CodigoDoCliente", [](const Row& row) { return Value(static_cast<Double>(row.codigoDoCliente)); }},
    {"ApelidoOuNomeFantasia", [](const Row& row) { return Value(row.apelidoDoCliente); }},
    {"NomeOuRazaoSocial", [](const Row& row) { return Value(row.nomeDoCliente); }},
    {"SituacaoDoCliente", [](const Row& row) { return SmallNumber(row.situacaoDoCliente); }},
    // The customers' picker reads the owner's situation by this name.
    {"Situacao", [](const Row& row) { return SmallNumber(row.situacaoDoCliente); }},
    {"EnderecoCompleto", [](const Row& row) { return Value(row.enderecoCompleto); }},
    {"TiposECanaisDeComunicacao", [](const Row& row) { return Value(row.tiposECanais); }},
    {"VIP", [](const Row& row) { return Value(YesOrNo(row.vip != 0)); }},
    {"CategoriaDaCurvaABC", [](const Row& row) { return Value(row.categoriaDaCurvaABC); }},
};

bool IsNumber(const Value& codeOrText) { return codeOrText.GetType() != ValueType::Text; }

} // namespace

std::span<const Method<Animals>> Animals::Methods()
{
    static constexpr Method<Animals> methods[] = {
        {"Selecionar", CountOfArguments, CountOfArguments, &Animals::Selecionar},
        {"SelecionarParaComboBoxFiltradoPorCliente", 2, 2,
         &Animals::SelecionarParaComboBoxFiltradoPorCliente},
    };
    return methods;
}

std::span<const Property<Animals>> Animals::Properties()
{
    static constexpr Property<Animals> properties[] = {
        {"ResultadoDaSelecaoEmRecordSet", &Animals::ResultadoDaSelecaoEmRecordSet},
        {"NumeroDoErro", &Animals::NumeroDoErro},
        {"DescricaoDoErro", &Animals::DescricaoDoErro},
        {"LocalDoErro", &Animals::LocalDoErro},
        {"DescricaoDaFalha", &Animals::DescricaoDaFalha},
    };
    return properties;
}

Value Animals::Selecionar(std::span<Argument> arguments)
{
    refusal_.clear();
    return IsNumber(arguments[CodeOrText].Get()) ? SelectByCode(arguments) : SelectByText(arguments);
}

Value Animals::SelectByCode(std::span<Argument> arguments)
{
    KeptRows<FoundAnimalOf> found;
    const Integer status = Attempt("Selecionar", [&] {
        found = SelectAnimal(Data(), KeyOf(arguments[CodeOrText].Get()), KeyOf(arguments[Customer].Get()));
    });
    if (status != 0)
        return status;
    if (!found.rows.empty() && found.rows.front().situacao == Inactive) {
        refusal_ = InactiveText;
        return Refused;
    }
    return Select("Selecionar", [&] {
        auto selection = std::make_shared<KeptRecordSet<FoundAnimalOf>>(Fields, std::move(found));
        selection->PageSize(RowsOfPage(arguments, selection->RecordCount()));
        return selection;
    });
}

Value Animals::SelectByText(std::span<Argument> arguments)
{
    return Select("Selecionar", [&] {
        std::vector<Key> codes =
            SelectAnimals(Data(), arguments[CodeOrText].Get().ToText(), KeyOf(arguments[Customer].Get()));
        auto selection = std::make_shared<FetchedRecordSet<FoundAnimalOf>>(Fields, FetchAnimals, SharedData(),
                                                                           std::move(codes));
        selection->PageSize(RowsOfPage(arguments, selection->RecordCount()));
        return selection;
    });
}

Value Animals::SelecionarParaComboBoxFiltradoPorCliente(std::span<Argument> arguments)
{
    refusal_.clear();
    return Select("SelecionarParaComboBoxFiltradoPorCliente", [&] {
        const Key customer = KeyOf(arguments[0].Get());
        return ComboRecordSet("Nome", "Codigo",
                              SelectAnimalsOfCustomer(Data(), customer, arguments[1].Get().ToLong()));
    });
}

} // namespace kova::family
