#include "family/business/combo_selection.hpp"

#include "agenda/contracts/support/memory_record_set.hpp"
#include "family/data/engine/fold_text.hpp"

#include <algorithm>
#include <utility>

namespace kova::family {

namespace {

class ComboSelection : public KeptStatement {
public:
    std::vector<ComboRow> Run(long long key)
    {
        key_ = key;
        std::vector<ComboRow> rows;
        statement_.execute();
        while (statement_.fetch())
            rows.push_back(row_);
        return rows;
    }

    /// For a statement that also asks for the group of the rows.
    std::vector<ComboRow> Run(long long group, long long key)
    {
        group_ = group;
        return Run(key);
    }

protected:
    ComboSelection(Database& database, const char* statement)
        : statement_((database.Session().prepare << statement, soci::use(key_, "chave"),
                      soci::into(row_.text), soci::into(row_.key)))
    {
    }

    struct OfGroup { };
    ComboSelection(OfGroup, Database& database, const char* statement)
        : statement_((database.Session().prepare << statement, soci::use(key_, "chave"),
                      soci::use(group_, "grupo"), soci::into(row_.text), soci::into(row_.key)))
    {
    }

private:
    long long key_ = 0, group_ = 0;
    ComboRow row_;
    soci::statement statement_;
};

struct ServiceTypesByName : ComboSelection {
    explicit ServiceTypesByName(Database& database)
        : ComboSelection(database,
                         "select nome, numero from tipo_de_servico"
                         " where situacao = 1 and (:chave = 0 or numero = :chave)"
                         " order by nome_de_busca, numero")
    {
    }
};

/// Shown by their nicknames, of which the register keeps no searchable form.
struct EmployeesByCode : ComboSelection {
    explicit EmployeesByCode(Database& database)
        : ComboSelection(database,
                         "select apelido, codigo from funcionario"
                         " where situacao = 1 and (:chave = 0 or codigo = :chave)"
                         " order by codigo")
    {
    }
};

struct SpeciesByName : ComboSelection {
    explicit SpeciesByName(Database& database)
        : ComboSelection(database,
                         "select nome, codigo from especie"
                         " where situacao = 1 and (:chave = 0 or codigo = :chave)"
                         " order by nome_de_busca, codigo")
    {
    }
};

struct BreedsByName : ComboSelection {
    explicit BreedsByName(Database& database)
        : ComboSelection(OfGroup(), database,
                         "select nome, codigo from raca where codigo_da_especie = :grupo"
                         " and situacao = 1 and (:chave = 0 or codigo = :chave)"
                         " order by nome_de_busca, codigo")
    {
    }
};

struct AnimalsByName : ComboSelection {
    explicit AnimalsByName(Database& database)
        : ComboSelection(OfGroup(), database,
                         "select nome, codigo from animal where codigo_do_cliente = :grupo"
                         " and (:chave = 0 or situacao = :chave) order by nome_de_busca, codigo")
    {
    }
};

/// In the order of what is read, without regard to case and accents; rows that read alike stay as they come.
std::vector<ComboRow> ByShownText(std::vector<ComboRow> rows)
{
    std::vector<std::pair<std::string, ComboRow>> keyed;
    keyed.reserve(rows.size());
    for (ComboRow& row : rows) {
        std::string read = FoldText(row.text);
        keyed.emplace_back(std::move(read), std::move(row));
    }
    std::ranges::stable_sort(keyed, {}, &std::pair<std::string, ComboRow>::first);
    for (std::size_t at = 0; at < rows.size(); ++at)
        rows[at] = std::move(keyed[at].second);
    return rows;
}

template <class Selection, class... Keys> std::vector<ComboRow> Run(Database& database, Keys... keys)
{
    return database.With<Selection>([&](Selection& selection) { return selection.Run(keys...); });
}

} // namespace

std::vector<ComboRow> SelectServiceTypes(Database& database, long long key)
{
    return Run<ServiceTypesByName>(database, key);
}

std::vector<ComboRow> SelectEmployees(Database& database, long long key)
{
    return ByShownText(Run<EmployeesByCode>(database, key));
}

std::vector<ComboRow> SelectSpecies(Database& database, long long key)
{
    return Run<SpeciesByName>(database, key);
}

std::vector<ComboRow> SelectBreeds(Database& database, long long species, long long key)
{
    return Run<BreedsByName>(database, species, key);
}

std::vector<ComboRow> SelectAnimalsOfCustomer(Database& database, long long customer, int situation)
{
    return Run<AnimalsByName>(database, customer, situation);
}

RecordSetRef ComboRecordSet(const char* textField, const char* keyField, const std::vector<ComboRow>& rows)
{
    std::vector<std::vector<Value>> values;
    values.reserve(rows.size());
    for (const ComboRow& row : rows)
        values.push_back({row.text, static_cast<Long>(row.key)});
    return std::make_shared<MemoryRecordSet>(std::vector<Text>{textField, keyField}, values);
}

} // namespace kova::family
