#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_Dados.clsImpressoes: has the audit tell that data of customers have left the shop on paper. Of
/// DadosDoUsuario (object), which is written before, it takes the author.
class PrintComponent : public ByName<PrintComponent> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_Dados.clsImpressoes";

    explicit PrintComponent(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<PrintComponent>> Methods();
    static std::span<const Property<PrintComponent>> Properties();

private:
    void DadosDoUsuario(const Value& user);
    /// Of a document that was printed: its title (Text), its pages (Long), the PDF file that it has gone into
    /// instead of a printer (Text, else ""), and the code of the customer whom alone it is about, if any
    /// (Text). Answers 0, or 1 with the reason in DescricaoDoErro.
    Value Registrar(std::span<Argument> arguments);

    ObjectRef user_;
};

} // namespace kova::family
