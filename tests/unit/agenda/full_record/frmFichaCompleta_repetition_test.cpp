// The repeated booking: the controls, and the date selection's coming and going.

#include "tests/unit/agenda/full_record/frmFichaCompleta_saving_fixture.hpp"
#include "tests/unit/agenda/widget_log.hpp"
#include "toolkits/common/boxes/number_box.hpp"

namespace kova::agenda {

namespace {

using Strings = std::vector<std::string>;

class Repetition : public SavingTest {
protected:
    Repetition() { Prepare(); }

    void Choose(const char* combo, const char* row)
    {
        EXPECT_EQ(user.Choose("frmFichaCompleta", combo, row), "");
    }

    /// Asks for dates; `inside` is what the user does on the date selection.
    void PickDates(const std::function<void()>& inside)
    {
        toolkit.Queue().QueueAction(inside);
        Choose("kvcmbReagendar", "Sim");
        Choose("kvcmbReagendarPor", "Selecionar datas");
    }

    /// A control of the date selection while it is open.
    template <class Kind> Kind& Dates(const char* control, int index = -1)
    {
        return dynamic_cast<Kind&>(toolkit.FindForm("frmSelecionarDatas")->Control(control, index));
    }
    void SaveDates() { EXPECT_EQ(user.Click("frmSelecionarDatas", "kvcmdSalvarFecharConfirmar"), ""); }
    void CancelDates() { EXPECT_EQ(user.Click("frmSelecionarDatas", "kvcmdCancelar"), ""); }
};

TEST_F(Repetition, IsOffAtTheStart)
{
    Run(operacao::Adicionar, [this] {
        EXPECT_EQ(ficha->kvcmbReagendar.Text(), "Não");
        EXPECT_EQ(ficha->kvcmbReagendar.Width(), 3610);
        EXPECT_EQ(ficha->kvcmbReagendarPor.ListIndex(), -1);
        EXPECT_FALSE(ficha->kvnumNumeroDeSemanas.Enabled());
        const char* units[]{"Semana(s)", "Quinzena(s)", "Mes(es)", "Selecionar datas"};
        ASSERT_EQ(ficha->kvcmbReagendarPor.ListCount(), 4);
        for (Integer row = 0; row < 4; ++row) {
            EXPECT_EQ(ficha->kvcmbReagendarPor.List(row), units[row]);
            EXPECT_EQ(ficha->kvcmbReagendarPor.ItemData(row), row);
        }
        for (const auto* combo : {&ficha->kvcmbReagendar, &ficha->kvcmbBuscar, &ficha->kvcmbLevar}) {
            ASSERT_EQ(combo->ListCount(), 2) << combo->Name();
            EXPECT_EQ(combo->List(0), "Sim");
            EXPECT_EQ(combo->ItemData(0), -1);
            EXPECT_EQ(combo->List(1), "Não");
            EXPECT_EQ(combo->ItemData(1), 0);
            EXPECT_EQ(combo->ListIndex(), 1);
        }
    });
}

TEST_F(Repetition, AsksForNumberAndUnitWhileItIsWanted)
{
    Run(operacao::Adicionar, [this] {
        Choose("kvcmbReagendar", "Sim");
        EXPECT_EQ(ficha->lblReagendar.Caption(), "Reagendar por mais");
        EXPECT_EQ(ficha->kvcmbReagendar.Width(), 1005);
        EXPECT_TRUE(ficha->kvnumNumeroDeSemanas.Enabled());
        EXPECT_TRUE(ficha->kvcmbReagendarPor.Enabled());
        EXPECT_EQ(ficha->kvcmbReagendarPor.Text(), "Semana(s)");
        EXPECT_EQ(user.Type("frmFichaCompleta", "kvnumNumeroDeSemanas", "12"), "");
        Choose("kvcmbReagendarPor", "Mes(es)");

        Choose("kvcmbReagendar", "Não");
        EXPECT_EQ(ficha->lblReagendar.Caption(), "Reagendar");
        EXPECT_EQ(ficha->kvcmbReagendar.Width(), 3610);
        EXPECT_FALSE(ficha->kvnumNumeroDeSemanas.Enabled());
        EXPECT_EQ(ficha->kvnumNumeroDeSemanas.Text(), "");
        EXPECT_FALSE(ficha->kvcmbReagendarPor.Enabled());
        EXPECT_EQ(ficha->kvcmbReagendarPor.ListIndex(), -1);
    });
}

TEST_F(Repetition, SwallowsOneEventUnderTheGuard)
{
    Run(operacao::Adicionar, [this] {
        ficha->Estado.IgnorarEventoDeCampo = true;
        Choose("kvcmbReagendar", "Sim");
        EXPECT_EQ(ficha->lblReagendar.Caption(), "Reagendar");
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        Choose("kvcmbReagendar", "Sim");
        EXPECT_EQ(ficha->lblReagendar.Caption(), "Reagendar por mais");

        ficha->Estado.IgnorarEventoDeCampo = true;
        Choose("kvcmbReagendarPor", "Selecionar datas");
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        EXPECT_TRUE(Logged("show ").empty());
    });
}

TEST_F(Repetition, DropsLettersInTheNumberAndKeepsBackspace)
{
    Run(operacao::Adicionar, [this] {
        Choose("kvcmbReagendar", "Sim");
        EXPECT_EQ(user.Type("frmFichaCompleta", "kvnumNumeroDeSemanas", "a1-b,2 /:"), "");
        EXPECT_EQ(ficha->kvnumNumeroDeSemanas.Text(), "12");
        dynamic_cast<toolkit::NumberBoxModel&>(ficha->kvnumNumeroDeSemanas).UserErases();
        EXPECT_EQ(ficha->kvnumNumeroDeSemanas.Text(), "1");
        EXPECT_EQ(user.Type("frmFichaCompleta", "kvnumNumeroDeSemanas", "98765"), "");
        EXPECT_EQ(ficha->kvnumNumeroDeSemanas.Text(), "987");
    });
}

TEST_F(Repetition, HandsWhatIsBookedToTheDateSelection)
{
    const Twips height = ficha->Formulario->Height();
    Run(operacao::Adicionar, [&, this] {
        PickDates([&, this] {
            EXPECT_EQ(Dates<KVTextBox>("kvtxtApelidoDoCliente").Text(), "Zé");
            EXPECT_EQ(Dates<KVTextBox>("kvtxtNomeDoAnimal").Text(), "Rex");
            EXPECT_EQ(Dates<KVTextBox>("kvtxtNomeDoServico").Text(), "Banho");
            EXPECT_EQ(Dates<KVTextBox>("kvtxtTempoDoServico").Text(), "01:30");
            EXPECT_EQ(Dates<KVDTPicker>("kvdtpDataInicial", 0).Text(), "23/11/2026");
            EXPECT_EQ(Dates<KVTime>("kvtimHoraInicial", 0).Text(), "09:00");
            EXPECT_EQ(Dates<KVDTPicker>("kvdtpDataInicial", 1).Text(), "__/__/____");
            EXPECT_EQ(ficha->Formulario->Height(), 0);
            EXPECT_TRUE(ficha->Formulario->Visible());
            EXPECT_NE(user.Click("frmFichaCompleta", "kvcmdCancelarAlterar"), "");
            CancelDates();
        });
        EXPECT_EQ(ficha->Formulario->Height(), height);
    });
}

TEST_F(Repetition, LoadsTheDateSelectionBeforeItFillsIt)
{
    int loaded = -1;
    WidgetLog widgets;
    widgets.Before("frmSelecionarDatas.kvtxtApelidoDoCliente.Text",
                   [&, this] { loaded = static_cast<int>(Lines("create KOVA_N_SO").size()); });
    Run(operacao::Adicionar, [&, this] {
        lines.clear();
        toolkit.Observer(&widgets);
        PickDates([this] { CancelDates(); });
        toolkit.Observer(nullptr);
    });
    EXPECT_EQ(loaded, 1);
}

TEST_F(Repetition, IsOffAgainWhereTheDateSelectionIsCancelled)
{
    EXPECT_FALSE(Run(operacao::Adicionar, [this] {
        PickDates([this] { CancelDates(); });
        EXPECT_EQ(ficha->kvcmbReagendar.Text(), "Não");
        EXPECT_EQ(ficha->kvcmbReagendarPor.ListIndex(), -1);
        EXPECT_EQ(ficha->lblReagendar.Caption(), "Reagendar");
        EXPECT_TRUE(Writes().empty()) << "nothing is saved";
        EXPECT_EQ(Logged("unload "), (Strings{"unload frmSelecionarDatas"}));
        EXPECT_EQ(toolkit.FindForm("frmSelecionarDatas"), nullptr);
    }));
}

TEST_F(Repetition, SavesAtOnceWhereTheDatesAreConfirmed)
{
    const Twips height = ficha->Formulario->Height();
    EXPECT_TRUE(Run(operacao::Adicionar, [this] {
        PickDates([this] {
            Dates<KVDTPicker>("kvdtpDataInicial", 4).Text("24/11/2026");
            Dates<KVTime>("kvtimHoraInicial", 4).Text("15:00");
            SaveDates();
        });
    }));
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_EQ(Written("CriadaListaDasDatasEHorasSelecionadas"), "Boolean True");
    EXPECT_EQ(Written("QuantidadeDeReagendamentos"), "Long 1");
    EXPECT_EQ(Written("FrequenciaDeReagendamento"), "Integer 3");
    EXPECT_EQ(Written("ListaDasDatasEHorasSelecionadas"),
              R"(Array 4x3 [Text "23/11/2026", Text "24/11/2026", Empty, Text "09:00", Text "15:00", Empty, )"
              R"(Text "23/11/2026", Text "24/11/2026", Empty, Text "10:30", Text "16:30", Empty])");
    EXPECT_EQ(Written("DomingoOuFeriado"), "Boolean False");
    EXPECT_EQ(ficha->Formulario->Height(), height);
    EXPECT_EQ(Logged("unload "), (Strings{"unload frmSelecionarDatas"}));
    EXPECT_EQ(Logged("hide "), (Strings{"hide frmSelecionarDatas", "hide frmFichaCompleta"}));
}

TEST_F(Repetition, BringsTheAnswerForSundaysAlong)
{
    Answers({Reply::No, Reply::Yes});
    EXPECT_TRUE(Run(operacao::Adicionar, [this] {
        PickDates([this] {
            Dates<KVDTPicker>("kvdtpDataInicial", 0).Text("22/11/2026");
            SaveDates();
        });
    }));
    EXPECT_TRUE(ficha->DomingoOuFeriado);
    EXPECT_EQ(Written("DomingoOuFeriado"), "Boolean True");
    EXPECT_EQ(Written("QuantidadeDeReagendamentos"), "Long 0");
}

TEST_F(Repetition, KeepsTheDatesForAnotherTryWhereAFieldIsRefused)
{
    Answers({Reply::Ok});
    WriteAnswers("Adicionar", 2, {{"NomeDoCampoValidado", "HoraInicial"}, {"DescricaoDaFalha", "Ocupada."}});
    EXPECT_TRUE(Run(operacao::Adicionar, [this] {
        PickDates([this] { SaveDates(); });
        EXPECT_TRUE(ficha->Formulario->Visible());
        EXPECT_GT(ficha->Formulario->Height(), 0);
        lines.clear();
        PressSave();
    }));
    EXPECT_EQ(Written("CriadaListaDasDatasEHorasSelecionadas"), "Boolean True");
    EXPECT_NE(Written("ListaDasDatasEHorasSelecionadas"), "");
}

} // namespace

} // namespace kova::agenda
