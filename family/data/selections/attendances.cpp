#include "family/data/selections/attendances.hpp"

#include "family/data/selections/rows_by_code.hpp"

namespace kova::family {

namespace {

/// A prepared selection of keys by two others. The derived class has the statement; its parameters are
/// `de` and `escolha`.
class KeysOf : public KeptStatement {
public:
    std::vector<Key> Run(Key of, Key choice)
    {
        of_ = of;
        choice_ = choice;
        std::vector<Key> keys;
        statement_.execute();
        while (statement_.fetch())
            keys.push_back(key_);
        return keys;
    }

protected:
    KeysOf(Database& database, const char* text, bool hasChoice) : statement_(database.Session())
    {
        statement_.alloc();
        statement_.exchange(soci::into(key_));
        TakeFrom(statement_, of_, "de");
        if (hasChoice)
            TakeFrom(statement_, choice_, "escolha");
        statement_.prepare(text);
        statement_.define_and_bind();
    }

private:
    Key key_ = 0, of_ = 0, choice_ = 0;
    soci::statement statement_;
};

struct NumbersOfCustomer : KeysOf {
    explicit NumbersOfCustomer(Database& database)
        : KeysOf(database,
                 "select numero from agendamento where codigo_do_cliente = :de"
                 " and (:escolha = 0 or codigo_do_animal = :escolha)"
                 " order by data_inicial desc, hora_inicial desc, numero desc",
                 true)
    {
    }
};

struct NumbersOfAnimal : KeysOf {
    explicit NumbersOfAnimal(Database& database)
        : KeysOf(database,
                 "select numero from agendamento where codigo_do_animal = :de"
                 " order by data_inicial desc, hora_inicial desc, numero desc",
                 false)
    {
    }
};

struct PackageCodes : KeysOf {
    explicit PackageCodes(Database& database)
        : KeysOf(database,
                 "select distinct codigo_do_pacote from agendamento where codigo_do_cliente = :de"
                 " and codigo_do_pacote is not null order by codigo_do_pacote desc",
                 false)
    {
    }
};

struct AttendanceRows : RowsByCode<AttendanceOf> {
    explicit AttendanceRows(Database& database)
        : RowsByCode(database,
                     "select a.numero, a.data_inicial, a.hora_inicial, coalesce(n.nome, a.nome_do_animal),"
                     " s.nome, case when f.apelido = '' then f.nome else f.apelido end, a.situacao,"
                     " coalesce((select max(p.valor_em_centavos) from pre_venda p"
                     " where p.numero_do_agendamento = a.numero and p.situacao <> 2), s.preco_em_centavos)"
                     " from agendamento a"
                     " join servico s on s.codigo = a.codigo_do_servico"
                     " join funcionario f on f.codigo = a.codigo_do_funcionario"
                     " left join animal n on n.codigo = a.codigo_do_animal",
                     "a.numero")
    {
    }
};

struct BalanceRows : RowsByCode<PackageBalanceOf> {
    explicit BalanceRows(Database& database)
        : RowsByCode(database,
                     "select p.codigo, s.nome, p.criado_em, s.quantidade_de_sessoes,"
                     " (select count(*) from agendamento a where a.codigo_do_pacote = p.codigo"
                     " and a.situacao in (2, 4)),"
                     " (select count(*) from agendamento a where a.codigo_do_pacote = p.codigo"
                     " and a.situacao = 1),"
                     " (select count(*) from agendamento a where a.codigo_do_pacote = p.codigo"
                     " and a.situacao = 3)"
                     " from pacote p join servico s on s.codigo = p.codigo_do_servico",
                     "p.codigo")
    {
    }
};

template <class Statement> std::vector<Key> KeysBy(Database& database, Key of, Key choice = 0)
{
    return database.With<Statement>([&](Statement& statement) { return statement.Run(of, choice); });
}

/// As many at once as a statement takes.
template <class Statement, template <class> class RowOf>
KeptRows<RowOf> RowsBy(Database& database, std::span<const Key> codes)
{
    using Row = RowOf<std::string_view>;
    KeptRows<RowOf> kept;
    for (std::size_t first = 0; first < codes.size(); first += MostRowsAtOnce)
        FetchInOrder<Statement>(database,
                                codes.subspan(first, std::min(MostRowsAtOnce, codes.size() - first)), kept,
                                [](Key) { return Row(); });
    std::erase_if(kept.rows, [](const Row& row) { return row.codigo == 0; });
    return kept;
}

} // namespace

std::vector<Key> AppointmentsOfCustomer(Database& database, Key customer, Key animal)
{
    return KeysBy<NumbersOfCustomer>(database, customer, animal);
}

std::vector<Key> AppointmentsOfAnimal(Database& database, Key animal)
{
    return KeysBy<NumbersOfAnimal>(database, animal);
}

Attendances SelectAttendances(Database& database, std::span<const Key> numbers)
{
    return RowsBy<AttendanceRows, AttendanceOf>(database, numbers);
}

std::vector<Key> PackagesOfCustomer(Database& database, Key customer)
{
    return KeysBy<PackageCodes>(database, customer);
}

PackageBalances SelectPackageBalances(Database& database, std::span<const Key> packages)
{
    return RowsBy<BalanceRows, PackageBalanceOf>(database, packages);
}

} // namespace kova::family
