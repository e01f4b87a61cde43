#include "family/business/combo_selection.hpp"

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

protected:
    ComboSelection(Database& database, const char* statement)
        : statement_((database.Session().prepare << statement, soci::use(key_, "chave"),
                      soci::into(row_.text), soci::into(row_.key)))
    {
    }

private:
    long long key_ = 0;
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

struct EmployeesByName : ComboSelection {
    explicit EmployeesByName(Database& database)
        : ComboSelection(database,
                         "select apelido, codigo from funcionario"
                         " where situacao = 1 and (:chave = 0 or codigo = :chave)"
                         " order by nome_de_busca, codigo")
    {
    }
};

template <class Selection> std::vector<ComboRow> Run(Database& database, long long key)
{
    return database.With<Selection>([&](Selection& selection) { return selection.Run(key); });
}

} // namespace

std::vector<ComboRow> SelectServiceTypes(Database& database, long long key)
{
    return Run<ServiceTypesByName>(database, key);
}

std::vector<ComboRow> SelectEmployees(Database& database, long long key)
{
    return Run<EmployeesByName>(database, key);
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
