// What is printed of one row: the two cards and the address label.

#include "tests/unit/agenda/printing/printing_fixture.hpp"
#include "tests/unit/agenda/widget_log.hpp"

#include <array>

namespace kova::agenda {

namespace {

constexpr const char* ParaTransporte = "mnuImprimirFichaDoAgendamentoParaTransporte";
constexpr const char* ParaInspecao = "mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal";
constexpr const char* Etiqueta = "mnuImprimirEtiquetaDeEndereco";

class Cards : public PrintingTest {
protected:
    /// A list of one row, with the mouse over it.
    void OpenOn(const std::map<std::string, Value>& changes = {})
    {
        script.Always(Selecionar, {.records = Table({Appointment(1, changes)})});
        lista = Open();
        EXPECT_EQ(user.Hover("frmLista", "msfgGrade", 1), "");
    }

    void Print(const char* entry)
    {
        toolkit.Queue().QueueMenu(entry);
        lines.clear();
        toolkit.ClearLog();
        EXPECT_EQ(user.Click("frmLista", "kvcmdImprimirFicha"), "");
        EXPECT_TRUE(lista->msfgGrade.Enabled());
    }

    std::shared_ptr<frmLista> lista;
};

TEST_F(Cards, TheMenuOpensBelowTheButtonOfTheRow)
{
    OpenOn();
    Print("");
    EXPECT_EQ(lista->mnuImprimirFichaDoAgendamentoParaTransporte.Caption(),
              "Ficha do agendamento para transporte");
    EXPECT_EQ(lista->mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal.Caption(),
              "Ficha do agendamento para inspeção do animal");
    EXPECT_EQ(lista->mnuImprimirEtiquetaDeEndereco.Caption(), "Etiqueta de endereço");
    const auto twips = [](Twips length) { return std::to_string(static_cast<int>(length)); };
    EXPECT_EQ(Logged("popup"),
              Strings{"popup mnuImprimirFicha " + twips(lista->kvcmdImprimirFicha.Left()) + " "
                      + twips(lista->kvcmdImprimirFicha.Top() + lista->kvcmdImprimirFicha.Height())});
}

TEST_F(Cards, GetTheirWindowAndPaperInThisOrder)
{
    OpenOn();
    WidgetLog widgets;
    for (const auto& [entry, report, title] :
         {std::array{ParaTransporte, "drFichaDoAgendamentoParaTransporte", "transporte"},
          std::array{ParaInspecao, "drFichaDoAgendamentoParaInspecaoDoAnimal", "inspeção do animal"}}) {
        const std::string name = report;
        Look();
        toolkit.Observer(&widgets);
        Print(entry);
        toolkit.Observer(nullptr);
        const Strings written = widgets.Of(name + ".");
        const auto window =
            std::find(written.begin(), written.end(),
                      name + ".Caption Text \"Imprimir ficha do agendamento para " + title + "\"");
        EXPECT_EQ(Strings(window + 1, written.end()),
                  (Strings{name + ".LeftMargin Double 850", name + ".TopMargin Double 850",
                           name + ".RightMargin Double 850", name + ".BottomMargin Double 850",
                           name + ".Width Double 10125", name + ".WindowState Integer 2",
                           name + ".Refresh Empty", name + ".Show Long 1"}));
    }
}

TEST_F(Cards, ForTransportShowsTheRowsCells)
{
    OpenOn({{"Observacao", "com cuidado"}});
    Look();
    Print(ParaTransporte);
    EXPECT_FALSE(landscape);
    EXPECT_EQ(
        Logged("report "),
        Strings{"report drFichaDoAgendamentoParaTransporte modal caption \"Imprimir ficha do agendamento "
                "para transporte\" width 10125 margins 850 850 850 850 portrait records 1 pages 1"});
    for (const char* text :
         {"Pata Feliz", "12", "Zé", "José Antônio da Silva", "(EnderecoCompletoComCEP)",
          "Celular: 00000-0000", "3", "Rex", "(NomeDaEspecie)", "(NomeDaRaca)", "(NomeDoTipoDeServico)", "8",
          "(NomeDoServico)", "com cuidado", "Sim", "Não", "Kova"})
        EXPECT_TRUE(Printed(text)) << text;
    EXPECT_TRUE(Printed("(Sexo")) << "cut to five characters";
    EXPECT_TRUE(Printed("(PorteD")) << "cut to seven";
    EXPECT_TRUE(Printed("08:00 20/11/2026")) << "start time and end date";
    EXPECT_TRUE(Printed("09:00 12")) << "end time and customer code";
}

TEST_F(Cards, ForInspectionShowsCustomerAndAnimalOnly)
{
    OpenOn();
    Look();
    Print(ParaInspecao);
    EXPECT_FALSE(landscape);
    EXPECT_EQ(Logged("report "),
              Strings{"report drFichaDoAgendamentoParaInspecaoDoAnimal modal caption \"Imprimir ficha do "
                      "agendamento para inspeção do animal\" width 10125 margins 850 850 850 850 portrait "
                      "records 1 pages 1"});
    for (const char* text : {"Pata Feliz", "12", "3", "Rex", "(NomeDaRaca)", "Kova"})
        EXPECT_TRUE(Printed(text)) << text;
    EXPECT_FALSE(Printed("(NomeDoServico)"));
}

TEST_F(Cards, WaitWithAMessageOverTheDimmedShellAndPreviewWithNeither)
{
    OpenOn();
    whilePreviewed = [this] {
        EXPECT_FALSE(lista->msfgGrade.Enabled());
        EXPECT_EQ(
            Lines("call KOVA_A_"),
            (Strings{"call KOVA_A_EfeitosDeTela.clsFundoEscuro.Aplicar(Long& 4711, Integer& 0) -> "
                     "Integer 0",
                     R"(call KOVA_A_MsgAcesso.clsMensagem.Exibir(Text "Aguarde, reorganizando dados.") )"
                     "-> Integer 0",
                     "call KOVA_A_MsgAcesso.clsMensagem.Fechar() -> Integer 0",
                     "call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover(Long& 4711) -> Integer 0"}));
    };
    Look();
    Print(ParaTransporte);
    EXPECT_EQ(lines.front(), "create KOVA_A_MsgAcesso.clsMensagem");
    EXPECT_EQ(Logged("repaint"), Strings{"repaint frmLista"});
}

TEST_F(Cards, OfASimplifiedRowAreForInspectionOnly)
{
    OpenOn({{"CodigoDoCliente", ""}, {"CodigoDoAnimal", " "}});
    Look();
    Print(ParaInspecao);
    EXPECT_TRUE(Printed("Rex"));
    EXPECT_EQ(Reports(), Strings());

    Print(ParaTransporte);
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& -2147217887"), std::string::npos) << Reports()[0];
    EXPECT_NE(Reports()[0].find(", frmLista, ImprimirFichaDoAgendamentoParaTransporte, Ponto: 5"),
              std::string::npos);
}

TEST_F(Cards, NeedACompany)
{
    OpenOn();
    ScriptCompanies({});
    for (const char* entry : {ParaTransporte, ParaInspecao}) {
        Acknowledge();
        Print(entry);
        EXPECT_EQ(toolkit.Queue().Questions().back().kind, MessageKind::Information);
        EXPECT_EQ(toolkit.Queue().Questions().back().text, SemEmpresa);
        EXPECT_EQ(Lines("release KOVA_A_MsgAcesso.clsMensagem").size(), 1U) << "and the message is gone";
        EXPECT_EQ(Lines("call KOVA_A_MsgAcesso.clsMensagem.Fechar"), Strings());
        EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover"), Strings());
    }
}

TEST_F(Cards, HandABusinessFailureToTheErrorScreen)
{
    OpenOn();
    script.Answer(Empresa, Failed());
    Print(ParaInspecao);
    EXPECT_EQ(Reports(), Strings{ReportOfFailed()});
}

TEST_F(Cards, TheLabelIsForRegisteredCustomers)
{
    OpenOn({{"CodigoDoCliente", ""}});
    Acknowledge();
    Print(Etiqueta);
    EXPECT_EQ(toolkit.Queue().Questions()[0].text,
              "Não é possível imprimir etiquetas para agendamento simplificado.");
    EXPECT_EQ(lines, Strings());
}

TEST_F(Cards, TheLabelGetsTheCustomerOfTheRow)
{
    OpenOn();
    Print(Etiqueta);
    const std::string etiquetas = "KOVA_A_EmissorDeEtiquetas.clsEtiquetas";
    EXPECT_EQ(
        lines,
        (Strings{"create " + etiquetas, "set " + etiquetas + R"(.CodigoDoCliente Text "12")",
                 "set " + etiquetas + R"(.ApelidoOuNomeFantasiaDoCliente Text "Zé")",
                 "set " + etiquetas + R"(.NomeOuRazaoSocialDoCliente Text "José Antônio da Silva")",
                 "set " + etiquetas + R"(.NomeDaAplicacao Text "Kova")",
                 "set " + etiquetas + ".DadosDoUsuario Object <user>",
                 "create KOVA_A_EfeitosDeTela.clsFundoEscuro",
                 "call KOVA_A_EfeitosDeTela.clsFundoEscuro.Aplicar(Long& 4711, Integer& 0) -> Integer 0",
                 "release KOVA_A_EfeitosDeTela.clsFundoEscuro",
                 "call " + etiquetas + ".AbrirEmissaoDeEtiqueta(Integer 1) -> Integer 0",
                 "create KOVA_A_EfeitosDeTela.clsFundoEscuro",
                 "call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover(Long& 4711) -> Integer 0",
                 "release KOVA_A_EfeitosDeTela.clsFundoEscuro", "release " + etiquetas}));
}

} // namespace

} // namespace kova::agenda
