#pragma once

#include "family/business/by_name.hpp"
#include "family/business/shop/background_backup.hpp"

#include <memory>

namespace kova::family {

/// KOVA_N_Dados.clsBanco: the data source itself, for the host, before it opens a screen. Each method
/// answers 0, or 1 with the reason, its path and what to do in DescricaoDoErro.
class DatabaseComponent : public ByName<DatabaseComponent> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_Dados.clsBanco";

    explicit DatabaseComponent(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<DatabaseComponent>> Methods();
    static std::span<const Property<DatabaseComponent>> Properties();

private:
    /// Text: the host's data source.
    Value Caminho() const;
    /// Boolean: whether anything stands at that path; on a server, whether the agenda's tables are there.
    Value Existe() const;
    /// Text: trade name of the first company; "" before Abrir and where none is registered.
    Value NomeFantasia() const { return tradeName_; }

    /// Text: what Abrir has done to bring an older schema up to date, for the user; "" where it was not
    /// older.
    Value Atualizacao() const { return update_; }

    /// Boolean: whether the shop had users when Abrir looked; false before.
    Value TemUsuarios() const { return hasUsers_; }
    /// Boolean: whether it is a fictional shop, in which nothing that is booked counts; false before Abrir.
    Value Demonstracao() const { return isFictional_; }

    /// Boolean: whoever is at the desk may not see prices and costs, so that what the components show of them
    /// is empty from then on. Write-only.
    void OcultarPrecos(const Value& value);

    /// Boolean: whether the components of this process have written the line of the audit with that code
    /// (Double), about that table (Text) and key (Double).
    Value GravouALinha(std::span<Argument> arguments);

    /// Looks whether the data source can be opened, and changes nothing.
    Value Verificar(std::span<Argument>);
    /// Opens it for the whole process, bringing an older schema up to date.
    Value Abrir(std::span<Argument>);
    /// Lets go of it; it closes when the last component that uses it ends.
    Value Fechar(std::span<Argument>);
    /// Makes the demonstration shop there. Without an argument around today, else around that date,
    /// "dd/mm/yyyy". Refused where Existe.
    Value CriarDemonstracao(std::span<Argument> arguments);

    /// Begins to make, in the background, the copy of the day "dd/mm/yyyy" beside a file, where it is not
    /// there yet. It is given up when the object goes.
    Value IniciarCopiaDoDia(std::span<Argument> arguments);
    /// Boolean: whether the copy that was begun has come to its end.
    Value CopiaDoDiaTerminou() const;
    /// Text: why it could not be made; "" where nothing is known against it.
    Value FalhaDaCopiaDoDia() const;

    Text tradeName_;
    Text update_;
    bool hasUsers_ = false, isFictional_ = false;
    std::unique_ptr<BackgroundBackup> backup_;
};

} // namespace kova::family
