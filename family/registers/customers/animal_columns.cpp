#include "family/registers/customers/animals.hpp"
#include "family/registers/description/column_kinds.hpp"

namespace kova::family::registers {

namespace {

using Cols = ColumnsOf<AnimalRecord>;
using Col = Column<AnimalRecord>;

constexpr Choice Sizes[] = {{1, "Pequeno"}, {2, "Médio"}, {3, "Grande"}, {4, "Gigante"}};
constexpr const char* BreedColumn = "codigo_da_raca";

Col Sex()
{
    Col column = Cols::InMember("Sexo", FieldKind::Choice, 5, &AnimalRecord::sexo);
    column.field.choices = {"Macho", "Fêmea"};
    column.read = [](const std::string& text, AnimalRecord& record) -> std::string {
        const std::string folded = FoldText(text);
        if (folded == "m" || folded == "macho")
            record.sexo = "M";
        else if (folded == "f" || folded == "femea")
            record.sexo = "F";
        else
            return "não é conhecido. Use Macho ou Fêmea.";
        return {};
    };
    column.write = [](const AnimalRecord& record) { return ShownSex(record.sexo); };
    return column;
}

Col NamedBy(Col column)
{
    column.field.stored = {BreedColumn};
    return column;
}

/// "9,82E+14": what a spreadsheet makes of a long number. Its last digits are lost.
bool IsShortened(std::string_view text)
{
    const std::size_t at = text.find_first_of("Ee");
    return at != std::string_view::npos && at > 0 && text.find_first_not_of("0123456789.,") == at
        && text.substr(at + 1).starts_with('+');
}

/// A chip is looked for by its digits.
Col Microchip()
{
    constexpr std::size_t Width = 30;
    Col column = Cols::Text("Microchip", &AnimalRecord::microchip, Width);
    column.read = [](const std::string& text, AnimalRecord& record) -> std::string {
        if (IsShortened(text))
            return "é um número que a planilha abreviou. Nela, dê à coluna o formato de texto e escreva o "
                   "número inteiro.";
        const std::string digits = DigitsOf(text);
        record.microchip = digits.empty() ? text : digits;
        return CheckWidth(text, Width);
    };
    return column;
}

} // namespace

void AnimalRecord::Complete() { nomeDeBusca = FoldText(nome); }

const Columns<AnimalRecord>& AnimalColumns()
{
    using namespace animal_columns;
    static const Columns<AnimalRecord> columns = {
        Cols::Code("Código", &AnimalRecord::codigo),
        AskedAs("Cliente",
                RefersTo("clientes", Required(Cols::Code(Customer, &AnimalRecord::codigoDoCliente)))),
        Required(Cols::Text("Nome", &AnimalRecord::nome, 100)),
        Required(Sex()),
        RefersTo("especies", Required(NamedBy(Cols::Text(Species, &AnimalRecord::species, 50)))),
        RefersTo("racas",
                 WithFormer(Helped("Vazia, é \"Sem raça definida\".",
                                   NamedBy(Cols::Text(Breed, &AnimalRecord::breed, 50))))),
        Required(Cols::OneOf("Porte", &AnimalRecord::porte, Sizes)),
        Cols::Text("Cor", &AnimalRecord::cor, 50),
        Helped("O número do chip, com ou sem pontuação.", Microchip()),
        Cols::Text("Observação", &AnimalRecord::observacao, 255),
        Helped("Um animal que morreu fica inativo.",
               Cols::OneOf("Situação", &AnimalRecord::situacao, ActiveOrNot)),
    };
    return columns;
}

} // namespace kova::family::registers
