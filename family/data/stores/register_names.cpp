#include "family/data/stores/register_names.hpp"

#include "family/data/rows/find_by_key.hpp"

namespace kova::family {

namespace {

/// `Register` has the table and the columns of key and name.
template <class Register> struct NameIn {
    static constexpr const char* Table = Register::Table;
    Key key = 0;
    std::string name;

    template <class Visit> void Columns(Visit visit)
    {
        visit(Register::Key, key);
        visit(Register::Name, name);
    }
};

struct Customer {
    static constexpr const char *Table = "cliente", *Key = "codigo", *Name = "apelido";
};
struct Animal {
    static constexpr const char *Table = "animal", *Key = "codigo", *Name = "nome";
};
struct ServiceType {
    static constexpr const char *Table = "tipo_de_servico", *Key = "numero", *Name = "nome";
};
struct Service {
    static constexpr const char *Table = "servico", *Key = "codigo", *Name = "nome";
};
struct Employee {
    static constexpr const char *Table = "funcionario", *Key = "codigo", *Name = "apelido";
};

template <class Register> std::string Named(Database& database, Key key)
{
    if (key == 0)
        return {};
    const auto found = FindByKey<NameIn<Register>>(database, key);
    return std::to_string(key) + (found && !found->name.empty() ? " - " + found->name : "");
}

} // namespace

std::string NamedCustomer(Database& database, Key code) { return Named<Customer>(database, code); }
std::string NamedAnimal(Database& database, Key code) { return Named<Animal>(database, code); }
std::string NamedServiceType(Database& database, Key number) { return Named<ServiceType>(database, number); }
std::string NamedService(Database& database, Key code) { return Named<Service>(database, code); }
std::string NamedEmployee(Database& database, Key code) { return Named<Employee>(database, code); }

} // namespace kova::family
