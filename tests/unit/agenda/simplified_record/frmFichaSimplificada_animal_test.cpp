// Sex, species and breed of the animal.

#include "tests/unit/agenda/simplified_record/frmFichaSimplificada_fixture.hpp"

namespace kova::agenda {

namespace {

class TheAnimalOfTheSimplifiedForm : public FichaSimplificadaTest {
protected:
    static std::vector<std::pair<Text, Long>> Rows(const KVComboBox& combo)
    {
        std::vector<std::pair<Text, Long>> rows;
        for (Integer row = 0; row < combo.ListCount(); ++row)
            rows.emplace_back(combo.List(row), combo.ItemData(row));
        return rows;
    }
    using RowList = std::vector<std::pair<Text, Long>>;
};

TEST_F(TheAnimalOfTheSimplifiedForm, OffersTwoSexesAndTheRegisteredSpecies)
{
    Prepare();
    Show(1, [&] {
        EXPECT_EQ(Rows(ficha->kvcmbSexoDoAnimal), (RowList{{"Fêmea", 0}, {"Macho", 1}}));
        EXPECT_EQ(ficha->kvcmbSexoDoAnimal.ListIndex(), -1);
        EXPECT_EQ(Rows(ficha->kvcmbEspeciesDeAnimais), (RowList{{"Cão", 1}, {"Gato", 2}}));
        EXPECT_EQ(ficha->kvcmbEspeciesDeAnimais.ListIndex(), -1);
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.ListCount(), 0);
    });
    EXPECT_EQ(Lines("call KOVA_N_EspecRacas"), (Strings{"call " + Especies + "(Double& 0) -> Integer 0"}));
}

TEST_F(TheAnimalOfTheSimplifiedForm, OffersTheBreedsOfTheChosenSpecies)
{
    Prepare();
    InForm(1, [&] {
        EXPECT_EQ(user.Choose(Form, "kvcmbEspeciesDeAnimais", "Gato"), "");
        EXPECT_EQ(Rows(ficha->kvcmbRacasDeAnimais), (RowList{{"Persa", 21}, {"Siamês", 22}}));
        EXPECT_EQ(Lines("call KOVA_N_EspecRacas"),
                  (Strings{"call " + Racas + "(Double& 2, Double& 0) -> Integer 0"}));
    });
}

TEST_F(TheAnimalOfTheSimplifiedForm, SwallowsOneChoiceOfSpeciesWhileItsGuardIsSet)
{
    Prepare();
    InForm(1, [&] {
        ficha->Estado.IgnorarEventoDeCampo = true;
        user.Choose(Form, "kvcmbEspeciesDeAnimais", "Gato");
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.ListCount(), 0);
        user.Choose(Form, "kvcmbEspeciesDeAnimais", "Gato");
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.ListCount(), 2);
    });
}

TEST_F(TheAnimalOfTheSimplifiedForm, WantsASpeciesBeforeABreed)
{
    Prepare();
    InForm(1, [&] {
        Box();
        EXPECT_NE(user.Choose(Form, "kvcmbRacasDeAnimais", 0), "") << "there is no breed to choose";
        EXPECT_EQ(Boxes(), (Strings{Information("Selecione uma espécie de animal.")}));
        EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvcmbEspeciesDeAnimais"}));
        user.Choose(Form, "kvcmbEspeciesDeAnimais", "Gato");
        EXPECT_EQ(user.Choose(Form, "kvcmbRacasDeAnimais", "Persa"), "");
        EXPECT_EQ(Boxes().size(), 1U);
    });
}

TEST_F(TheAnimalOfTheSimplifiedForm, SaysThatThereIsNoSpeciesAndOpensAllTheSame)
{
    Prepare();
    ScriptNames(Especies, {});
    Box();
    Show(1, [&] { EXPECT_TRUE(ficha->Formulario->Visible()); });
    EXPECT_EQ(
        Boxes(),
        (Strings{Information("Nenhuma espécie de animais cadastrado.\\r\\nÉ necessário ter no mínimo uma "
                             "espécie de animais cadastrada para incluir um animal.")}));
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover").size(), 2U)
        << "once after the message, once after the form";
}

TEST_F(TheAnimalOfTheSimplifiedForm, SaysThatASpeciesHasNoBreedAndEmptiesTheirCombo)
{
    Prepare();
    InForm(1, [&] {
        user.Choose(Form, "kvcmbEspeciesDeAnimais", "Gato");
        ScriptNames(Racas, {});
        Box();
        user.Choose(Form, "kvcmbEspeciesDeAnimais", "Cão");
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.ListCount(), 0);
        EXPECT_TRUE(ficha->Formulario->Visible());
        EXPECT_EQ(Boxes(),
                  (Strings{Information("Nenhuma Raça de animal cadastrada ou ativa.\\r\\nÉ necessário ter no "
                                       "mínimo uma raça de animal cadastrada ou ativa para incluir um "
                                       "agendamento simplificado.")}));
        EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover").size(), 1U);
    });
}

TEST_F(TheAnimalOfTheSimplifiedForm, PassesOnAFailureAndTakesTheDimmingAway)
{
    Prepare();
    InForm(1, [&] {
        AnswerFailure(Racas);
        user.Choose(Form, "kvcmbEspeciesDeAnimais", "Cão");
        EXPECT_EQ(Reports(), (Strings{ReportOfFailure()}));
        EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover").size(), 1U);
    });
}

TEST_F(TheAnimalOfTheSimplifiedForm, ReportsAMissingComponentUnderTheTagOfTheFill)
{
    Prepare();
    InForm(1, [&] {
        script.FailCreate("KOVA_N_EspecRacas.clsRacas", Failure(429, "sem raças"));
        user.Choose(Form, "kvcmbEspeciesDeAnimais", "Cão");
    });
    ExpectReport("429", "frmFichaSimplificada, PreencherComboboxRacasDeAnimais, Ponto: 1\"");
}

TEST_F(TheAnimalOfTheSimplifiedForm, ShowsAStoredSexOfAnotherNameAsText)
{
    Prepare({{"SexoDoAnimal", "Indefinido"}});
    Show(3, [&] {
        EXPECT_EQ(ficha->kvcmbSexoDoAnimal.Text(), "Indefinido");
        EXPECT_EQ(ficha->kvcmbSexoDoAnimal.ListIndex(), -1);
    });
}

TEST_F(TheAnimalOfTheSimplifiedForm, LeavesABlankSexWithoutASelection)
{
    Prepare({{"SexoDoAnimal", "  "}});
    Show(2, [&] {
        EXPECT_EQ(ficha->kvcmbSexoDoAnimal.ListIndex(), -1);
        EXPECT_EQ(ficha->kvcmbSexoDoAnimal.Text(), "");
    });
}

TEST_F(TheAnimalOfTheSimplifiedForm, KeepsAStoredSpeciesAndBreedThatTheRegistersHaveLost)
{
    Prepare({{"NomeDaEspecie", "Iguana"}, {"NomeDaRaca", "Verde"}});
    Show(3, [&] {
        EXPECT_EQ(ficha->kvcmbEspeciesDeAnimais.Text(), "Iguana");
        EXPECT_EQ(ficha->kvcmbEspeciesDeAnimais.ListIndex(), -1);
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.Text(), "Verde");
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.ListIndex(), -1);
    });
    EXPECT_TRUE(Lines("create KOVA_N_EspecRacas.clsRacas").empty()) << "a species not found has no breeds";
}

TEST_F(TheAnimalOfTheSimplifiedForm, FindsSpeciesAndBreedByTheirNames)
{
    Prepare();
    Show(3, [&] {
        EXPECT_EQ(ficha->kvcmbEspeciesDeAnimais.ListIndex(), 1);
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.ListIndex(), 1);
        EXPECT_EQ(ficha->kvcmbSexoDoAnimal.ListIndex(), 1);
    });
    EXPECT_EQ(Lines("call " + Racas), (Strings{"call " + Racas + "(Double& 2, Double& 0) -> Integer 0"}))
        << "walking over the other species asks for nothing";
}

TEST_F(TheAnimalOfTheSimplifiedForm, LeavesSpeciesAndBreedAloneThatAreNotStored)
{
    Prepare({{"NomeDaEspecie", ""}, {"NomeDaRaca", ""}});
    Show(3, [&] {
        EXPECT_EQ(ficha->kvcmbEspeciesDeAnimais.ListIndex(), -1);
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.ListIndex(), -1);
    });
}

TEST_F(TheAnimalOfTheSimplifiedForm, ReportsAFailedFillOfTheSexesUnderAnotherFormsTag)
{
    Prepare();
    struct Failing : toolkit::AccessObserver {
        void Read(const toolkit::MemberAccess&) override { }
        void Write(const toolkit::MemberAccess& access, const Value&) override
        {
            if (access.control == "kvcmbSexoDoAnimal" && access.member == "ListIndex")
                throw Failure(5, "falha");
        }
        void Call(const toolkit::MemberAccess&, const Value&) override { }
    } failing;
    toolkit.Observer(&failing);
    Show(1, [&] { toolkit.Observer(nullptr); });
    ExpectReport("5", "frmFichaDeClientesEAnimais, PreencherkvcmbSexo, Ponto: 1\"");
}

} // namespace

} // namespace kova::agenda
