#pragma once

#include "agenda/contracts/reports.hpp"
#include "agenda/contracts/value.hpp"

#include <memory>
#include <vector>

namespace kova::agenda {

class frmFichaCompleta;
class frmFichaSimplificada;
class frmImprimirAgenda;
class frmLista;
class ListaDoDia;

/// State of the module that more than one screen reads. One instance lives until the library is
/// unloaded; a second AbrirLista overwrites it. One thread, so nothing guards it.
struct modPrincipal {
    /// The day the list shows, "dd/mm/yyyy".
    Text DataDaAgenda;
    /// The list form of this session: the last one that AbrirLista made.
    std::shared_ptr<ListaDoDia> FormularioDaLista;
    /// The shell's user object, passed on as it stands.
    ObjectRef DadosDoUsuario;
    /// Title of every message box; empty if the shell never set it.
    Text NomeDaAplicacao;
    /// Window handle of the shell's main window, the one dimmed behind dialogs.
    Long HandleDaJanelaPrincipal = 0;
    /// Swallows the next Click of the service search's type combo.
    bool IgnorarClickDoTipoNaPesquisa = false;
    /// Arguments of the combo fills; set to 0 just before each call.
    Double FiltroDosTiposDeServicos = 0;
    Double FiltroDosFuncionarios = 0;
    /// Nothing sets it, so printing always dims.
    bool SemFundoEscuroNaImpressao = false;
    /// Built for the customer's banner.
    Text TextoDoCliente;

    /// The record forms' shared instances, by which appointments are added. Null until their first use and
    /// after each unload.
    std::shared_ptr<frmFichaCompleta> FichaCompletaImplicita;
    std::shared_ptr<frmFichaSimplificada> FichaSimplificadaImplicita;
    /// The print dialog's shared instance; null until its first use and after each unload.
    std::shared_ptr<frmImprimirAgenda> ImprimirAgendaImplicita;

    /// The module's reports, one of each; null until their first use.
    ReportRef drListaDeAgendamentos;
    ReportRef drListaDeAgendamentosParaTransporte;
    ReportRef drFichaDoAgendamentoParaTransporte;
    ReportRef drFichaDoAgendamentoParaInspecaoDoAnimal;

    /// Lists that are on the screen. A list belongs to the shell's window: it lives here until its form
    /// is unloaded, also when a later AbrirLista has taken its place above.
    std::vector<std::shared_ptr<frmLista>> ListasAbertas;
};

extern modPrincipal Principal;

} // namespace kova::agenda
