#include "family/data/selections/day_selection.hpp"

#include "family/data/engine/search_text.hpp"

namespace kova::family {

namespace {

// In the order of DayRowOf::Members.
constexpr const char* Columns =
    "select a.numero, a.data_inicial, a.hora_inicial, a.data_final, a.hora_final, a.codigo_do_cliente,"
    " coalesce(c.apelido, a.nome_do_cliente), coalesce(c.nome, a.nome_do_cliente),"
    " coalesce(c.tipo_de_pessoa, 'PF'), coalesce(c.endereco_completo_com_cep, ''),"
    " coalesce(c.tipos_e_canais, a.canais_do_cliente), a.codigo_do_animal,"
    " coalesce(n.nome, a.nome_do_animal), coalesce(n.sexo, a.sexo_do_animal), coalesce(e.codigo, 0),"
    " coalesce(e.nome, a.especie_do_animal), coalesce(r.codigo, 0), coalesce(r.nome, a.raca_do_animal),"
    " coalesce(n.porte, 0), coalesce(n.cor, a.cor_do_animal), n.observacao, t.numero, t.nome, s.codigo,"
    " s.nome, s.duracao_em_minutos, f.codigo, f.apelido, f.nome, a.observacao, a.transporte_buscar,"
    " a.transporte_levar, a.situacao, a.incluido_em, a.incluido_por, a.alterado_em, a.alterado_por, a.versao"
    " from agendamento a"
    " join tipo_de_servico t on t.numero = a.numero_do_tipo_de_servico"
    " join servico s on s.codigo = a.codigo_do_servico"
    " join funcionario f on f.codigo = a.codigo_do_funcionario"
    " left join cliente c on c.codigo = a.codigo_do_cliente"
    " left join animal n on n.codigo = a.codigo_do_animal"
    " left join raca r on r.codigo = n.codigo_da_raca"
    " left join especie e on e.codigo = r.codigo_da_especie";

constexpr const char* Conditions =
    " where a.data_inicial = :data"
    " and (:situacao = 0 or a.situacao = :situacao)"
    " and (:tipo = 0 or a.numero_do_tipo_de_servico = :tipo)"
    " and (:funcionario = 0 or a.codigo_do_funcionario = :funcionario)"
    " and (:transporte = 0"
    " or (:transporte = 1 and a.transporte_buscar = 1 and a.transporte_levar = 1)"
    " or (:transporte = 2 and a.transporte_buscar = 1)"
    " or (:transporte = 3 and a.transporte_levar = 1))";

// The folded texts are compared where they lie, so that only the rows that are found are fetched. A
// comparison with a Null parameter holds for no row.
constexpr const char* TextCondition =
    " and (c.nomes_de_busca like :padrao escape '!' or c.endereco_de_busca like :padrao escape '!'"
    " or n.nome_de_busca like :padrao escape '!'"
    " or a.texto_de_busca like :padrao escape '!' or c.codigo = :codigo or n.codigo = :codigo"
    " or c.documento = :digitos or n.microchip = :digitos)";

constexpr const char* Order = " order by a.data_inicial, a.hora_inicial, a.numero";

class DaySelection : public RowSelection<DayRowOf> {
public:
    DayRows Run(const DayFilter& filter, const SearchText& text)
    {
        filter_ = filter;
        text_ = text;
        return Fetch();
    }

protected:
    DaySelection(Database& database, bool searchesText) : RowSelection(database)
    {
        Use(filter_.date, "data");
        Use(filter_.status, "situacao");
        Use(filter_.serviceType, "tipo");
        Use(filter_.employee, "funcionario");
        Use(filter_.transport, "transporte");
        if (searchesText)
            UseText();
        Prepare(std::string(Columns) + Conditions + (searchesText ? TextCondition : "") + Order);
    }

private:
    void UseText()
    {
        Use(text_.pattern, "padrao");
        Use(text_.code, "codigo");
        Use(text_.number, "digitos");
    }

    DayFilter filter_;
    SearchText text_;
};

struct WholeDay : DaySelection {
    explicit WholeDay(Database& database) : DaySelection(database, false) { }
};
struct SearchedDay : DaySelection {
    explicit SearchedDay(Database& database) : DaySelection(database, true) { }
};

} // namespace

DayRows SelectDay(Database& database, const DayFilter& filter)
{
    const SearchText text(filter.text);
    const auto run = [&](DaySelection& selection) { return selection.Run(filter, text); };
    return text.IsEmpty() ? database.With<WholeDay>(run) : database.With<SearchedDay>(run);
}

std::string DayStatement() { return std::string(Columns) + Conditions + Order; }

} // namespace kova::family
