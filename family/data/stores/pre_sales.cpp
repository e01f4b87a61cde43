#include "family/data/stores/pre_sales.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/stamp.hpp"
#include "family/data/engine/database.hpp"

namespace kova::family {

namespace {

constexpr const char* Table = "pre_venda";

class PreSaleSelection : public KeptStatement {
public:
    explicit PreSaleSelection(Database& database)
        : statement_((database.Session().prepare
                          << "select codigo, situacao from pre_venda"
                             " where numero_do_agendamento = :numero and situacao <> 2 order by codigo"
                              + database.GetDialect().lockRow,
                      soci::into(row_.code), soci::into(row_.status), soci::use(appointment_, "numero")))
    {
    }

    std::vector<PreSale> Run(Key appointment)
    {
        appointment_ = appointment;
        std::vector<PreSale> rows;
        statement_.execute();
        while (statement_.fetch())
            rows.push_back(row_);
        return rows;
    }

private:
    Key appointment_ = 0;
    PreSale row_;
    soci::statement statement_;
};

class PreSaleInsertion : public KeptStatement {
public:
    explicit PreSaleInsertion(Database& database)
        : statement_((database.Session().prepare
                          << "insert into pre_venda (numero_do_agendamento, valor_em_centavos, situacao,"
                             " criada_em) values (:numero, :valor, 1, :momento) returning codigo",
                      soci::into(code_), soci::use(appointment_, "numero"), soci::use(price_, "valor"),
                      soci::use(moment_, "momento")))
    {
    }

    /// Answers the code that the engine gave. An insertion that answers a row is over only when it has
    /// been walked to its end.
    Key Run(Key appointment, Key priceInCents, const std::string& moment)
    {
        appointment_ = appointment;
        price_ = priceInCents;
        moment_ = moment;
        Key code = 0;
        statement_.execute();
        while (statement_.fetch())
            code = code_;
        return code;
    }

private:
    Key code_ = 0, appointment_ = 0, price_ = 0;
    std::string moment_;
    soci::statement statement_;
};

class PreSaleCancellation : public KeptStatement {
public:
    explicit PreSaleCancellation(Database& database)
        : statement_((database.Session().prepare
                          << "update pre_venda set situacao = 2 where codigo = :codigo and situacao <> 3",
                      soci::use(code_, "codigo")))
    {
    }

    /// False where it was billed: nothing is written then.
    bool Run(Key code)
    {
        code_ = code;
        statement_.execute(true);
        return statement_.get_affected_rows() == 1;
    }

private:
    Key code_ = 0;
    soci::statement statement_;
};

} // namespace

std::vector<PreSale> FindPreSales(Database& database, Key appointment)
{
    return database.With<PreSaleSelection>(
        [&](PreSaleSelection& selection) { return selection.Run(appointment); });
}

void CreatePreSale(Database& database, Key appointment, Key priceInCents, const Author& author)
{
    const std::string moment = StampOfRow(database, author);
    const Key code = database.With<PreSaleInsertion>(
        [&](PreSaleInsertion& insertion) { return insertion.Run(appointment, priceInCents, moment); });
    AuditValues after;
    after.Add("numero_do_agendamento", appointment)
        .Add("valor_em_centavos", priceInCents)
        .Add("situacao", pre_sale_status::Open)
        .Add("criada_em", moment);
    AuditInsertion(database, author, Table, code, after);
}

bool CancelPreSale(Database& database, const PreSale& preSale, const Author& author)
{
    const bool cancelled = database.With<PreSaleCancellation>(
        [&](PreSaleCancellation& update) { return update.Run(preSale.code); });
    if (cancelled)
        AuditChange(database, author, Table, preSale.code, AuditValues().Add("situacao", preSale.status),
                    AuditValues().Add("situacao", pre_sale_status::Cancelled));
    return cancelled;
}

} // namespace kova::family
