#pragma once

#include "agenda/contracts/component_server.hpp"
#include "agenda/contracts/support/member_tables.hpp"
#include "family/presentation/labels/label_window.hpp"
#include "family/presentation/labels/registered_customer.hpp"

#include <functional>
#include <memory>

namespace kova::family {

/// KOVA_A_EmissorDeEtiquetas.clsEtiquetas: prints a customer's address on label sheets.
///
/// CodigoDoCliente, ApelidoOuNomeFantasiaDoCliente, NomeOuRazaoSocialDoCliente, NomeDaAplicacao (texts) and
/// DadosDoUsuario (object) are written before AbrirEmissaoDeEtiqueta(kind: Integer), which shows the window
/// and returns when the user has closed it. The only kind is 1, the address label; another fails with 5. The
/// two names go onto the label as they were given; where one is empty, the customer's own stands in.
///
/// What goes wrong is told to the user and does not leave the component. Without a screen nothing is shown.
class clsEtiquetas : public ByTables<clsEtiquetas> {
public:
    static constexpr std::string_view ClassName = "KOVA_A_EmissorDeEtiquetas.clsEtiquetas";
    using DeskMaker = std::function<std::unique_ptr<LabelDesk>(Toolkit& toolkit, const Text& title)>;

    /// The host must outlive it. `makeDesk` gives the desktop that the window asks.
    explicit clsEtiquetas(ServerHost& host, DeskMaker makeDesk = {});

    static std::span<const Method<clsEtiquetas>> Methods();
    /// None of them can be read.
    static std::span<const Property<clsEtiquetas>> Properties();

private:
    void CodigoDoCliente(const Value& value) { code_ = value.ToText(); }
    void ApelidoOuNomeFantasiaDoCliente(const Value& value) { nickname_ = value.ToText(); }
    void NomeOuRazaoSocialDoCliente(const Value& value) { name_ = value.ToText(); }
    void NomeDaAplicacao(const Value& value) { application_ = value.ToText(); }
    void DadosDoUsuario(const Value& value);
    Value AbrirEmissaoDeEtiqueta(std::span<Argument> arguments);
    void OpenLabels();
    /// Tells the user where the customer cannot get a label.
    bool MayHaveLabel(const std::optional<RegisteredCustomer>& customer);
    void ShowWindow(PostalAddress address);
    Text SettingsFile();
    /// Answers "" or why it could not be noted.
    QString NotePrint(Long sheets, const QString& file);
    void TellFailure(const Failure& failure, const Text& place) const;

    ServerHost& host_;
    DeskMaker makeDesk_;
    std::unique_ptr<LabelDesk> desk_;
    Text code_;
    Text nickname_;
    Text name_;
    Text application_;
    Value user_;
};

} // namespace kova::family
