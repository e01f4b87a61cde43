#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_ClientAnim.clsAnimais: the customers' animals.
class Animals : public ByName<Animals> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_ClientAnim.clsAnimais";

    explicit Animals(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<Animals>> Methods();
    static std::span<const Property<Animals>> Properties();

private:
    /// Mode, rows of a page, a constant, code or text, a constant, customer; no constant changes anything.
    /// A number is an animal's code within the customer. A text is a part of the name, a code or a
    /// microchip of active animals, of all customers where the customer is 0.
    ///
    /// 2 where the code is an inactive animal's: DescricaoDaFalha says so and the former result stays.
    Value Selecionar(std::span<Argument> arguments);

    /// A customer's code, and the situation of the animals: 1 active, 2 inactive, 0 both.
    Value SelecionarParaComboBoxFiltradoPorCliente(std::span<Argument> arguments);

    /// Why the last selection was refused; "" where it was not.
    Value DescricaoDaFalha() const { return refusal_; }

    Value SelectByCode(std::span<Argument> arguments);
    Value SelectByText(std::span<Argument> arguments);

    Text refusal_;
};

} // namespace kova::family
