// The date selection's result, its buttons and its life.

#include "tests/unit/agenda/full_record/frmSelecionarDatas_fixture.hpp"

namespace kova::agenda {

namespace {

constexpr const char* Monday = "23/11/2026";

class PickedDates : public DateSelectionTest {
protected:
    std::string Table() const { return scenario::Print(Value(datas->ListaDasDatasEHorasSelecionadas)); }
    Value Element(Long first, Long second) const
    {
        return datas->ListaDasDatasEHorasSelecionadas->At(first, second);
    }
};

TEST_F(PickedDates, AreStartAndEndOfEachRowWithAnEmptyElementBehind)
{
    Row(1, Monday, "09:00");
    Row(2, "24/11/2026", "14:40");
    EXPECT_TRUE(Save());
    EXPECT_TRUE(datas->OperacaoConcluida);
    EXPECT_EQ(Table(),
              R"(Array 4x3 [Text "23/11/2026", Text "24/11/2026", Empty, Text "09:00", Text "14:40", Empty, )"
              R"(Text "23/11/2026", Text "24/11/2026", Empty, Text "10:30", Text "16:10", Empty])");
}

TEST_F(PickedDates, CloseTheGapsBetweenRows)
{
    Row(2, Monday, "09:00");
    Row(9, "24/11/2026", "10:00");
    EXPECT_TRUE(Save());
    EXPECT_EQ(datas->ListaDasDatasEHorasSelecionadas->UpperBound(2), 2);
    EXPECT_EQ(Element(0, 0), Value(Monday));
    EXPECT_EQ(Element(1, 1), Value("10:00"));
}

TEST_F(PickedDates, MayBeTwelve)
{
    for (std::size_t number = 1; number <= 12; ++number)
        Row(number, Monday, "09:00");
    EXPECT_TRUE(Save());
    EXPECT_EQ(datas->ListaDasDatasEHorasSelecionadas->UpperBound(1), 3);
    EXPECT_EQ(datas->ListaDasDatasEHorasSelecionadas->UpperBound(2), 12);
    EXPECT_EQ(Element(3, 11), Value("10:30"));
    EXPECT_TRUE(Element(3, 12).IsEmpty());
}

TEST_F(PickedDates, KeepTheDateWhereTheEndPassesMidnight)
{
    Row(1, Monday, "23:15");
    EXPECT_TRUE(Save());
    EXPECT_EQ(Element(2, 0), Value(Monday));
    EXPECT_EQ(Element(3, 0), Value("00:45"));
}

TEST_F(PickedDates, LeaveOutARowWhoseTimeIsHalfTyped)
{
    Row(1, Monday, "09:0_");
    Row(2, "24/11/2026", "10:00");
    EXPECT_TRUE(Save());
    EXPECT_EQ(datas->ListaDasDatasEHorasSelecionadas->UpperBound(2), 1);
    EXPECT_EQ(Element(0, 0), Value("24/11/2026"));
}

TEST_F(PickedDates, ReplaceTheFormerOnes)
{
    Row(1, Monday, "09:00");
    Row(2, Monday, "10:00");
    EXPECT_TRUE(Save());
    Row(2, "", "");
    EXPECT_TRUE(Save());
    EXPECT_EQ(datas->ListaDasDatasEHorasSelecionadas->UpperBound(2), 1);
}

TEST_F(PickedDates, AreNotMadeOfADurationThatIsNoTime)
{
    datas->kvtxtTempoDoServico.Text("");
    Row(1, Monday, "09:00");
    EXPECT_FALSE(Save()) << "the form stays open";
    EXPECT_FALSE(datas->OperacaoConcluida);
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 13,"), std::string::npos);
    EXPECT_NE(
        Reports()[0].find(", frmSelecionarDatas, PreencherListaDasDatasEHorasSelecionadas_Click, Ponto: 3"),
        std::string::npos);
}

TEST_F(PickedDates, AreGivenUpByCancelEscapeAndTheWindowsButton)
{
    const std::vector<std::function<void()>> ways{
        [this] { EXPECT_EQ(user.Click("frmSelecionarDatas", "kvcmdCancelar"), ""); },
        [this] { EXPECT_EQ(user.PressKey("frmSelecionarDatas", toolkit::FormKey::Escape), ""); },
        [this] { EXPECT_EQ(user.CloseForm("frmSelecionarDatas"), ""); },
    };
    for (const auto& way : ways) {
        Row(1, "2_/__/____", "09:00");
        toolkit.Queue().QueueAction(way);
        datas->MontarExibirFormulario();
        EXPECT_FALSE(datas->Formulario->Visible());
        EXPECT_FALSE(datas->OperacaoConcluida);
        EXPECT_TRUE(Boxes().empty());
    }
}

TEST_F(PickedDates, StayReadableUntilTheFormIsUnloaded)
{
    Row(1, Monday, "09:00");
    EXPECT_TRUE(Save());
    EXPECT_TRUE(datas->Formulario->IsLoaded());
    EXPECT_EQ(datas->kvdtpDataInicial[0]->Text(), Monday);
    const FormRef form = datas->Formulario;
    datas.reset();
    EXPECT_FALSE(form->IsLoaded());
}

TEST_F(PickedDates, AreAskedForOnADialogOfTwelveRowsInTheOrderOfTheirCaptions)
{
    for (int row = 0; row < 12; ++row) {
        const auto& caption = Bind<Label>(datas->Formulario, "lblDataHoraInicial", row);
        EXPECT_EQ(caption.Caption(), "Data e hora inicial " + std::to_string(row + 1));
        const auto& date = Bind<KVDTPicker>(datas->Formulario, "kvdtpDataInicial", row);
        const auto& time = Bind<KVTime>(datas->Formulario, "kvtimHoraInicial", row);
        EXPECT_EQ(date.Text(), "__/__/____");
        EXPECT_EQ(time.Text(), "__:__");
        EXPECT_LT(caption.Left(), date.Left());
        EXPECT_LT(date.Left(), time.Left());
        EXPECT_EQ(date.Top(), time.Top());
        if (row % 6 != 0) {
            EXPECT_GT(date.Top(), datas->kvdtpDataInicial.at(static_cast<std::size_t>(row - 1))->Top());
        }
    }
    EXPECT_LE(datas->Formulario->Width(), 1024 * 15);
    EXPECT_LE(datas->Formulario->Height(), 768 * 15);
    for (const auto* box : {&datas->kvtxtApelidoDoCliente, &datas->kvtxtNomeDoAnimal,
                            &datas->kvtxtNomeDoServico, &datas->kvtxtTempoDoServico}) {
        EXPECT_TRUE(box->Locked()) << box->Name();
        EXPECT_EQ(box->MaxLength(), 50);
    }
}

TEST_F(PickedDates, AreReachedByTabFromDateToTimeToTheNextDate)
{
    std::vector<std::string> stops;
    const auto& form = dynamic_cast<const toolkit::FormModel&>(*datas->Formulario);
    toolkit.Queue().QueueAction([&, this] {
        for (int stop = 0; stop < 27; ++stop) {
            stops.push_back(form.Focused()->FullName());
            user.PressKey("frmSelecionarDatas", toolkit::FormKey::Tab);
        }
        datas->Formulario->Hide();
    });
    datas->MontarExibirFormulario();
    std::vector<std::string> expected;
    for (int row = 0; row < 12; ++row) {
        expected.push_back("frmSelecionarDatas.kvdtpDataInicial(" + std::to_string(row) + ")");
        expected.push_back("frmSelecionarDatas.kvtimHoraInicial(" + std::to_string(row) + ")");
    }
    expected.insert(expected.end(),
                    {"frmSelecionarDatas.kvcmdSalvarFecharConfirmar", "frmSelecionarDatas.kvcmdCancelar",
                     "frmSelecionarDatas.kvdtpDataInicial(0)"});
    EXPECT_EQ(stops, expected);
}

TEST_F(PickedDates, HaveAFramedFormOnTheSystemOfSquareCornersAlone)
{
    Row(1, Monday, "09:00");
    EXPECT_TRUE(Save());
    EXPECT_THROW(datas->Formulario->Control("lshpObj"), Failure);

    script.System("windows 8");
    datas = frmSelecionarDatas::Criar();
    datas->kvtxtTempoDoServico.Text("00:30");
    Row(1, Monday, "09:00");
    EXPECT_TRUE(Save());
    EXPECT_EQ(datas->Formulario->Control("lshpObj").Width(), datas->Formulario->ScaleWidth());
}

TEST_F(PickedDates, AreAskedForUnderTheTagsOfOtherForms)
{
    script.FailCreate("KOVA_N_SO.clsObterVersaoDoSO", Failure(429, "sem versão"));
    datas->Formulario->Load();
    datas->Formulario->Unload();
    datas->MontarExibirFormulario();
    ASSERT_EQ(Reports().size(), 2U);
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmImprimirAgenda, Form_Load, Ponto: 1"), std::string::npos);
    EXPECT_NE(Reports()[1].find("KOVA_A_Agenda, frmFicha, MontarExibirFormulario, Ponto: 2"),
              std::string::npos);
}

} // namespace

} // namespace kova::agenda
