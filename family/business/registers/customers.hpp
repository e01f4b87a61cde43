#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_ClientAnim.clsClientes: the customers.
class Customers : public ByName<Customers> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_ClientAnim.clsClientes";

    explicit Customers(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<Customers>> Methods();
    static std::span<const Property<Customers>> Properties();

private:
    /// Mode, rows of a page, a constant, free text, nickname or name, code, address, and four constants; no
    /// constant changes anything. Customers of every situation.
    Value Selecionar(std::span<Argument> arguments);
    /// The address of the customer with that code (Double), in its parts: one row, whatever the customer's
    /// situation, or none.
    Value SelecionarEndereco(std::span<Argument> arguments);
    void DadosDoUsuario(const Value& user);
};

} // namespace kova::family
