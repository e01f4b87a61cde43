// The place that a failure is reported from, step by step.

#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/simplified_record/frmFichaSimplificada.hpp"
#include "tests/unit/agenda/module_fixture.hpp"
#include "tests/unit/agenda/widget_log.hpp"

namespace kova::agenda {

namespace {

using Kind = WidgetLog::Kind;

class Checkpoints : public ModuleTest {
protected:
    Checkpoints()
    {
        ScriptAppointments(42);
        lista = Open();
        toolkit.Observer(&widgets);
    }
    ~Checkpoints() override { toolkit.Observer(nullptr); }

    /// The one failure that `act` has reported, without the executable's name.
    std::string ReportedOf(const std::function<void()>& act)
    {
        const std::size_t before = Reports().size();
        act();
        const auto reports = Reports();
        if (reports.size() != before + 1)
            return std::to_string(reports.size() - before) + " reports";
        const std::string& told = reports.back();
        const std::size_t from = told.find(", frm");
        return told.substr(from + 2, told.find('"', from) - from - 2);
    }
    std::string ReportedByBar(Integer button, Kind kind, const char* member)
    {
        widgets.FailNext(kind, std::string("frmLista.kvnbBarraDeNavegacao.") + member);
        return ReportedOf([&] { user.Bar("frmLista", "kvnbBarraDeNavegacao", button); });
    }
    std::string ReportedByCommand(const char* command, Kind kind, const std::string& member)
    {
        widgets.FailNext(kind, member);
        return ReportedOf([&] { user.Click("frmLista", command); });
    }
    std::string ReportedByAdding(const char* entry, Kind kind, const std::string& member)
    {
        toolkit.Queue().QueueMenu(entry);
        return ReportedByCommand("kvcmdAdicionar", kind, member);
    }

    WidgetLog widgets;
    std::shared_ptr<frmLista> lista;
};

TEST_F(Checkpoints, OfTheBarAreThoseOfItsMode)
{
    const std::string place = "frmLista, AtualizarObjetos, Ponto: ";
    ASSERT_EQ(user.Bar("frmLista", "kvnbBarraDeNavegacao", 3), "") << "all four buttons are there";
    EXPECT_EQ(ReportedByBar(3, Kind::Read, "LastRecord"), place + "9");
    EXPECT_EQ(ReportedByBar(2, Kind::Read, "FirstRecord"), place + "8");
    EXPECT_EQ(ReportedByBar(3, Kind::Write, "FirstRecord"), place + "9");
    EXPECT_EQ(ReportedByBar(1, Kind::Write, "FirstRecord"), place + "7");
    EXPECT_EQ(ReportedByBar(4, Kind::Write, "LastRecord"), place + "10");
}

TEST_F(Checkpoints, OfTheBarAreTheLastOnesWhereThePageStays)
{
    widgets.FailNext(Kind::Write, "frmLista.kvnbBarraDeNavegacao.FirstRecord");
    EXPECT_EQ(ReportedOf([&] { lista->AtualizarObjetos(5); }), "frmLista, AtualizarObjetos, Ponto: 11");
}

TEST_F(Checkpoints, OfAStatusWriteBeginAtOne)
{
    ASSERT_EQ(user.Hover("frmLista", "msfgGrade", 1), "");
    lista->objAgendaDaLista.reset();
    lines.clear();
    user.Click("frmLista", "kvcmdMarcarAgendamentoComoCancelado");
    ASSERT_FALSE(Reports().empty());
    EXPECT_NE(Reports()[0].find(", frmLista, AlterarSituacaoDoAgendamento, Ponto: 1\""), std::string::npos)
        << Reports()[0];
}

TEST_F(Checkpoints, OfAddingAFullRecordGoOnThroughItsCombos)
{
    const std::string place = "frmLista, mnuAdicionarAgendamentoCompleto_Click, Ponto: ";
    const auto reported = [&](Kind kind, const std::string& member) {
        return ReportedByAdding("mnuAdicionarAgendamentoCompleto", kind, member);
    };
    ASSERT_EQ(user.Choose("frmLista", "kvcmbFuncionarios", "Beto"), "");
    EXPECT_EQ(reported(Kind::Call, "frmFichaCompleta.kvcmbSituacao.Clear"), place + "1");
    EXPECT_EQ(reported(Kind::Call, "frmFichaCompleta.kvcmbTiposDeServicos.Clear"), place + "3");
    EXPECT_EQ(reported(Kind::Write, "frmLista.kvcmbTiposDeServicos.ListIndex"), place + "4");
    EXPECT_EQ(reported(Kind::Write, "frmFichaCompleta.kvcmbTiposDeServicos.ListIndex"), place + "5");
    EXPECT_EQ(reported(Kind::Call, "frmFichaCompleta.kvcmbFuncionarios.Clear"), place + "6");
    EXPECT_EQ(reported(Kind::Write, "frmFichaCompleta.kvcmbFuncionarios.ListIndex"), place + "7");
}

TEST_F(Checkpoints, OfAddingASimplifiedRecordGoOnThroughItsCombos)
{
    const std::string place = "frmLista, mnuAdicionarAgendamentoSimplificado_Click, Ponto: ";
    const auto reported = [&](Kind kind, const std::string& member) {
        return ReportedByAdding("mnuAdicionarAgendamentoSimplificado", kind, member);
    };
    ASSERT_EQ(user.Choose("frmLista", "kvcmbFuncionarios", "Beto"), "");
    EXPECT_EQ(reported(Kind::Call, "frmFichaSimplificada.kvcmbTiposDeServicos.Clear"), place + "6");
    EXPECT_EQ(reported(Kind::Write, "frmLista.kvcmbTiposDeServicos.ListIndex"), place + "7");
    EXPECT_EQ(reported(Kind::Write, "frmFichaSimplificada.kvcmbTiposDeServicos.ListIndex"), place + "8");
    EXPECT_EQ(reported(Kind::Call, "frmFichaSimplificada.kvcmbFuncionarios.Clear"), place + "9");
    EXPECT_EQ(reported(Kind::Write, "frmFichaSimplificada.kvcmbFuncionarios.ListIndex"), place + "10");
}

TEST_F(Checkpoints, OfARowCommandGoOnThroughItsCombos)
{
    const std::string place = "frmLista, kvcmdAlterar_Click, Ponto: ";
    const auto reported = [&](Kind kind, const std::string& member) {
        lista->msfgGrade.Enabled(true);
        return ReportedByCommand("kvcmdAlterar", kind, member);
    };
    ASSERT_EQ(user.Choose("frmLista", "kvcmbFuncionarios", "Beto"), "");
    ASSERT_EQ(user.Hover("frmLista", "msfgGrade", 1), "");
    EXPECT_EQ(reported(Kind::Call, "frmFichaCompleta.kvcmbSituacao.Clear"), place + "2");
    EXPECT_EQ(reported(Kind::Call, "frmFichaCompleta.kvcmbTiposDeServicos.Clear"), place + "4");
    EXPECT_EQ(reported(Kind::Write, "frmLista.kvcmbTiposDeServicos.ListIndex"), place + "5");
    EXPECT_EQ(reported(Kind::Write, "frmFichaCompleta.kvcmbTiposDeServicos.ListIndex"), place + "6");
    EXPECT_EQ(reported(Kind::Call, "frmFichaCompleta.kvcmbFuncionarios.Clear"), place + "7");
    EXPECT_EQ(reported(Kind::Write, "frmFichaCompleta.kvcmbFuncionarios.ListIndex"), place + "8");
}

} // namespace

} // namespace kova::agenda
