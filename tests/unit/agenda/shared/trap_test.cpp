// The trap of a procedure and the report it makes.

#include "agenda/contracts/failure_detail.hpp"
#include "agenda/shared/modLerGravarEmArquivoIni.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/trap.hpp"
#include "tests/unit/agenda/module_fixture.hpp"
#include "toolkits/headless/quoted.hpp"

#include <new>
#include <stdexcept>
#include <type_traits>

namespace kova::agenda {

namespace {

class TheTrap : public ModuleTest {
protected:
    TheTrap() { Principal.NomeDaAplicacao = "Kova"; }

    /// The place that the last report gave.
    std::string Place() const
    {
        const auto reports = Reports();
        if (reports.empty())
            return {};
        const std::size_t begin = reports.back().find("KOVA_A_Agenda, ");
        return reports.back().substr(begin, reports.back().find('"', begin) - begin);
    }
};

TEST_F(TheTrap, EndsThePlaceInZeroBeforeTheFirstCheckpoint)
{
    Integer Ponto = 0;
    Trap(", frmLista, Algo, Ponto: ", Ponto, [] { throw Failure(FailureNumber::TypeMismatch); });
    EXPECT_EQ(Place(), "KOVA_A_Agenda, frmLista, Algo, Ponto: 0");
}

TEST_F(TheTrap, TellsTheCheckpointThatWasReached)
{
    Integer Ponto = 0;
    Trap(", frmLista, Algo, Ponto: ", Ponto, [&] {
        Ponto = 1;
        Ponto = 12;
        throw Failure(FailureNumber::TypeMismatch);
    });
    EXPECT_EQ(Place(), "KOVA_A_Agenda, frmLista, Algo, Ponto: 12");
    EXPECT_EQ(Reports().size(), 1U);
}

TEST_F(TheTrap, SaysNothingWhereNothingFails)
{
    Integer Ponto = 0;
    Trap(", frmLista, Algo, Ponto: ", Ponto, [&] { Ponto = 1; });
    EXPECT_TRUE(lines.empty());
}

TEST_F(TheTrap, AnswersWhatItsBodyAnswers)
{
    Integer Ponto = 0;
    const auto number = [](Integer value) { return value; };
    EXPECT_EQ(Trap(", frmLista, Algo, Ponto: ", Ponto, [&] { return number(7); }), 7);
    EXPECT_TRUE(Trap(", frmLista, Algo, Ponto: ", Ponto, [] { return true; }));
    EXPECT_EQ(Trap(", frmLista, Algo, Ponto: ", Ponto, Integer{1}, [&] { return number(7); }), 7);
    static_assert(std::is_same_v<decltype(Trap("", Ponto, [&] { return number(7); })), Integer>);
    static_assert(std::is_same_v<decltype(Trap("", Ponto, [] {})), void>);
    EXPECT_TRUE(lines.empty()) << "nothing is reported";
}

TEST_F(TheTrap, AnswersZeroOrFalseWhereTheBodyFails)
{
    Integer Ponto = 0;
    const auto fail = [&] {
        Ponto = 4;
        throw Failure(FailureNumber::Overflow);
    };
    const auto seven = [&]() -> Integer {
        fail();
        return 7;
    };
    const auto yes = [&] {
        fail();
        return true;
    };
    EXPECT_EQ(Trap(", frmLista, Numero, Ponto: ", Ponto, seven), 0);
    EXPECT_EQ(Place(), "KOVA_A_Agenda, frmLista, Numero, Ponto: 4");
    EXPECT_FALSE(Trap(", frmLista, Resposta, Ponto: ", Ponto, yes));
    EXPECT_EQ(Place(), "KOVA_A_Agenda, frmLista, Resposta, Ponto: 4");
    EXPECT_EQ(Reports().size(), 2U) << "each failure once";
}

TEST_F(TheTrap, AnswersWhatItIsGivenForAFailureWhereTheBodyFails)
{
    Integer Ponto = 0;
    const auto zero = [&]() -> Integer {
        Ponto = 2;
        throw std::out_of_range("fora");
    };
    EXPECT_EQ(Trap(", frmLista, Algo, Ponto: ", Ponto, Integer{1}, zero), 1);
    EXPECT_EQ(Place(), "KOVA_A_Agenda, frmLista, Algo, Ponto: 2");
    EXPECT_EQ(Reports().size(), 1U);
}

TEST_F(TheTrap, AnswersAlsoWhereTheReportItselfFails)
{
    script.FailCreate("KOVA_A_MsgErro.clsMensagem", Failure(429, "sem tela"));
    Integer Ponto = 0;
    const auto zero = []() -> Integer { throw Failure(FailureNumber::Overflow); };
    EXPECT_EQ(Trap(", frmLista, Algo, Ponto: ", Ponto, Integer{1}, zero), 1);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(TheTrap, GivesFailuresOfTheLanguageANumber)
{
    Integer Ponto = 3;
    Trap(", frmLista, Algo, Ponto: ", Ponto, [] { throw std::bad_alloc(); });
    EXPECT_NE(Reports().back().find("Long& 7,"), std::string::npos) << Reports().back();
    Trap(", frmLista, Algo, Ponto: ", Ponto, [] { throw std::out_of_range("fora"); });
    const Text described = WithDetail(Failure(FailureNumber::InvalidArgument).Description(), "fora");
    EXPECT_NE(Reports().back().find("Long& 5, Text& " + headless::Quoted(described)), std::string::npos)
        << Reports().back();
}

TEST_F(TheTrap, PassesTheNumberOfAnotherMakerOnUnchanged)
{
    Integer Ponto = 1;
    Trap(", frmLista, Algo, Ponto: ", Ponto, [] { throw Failure(-2147217887, "campo"); });
    EXPECT_NE(Reports().back().find("Long& -2147217887, Text& \"campo\""), std::string::npos);
}

TEST_F(TheTrap, GivesAnEmptyTextWhereTheShellSetNoName)
{
    Principal.NomeDaAplicacao.clear();
    MensagemDeErro(Long{1}, "d", "l");
    EXPECT_EQ(
        Reports().back(),
        R"(call KOVA_A_MsgErro.clsMensagem.Exibir(Long& 1, Text& "d", Text& "l", Text& "") -> Integer 0)");
    EXPECT_EQ(script.LiveObjects(), 0) << "the error screen is released at once";
}

TEST_F(TheTrap, LeavesAFailureOfTheErrorScreenToTheCaller)
{
    script.FailCreate("KOVA_A_MsgErro.clsMensagem", Failure(429, "sem tela"));
    EXPECT_THROW(MensagemDeErro(Long{1}, "d", "l"), Failure);
    script.FailCreate("KOVA_A_MsgErro.clsMensagem", Failure(429, "sem tela"));
    Integer Ponto = 1;
    EXPECT_NO_THROW(Trap(", frmLista, Algo, Ponto: ", Ponto, [] { throw Failure(FailureNumber::Overflow); }));
    EXPECT_TRUE(Reports().empty());
}

TEST_F(TheTrap, HasNoneInTheSettingsProcedures)
{
    AttachPlatform(nullptr);
    EXPECT_THROW(LerArquivoIni("S", "K"), Failure);
    EXPECT_THROW(GravarArquivoIni("S", "K", "V"), Failure);
    AttachPlatform(this);
    EXPECT_EQ(GravarArquivoIni("S", "K", "V"), "") << "the result of the write stays empty";
    EXPECT_EQ(LerArquivoIni("s", "k"), "V");
}

} // namespace

} // namespace kova::agenda
