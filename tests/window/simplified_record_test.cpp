// A customer at the door: booked, looked at, changed and removed without touching the mouse.

#include "tests/window/shop.hpp"

#include "agenda/contracts/widgets.hpp"

#include <QApplication>
#include <QClipboard>

namespace kova::window_test {

namespace {

constexpr const char* Form = "frmFichaSimplificada";
constexpr const char* Grid = "msfgGrade";

class SimplifiedRecord : public Shop {
protected:
    SimplifiedRecord()
    {
        // An empty day, so that the appointment is the first row.
        Execute("update agendamento set data_inicial = '2026-11-10', data_final = '2026-11-10'"
                " where data_inicial = '2026-11-20'");
        // One service of the name, so that the lookup takes it at once.
        Execute("update servico set nome = 'Banho completo', nome_de_busca = 'banho completo'"
                " where codigo = (select min(codigo) from servico where numero_do_tipo_de_servico = 4)");
        Execute("update servico set nome = 'Outro', nome_de_busca = 'outro' where nome <> 'Banho completo'");
    }

    void Book()
    {
        receptionist->WaitsFor("frmLista").Presses("F2").Picks("Agendamento Simplificado").WaitsFor(Form);
        receptionist->Types("João d'Ávila \"Zé\"").Presses("Tab").Types("Celular 1234").Presses("Tab");
        receptionist->Types("Rex").Presses("Tab").Types("m").Presses("Tab");
        receptionist->TakesNextRow().Presses("Tab").TakesNextRow().Presses("Tab").Types("Preto");
        // The type stays "(Todos)": it follows from the service.
        receptionist->Presses("Tab").Presses("Tab").Presses("Tab").Types("banho comp").Presses("Return");
        receptionist->WaitsFor(Form).Types("1500");
        receptionist->Presses("Tab").Looks([this] { focusBehindTime_ = Receptionist::Focused(); });
    }

    void ChooseEmployee()
    {
        receptionist->Looks([] { Receptionist::Control(Form, "kvcmbFuncionarios").SetFocus(); });
        receptionist->TakesNextRow().Presses("Tab").Types("Muito bravo");
    }
    void BookAndSave()
    {
        Book();
        ChooseEmployee();
        receptionist->Presses("Ctrl+S").WaitsFor("frmLista");
    }
    /// What the name's box of the open form shows.
    static std::string NameInTheForm()
    {
        return As<KVTextBox>(Receptionist::Control(Form, "kvtxtNomeOuRazaoSocialDoCliente"))->Text();
    }

    std::string focusBehindTime_;
};

TEST_F(SimplifiedRecord, IsBookedByKeyboardAlone)
{
    BookAndSave();
    receptionist->Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), std::vector<std::string>{});
    EXPECT_EQ(focusBehindTime_, "frmFichaSimplificada.kvdtpDataFinal");
    EXPECT_EQ(
        Value("select nome_do_cliente, canais_do_cliente, nome_do_animal, sexo_do_animal, cor_do_animal,"
              " hora_inicial, observacao, situacao, codigo_do_cliente, incluido_por from agendamento"
              " where data_inicial = '2026-11-20'"),
        "João d'Ávila \"Zé\"|Celular 1234|Rex|M|Preto|15:00|Muito bravo|1|(null)|Antônia");
}

TEST_F(SimplifiedRecord, IsDetailedAlteredAndDeletedByKeyboardAlone)
{
    BookAndSave();
    std::string detail, altered;
    receptionist->Presses("F7").Presses("Down").Presses("F4").WaitsFor(Form);
    receptionist->Looks([&] {
        detail = As<KVTheme>(Receptionist::Control(Form, "KVTheme"))->Caption();
        As<KVCommandButton>(Receptionist::Control(Form, "kvcmdCancelarAlterar"))->SetFocus();
    });
    // The detail's second button is "Alterar": the form stays and is changed.
    receptionist->Presses("Return").WaitsFor(Form).Looks(
        [&] { altered = As<KVTheme>(Receptionist::Control(Form, "KVTheme"))->Caption(); });
    receptionist->Presses("Ctrl+A").Types("Maria do Carmo").Presses("Ctrl+S").WaitsFor("frmLista");
    receptionist->Looks([&] {
        EXPECT_EQ(
            Value("select nome_do_cliente, alterado_por from agendamento where data_inicial = '2026-11-20'"),
            "Maria do Carmo|Antônia");
    });
    receptionist->Presses("F7").Presses("Down").Presses("F8").WaitsFor(Form).Presses("Ctrl+S");
    receptionist->WaitsFor("frmLista").Leaves();
    Run();
    EXPECT_EQ(detail, "Detalhar agendamento simplificado");
    EXPECT_EQ(altered, "Alterar agendamento completo");
    EXPECT_EQ(Value("select count(*) from agendamento where data_inicial = '2026-11-20'"), "0");
    EXPECT_EQ(Query("select operacao from auditoria where tabela = 'agendamento' order by codigo"),
              (std::vector<std::string>{"inclusao", "alteracao", "exclusao"}));
}

TEST_F(SimplifiedRecord, IsRefusedForAnEmployeeWhoBecameInactiveMeanwhileAndKeepsWhatWasTyped)
{
    Book();
    ChooseEmployee();
    std::string name, focus;
    receptionist->Looks([&] { Execute("update funcionario set situacao = 2"); }).Presses("Ctrl+S");
    receptionist->Answers("Return").WaitsFor(Form).Looks([&] {
        name = NameInTheForm();
        focus = Receptionist::Focused();
    });
    // What was typed is guarded: the first Escape only leads to "Cancelar".
    receptionist->Presses("Escape").Presses("Escape").WaitsFor("frmLista").Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), (std::vector<std::string>{"Selecione o(a) funcionário(a)."}));
    EXPECT_EQ(name, "João d'Ávila \"Zé\"");
    EXPECT_EQ(focus, "frmFichaSimplificada.kvcmbFuncionarios");
    EXPECT_EQ(Value("select count(*) from agendamento where data_inicial = '2026-11-20'"), "0");
}

TEST_F(SimplifiedRecord, ThatAnotherDeskDeletedMeanwhileIsToldWhenItIsSaved)
{
    BookAndSave();
    receptionist->Presses("F7").Presses("Down").Presses("F6").WaitsFor(Form).Looks(
        [&] { Execute("delete from agendamento where data_inicial = '2026-11-20'"); });
    receptionist->Presses("Ctrl+S").Answers("Return").WaitsFor("frmLista").Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), (std::vector<std::string>{"O agendamento não existe mais."}));
}

TEST_F(SimplifiedRecord, StoresPastedTextsAsTheyAreOnOneLine)
{
    const std::string pasted = "Ação 🐶 \"x\" '); drop table agendamento;-- אבג\r\nfim";
    Book();
    receptionist->Looks([&] {
        QApplication::clipboard()->setText(QString::fromStdString(pasted));
        Receptionist::Control(Form, "kvtxtNomeOuRazaoSocialDoCliente").SetFocus();
    });
    receptionist->Presses("Ctrl+A").Presses("Ctrl+V");
    ChooseEmployee();
    receptionist->Presses("Ctrl+S").WaitsFor("frmLista").Leaves();
    Run();
    const std::string stored =
        Value("select nome_do_cliente from agendamento where data_inicial = '2026-11-20'");
    EXPECT_EQ(stored.find_first_of("\r\n"), std::string::npos);
    EXPECT_TRUE(stored.starts_with("Ação 🐶 \"x\" '); drop table agendamento;-- אבג")) << stored;
    EXPECT_TRUE(stored.ends_with("fim")) << stored;
}

TEST_F(SimplifiedRecord, IsRefusedWithATimeThatIsNone)
{
    Book();
    receptionist->Looks([] { Receptionist::Control(Form, "kvtimHoraInicial").SetFocus(); });
    receptionist->Presses("Ctrl+A").Types("2400").Presses("Tab").Presses("Ctrl+S").Answers("Return");
    receptionist->WaitsFor(Form).Presses("Escape").Presses("Escape").WaitsFor("frmLista").Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), (std::vector<std::string>{"Informe uma hora inicial válida."}));
    EXPECT_EQ(Value("select count(*) from agendamento where data_inicial = '2026-11-20'"), "0");
}

} // namespace

} // namespace kova::window_test
