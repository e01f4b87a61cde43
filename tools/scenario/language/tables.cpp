#include "tools/scenario/language/tables.hpp"

#include "tools/scenario/language/line_reader.hpp"

#include <algorithm>
#include <utility>

namespace kova::scenario {

namespace {

/// What a script's appointment is unless its row says otherwise: a bath of an hour on the morning of the
/// script's usual day, for a registered customer's dog. The number is each row's own.
const std::vector<std::pair<const char*, Value>>& UsualAppointment()
{
    static const std::vector<std::pair<const char*, Value>> usual{
        {"NumeroDeLancamento", 1.0},
        {"DataInicial", "20/11/2026"},
        {"HoraInicial", "08:00"},
        {"DataFinal", "20/11/2026"},
        {"HoraFinal", "09:00"},
        {"CodigoDoCliente", 12.0},
        {"ApelidoOuNomeFantasiaDoCliente", "Zé"},
        {"NomeOuRazaoSocialDoCliente", "José Antônio da Silva"},
        {"TipoDeCliente", "PF"},
        {"EnderecoCompletoComCEP", "Rua das Flores, 10 - 01000-000"},
        {"TiposECanaisDeComunicacao", "Celular: 00000-0000"},
        {"CodigoDoAnimal", Long{3}},
        {"NomeDoAnimal", "Rex"},
        {"SexoDoAnimal", "Macho"},
        {"CodigoDaEspecie", Long{1}},
        {"NomeDaEspecie", "Cão"},
        {"CodigoDaRaca", Long{2}},
        {"NomeDaRaca", "Poodle"},
        {"PorteDoAnimal", "Pequeno"},
        {"CorDoAnimal", "Branco"},
        {"ObservacaoDoAnimal", Null{}},
        {"NumeroDoTipoDeServico", Long{4}},
        {"NomeDoTipoDeServico", "Banho e tosa"},
        {"CodigoDoServico", 8.0},
        {"NomeDoServico", "Banho"},
        {"TempoDeExecucao", "01:00"},
        {"CodigoDoFuncionario", Long{7}},
        {"ApelidoDoFuncionario", "Ana"},
        {"NomeDoFuncionario", "Ana Souza"},
        {"Observacao", Null{}},
        {"TransporteBuscar", "Sim"},
        {"TransporteLevar", "Não"},
        {"Situacao", Long{1}},
        {"DataEHoraDaInclusao", "19/11/2026 17:45:10"},
        {"UsuarioDaInclusao", "Maria"},
        {"DataEHoraDaAlteracao", Null{}},
        {"UsuarioDaAlteracao", Null{}},
    };
    return usual;
}

/// The values between the commas of a line.
std::vector<Token> ParseCells(std::string_view line, const ScriptLine& place)
{
    std::vector<Token> cells;
    LineReader reader(line, place);
    while (reader.More()) {
        Token token = reader.Next(",");
        if (!token.quoted)
            token.text.erase(token.text.find_last_not_of(" \t") + 1);
        cells.push_back(std::move(token));
        if (reader.More() && !reader.TakeIf(','))
            throw ScriptError(place, "falta uma vírgula entre os valores");
    }
    return cells;
}

std::vector<Value> ParseRow(const std::vector<Token>& cells, std::size_t fields, const ScriptLine& place)
{
    std::vector<Value> row;
    for (const Token& cell : cells)
        row.push_back(ParseValue(cell, place));
    if (row.size() != fields)
        throw ScriptError(place,
                          "a linha tem " + std::to_string(row.size()) + " valores e a tabela tem "
                              + std::to_string(fields) + " campos");
    return row;
}

/// A number without a point counts as one with it, as data tiers give an appointment's number.
Value NumberOf(const Token& cell, const ScriptLine& place)
{
    const Value number = cell.quoted ? Value() : ParseValue(cell, place);
    if (number.GetType() != ValueType::Long && number.GetType() != ValueType::Double)
        throw ScriptError(place, "a linha deve começar pelo número do agendamento");
    return number.ToDouble();
}

std::vector<Value> ParseAppointment(const std::vector<Token>& cells, const ScriptLine& place)
{
    const auto& usual = UsualAppointment();
    std::vector<Value> row;
    for (const auto& [field, value] : usual)
        row.push_back(value);
    row.front() = NumberOf(cells.front(), place);
    for (std::size_t at = 1; at < cells.size(); ++at) {
        const NamedValue exception = ParseNamedValue(cells[at], place);
        const auto field = std::find_if(usual.begin(), usual.end(),
                                        [&](const auto& each) { return exception.name == each.first; });
        if (field == usual.end())
            throw ScriptError(place, "'" + exception.name + "' não é um campo de agendamento");
        row[static_cast<std::size_t>(field - usual.begin())] = exception.value;
    }
    return row;
}

bool IsEnd(std::string_view line, const ScriptLine& place)
{
    LineReader reader(line, place);
    return reader.More() && line.find("end") != std::string_view::npos && reader.Next().text == "end";
}

/// Gives `take` the cells of each row up to `end`.
template <class Take> void ForEachRow(ScriptLines& lines, const Statement& head, Take take)
{
    for (; lines.at < lines.lines.size(); ++lines.at) {
        const std::string_view line = lines.lines[lines.at];
        const ScriptLine place = lines.Here();
        if (IsEnd(line, place)) {
            ++lines.at;
            return;
        }
        if (LineReader(line, place).More())
            take(ParseCells(line, place), place);
    }
    throw ScriptError(head.line, "falta o 'end' da tabela");
}

} // namespace

RecordTable ParseRecords(ScriptLines& lines, const Statement& head)
{
    RecordTable table;
    for (std::size_t word = 1; word < head.words.size(); ++word)
        table.fields.push_back(head.Word(word));
    ForEachRow(lines, head, [&](const std::vector<Token>& cells, const ScriptLine& place) {
        table.rows.push_back(ParseRow(cells, table.fields.size(), place));
    });
    return table;
}

RecordTable ParseAppointments(ScriptLines& lines, const Statement& head)
{
    head.ExpectAtMost(1);
    RecordTable table;
    for (const auto& [field, value] : UsualAppointment())
        table.fields.push_back(field);
    ForEachRow(lines, head, [&](const std::vector<Token>& cells, const ScriptLine& place) {
        table.rows.push_back(ParseAppointment(cells, place));
    });
    return table;
}

} // namespace kova::scenario
