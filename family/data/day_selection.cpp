#include "family/data/day_selection.hpp"

#include "agenda/contracts/text.hpp"
#include "family/data/fold_text.hpp"

#include <charconv>

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
    " a.transporte_levar, a.situacao, a.incluido_em, a.incluido_por, a.alterado_em, a.alterado_por"
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
    " and (c.texto_de_busca like :padrao escape '!' or n.nome_de_busca like :padrao escape '!'"
    " or a.texto_de_busca like :padrao escape '!' or c.codigo = :codigo or n.codigo = :codigo"
    " or c.documento = :digitos or n.microchip = :digitos)";

constexpr const char* Order = " order by a.data_inicial, a.hora_inicial, a.numero";

/// The variables of the statement. Their texts keep their memory from row to row.
using FetchedRow = DayRowOf<std::string>;

void KeepMember(long long from, long long& to, TextArena&) { to = from; }
void KeepMember(int from, int& to, TextArena&) { to = from; }
void KeepMember(const std::string& from, std::string_view& to, TextArena& texts) { to = texts.Keep(from); }
void KeepMember(const Nullable<long long>& from, Nullable<long long>& to, TextArena&) { to = from; }
void KeepMember(const Nullable<std::string>& from, Nullable<std::string_view>& to, TextArena& texts)
{
    if (!from.IsNull())
        to = texts.Keep(from.value);
}

template <std::size_t... At>
void KeepMembers(FetchedRow& from, DayRow& to, TextArena& texts, std::index_sequence<At...>)
{
    auto source = from.Members();
    auto target = to.Members();
    (KeepMember(std::get<At>(source), std::get<At>(target), texts), ...);
}

void Keep(FetchedRow& fetched, DayRows& day)
{
    constexpr std::size_t members = std::tuple_size_v<decltype(fetched.Members())>;
    KeepMembers(fetched, day.rows.emplace_back(), day.texts, std::make_index_sequence<members>());
}

/// The prepared selection with its variables.
class DaySelection : public KeptStatement {
public:
    DayRows Run(const DayFilter& filter)
    {
        filter_ = filter;
        Prepare(filter.text);
        DayRows day;
        day.rows.reserve(rowsOfFormerDay_);
        statement_.execute();
        while (statement_.fetch())
            Keep(row_, day);
        rowsOfFormerDay_ = day.rows.size();
        return day;
    }

protected:
    DaySelection(Database& database, bool searchesText) : statement_(database.Session())
    {
        statement_.alloc();
        BindRow();
        BindFilter();
        if (searchesText)
            BindText();
        statement_.prepare(std::string(Columns) + Conditions + (searchesText ? TextCondition : "") + Order);
        statement_.define_and_bind();
    }

private:
    template <class T> void Into(T& field) { statement_.exchange(soci::into(field)); }
    template <class T> void Into(Nullable<T>& field)
    {
        statement_.exchange(soci::into(field.value, field.state));
    }

    void BindRow()
    {
        std::apply([this](auto&... members) { (Into(members), ...); }, row_.Members());
    }

    void BindFilter()
    {
        statement_.exchange(soci::use(filter_.date, "data"));
        statement_.exchange(soci::use(filter_.status, "situacao"));
        statement_.exchange(soci::use(filter_.serviceType, "tipo"));
        statement_.exchange(soci::use(filter_.employee, "funcionario"));
        statement_.exchange(soci::use(filter_.transport, "transporte"));
    }

    void BindText()
    {
        statement_.exchange(soci::use(pattern_, "padrao"));
        statement_.exchange(soci::use(code_.value, code_.state, "codigo"));
        statement_.exchange(soci::use(digits_.value, digits_.state, "digitos"));
    }

    void Prepare(const std::string& text)
    {
        pattern_ = ContainsPattern(FoldText(text));
        code_ = {};
        digits_ = {};
        const std::string digits = DigitsOf(text);
        if (digits.empty())
            return;
        digits_ = digits;
        long long code = 0;
        const char* end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, code);
        if (error == std::errc() && stop == end)
            code_ = code;
    }

    DayFilter filter_;
    std::string pattern_;
    Nullable<long long> code_;
    Nullable<std::string> digits_;
    FetchedRow row_;
    std::size_t rowsOfFormerDay_ = 0;
    soci::statement statement_;
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
    DayFilter trimmed = filter;
    trimmed.text = Trim(filter.text);
    const auto run = [&](DaySelection& selection) { return selection.Run(trimmed); };
    return trimmed.text.empty() ? database.With<WholeDay>(run) : database.With<SearchedDay>(run);
}

std::string DayStatement() { return std::string(Columns) + Conditions + Order; }

} // namespace kova::family
