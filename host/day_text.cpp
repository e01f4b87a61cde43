#include "host/day_text.hpp"

#include "agenda/contracts/text.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modConstantes.hpp"

#include <algorithm>
#include <array>
#include <vector>

namespace kova::host {

namespace {

namespace colunas = agenda::colunas;
namespace situacao = agenda::situacao;

struct Column {
    const char* title;
    Long number;
};
constexpr std::array<Column, 5> Columns{{
    {"Hora", colunas::HoraInicial},
    {"Cliente", colunas::NomeOuRazaoSocialDoCliente},
    {"Animal", colunas::NomeDoAnimal},
    {"Serviço", colunas::NomeDoServico},
    {"Situação", colunas::Situacao},
}};

using Line = std::array<Text, Columns.size()>;

Text NameOfSituation(const Text& code)
{
    const Double number = std::max(Val(code), 0.0);
    const bool isNamed = number < static_cast<Double>(situacao::Nomes.size());
    return isNamed ? situacao::Nomes[static_cast<std::size_t>(number)] : code;
}

Line TitleLine()
{
    Line line;
    for (std::size_t i = 0; i < Columns.size(); ++i)
        line[i] = Columns[i].title;
    return line;
}

Line LineOf(const MSFlexGrid& grid, Long row)
{
    Line line;
    for (std::size_t i = 0; i < Columns.size(); ++i) {
        line[i] = grid.TextMatrix(row, Columns[i].number);
        if (Columns[i].number == colunas::Situacao)
            line[i] = NameOfSituation(line[i]);
    }
    return line;
}

std::string Aligned(const std::vector<Line>& lines)
{
    std::string text;
    for (const Line& line : lines) {
        std::string row;
        for (std::size_t i = 0; i < line.size(); ++i) {
            std::size_t width = 0;
            for (const Line& other : lines)
                width = std::max(width, Length(other[i]));
            row += line[i] + std::string(width - Length(line[i]) + 2, ' ');
        }
        text += row.substr(0, row.find_last_not_of(' ') + 1) + "\n";
    }
    return text;
}

std::string TableOf(const MSFlexGrid& grid, Long rows)
{
    const Long last = std::min(grid.Rows() - 1, rows);
    std::vector<Line> lines{TitleLine()};
    for (Long row = 1; row <= last; ++row)
        lines.push_back(LineOf(grid, row));
    std::string text = Aligned(lines);
    if (const Long more = grid.Rows() - 1 - last; more > 0)
        text += "... e mais " + std::to_string(more) + " nesta página\n";
    return text;
}

} // namespace

std::string DayAsText(Form& list, Long rows)
{
    const auto& grid = dynamic_cast<const MSFlexGrid&>(list.Control("msfgGrade"));
    const auto& result = dynamic_cast<const Label&>(list.Control("lblMensagemDeResultado"));
    const auto& date = dynamic_cast<const KVDTPicker&>(list.Control("kvdtpDataDeAgendamento"));
    const std::string heading = "Agenda de " + date.Text() + "\n";
    return heading + (result.Visible() ? result.Caption() + "\n" : TableOf(grid, rows));
}

} // namespace kova::host
