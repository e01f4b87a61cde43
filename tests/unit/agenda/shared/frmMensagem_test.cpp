// The wait window.

#include "agenda/shared/frmMensagem.hpp"
#include "tests/unit/agenda/module_fixture.hpp"

namespace kova::agenda {

namespace {

class TheWaitWindow : public ModuleTest {
protected:
    TheWaitWindow() { Principal.NomeDaAplicacao = "Kova"; }
};

TEST_F(TheWaitWindow, FitsItsTextShowsItselfAndWaitsASecond)
{
    const auto mensagem = frmMensagem::Criar();
    EXPECT_EQ(mensagem->lblMensagem.Caption(), "Aguarde, acessando o sistema");
    mensagem->lblMensagem.Caption("Aguarde, reorganizando dados.");
    const Twips width = mensagem->lblMensagem.Width();
    const Double before = toolkit.Clock().Timer();
    EXPECT_EQ(mensagem->MontarExibirFormulario(), 0);
    EXPECT_EQ(mensagem->Formulario->Width(), width + 780);
    EXPECT_TRUE(mensagem->Formulario->Visible());
    EXPECT_EQ(toolkit.Clock().Timer() - before, 1);
    EXPECT_EQ(Logged("show frmMensagem"), (std::vector<std::string>{"show frmMensagem"})) << "not modal";
}

TEST_F(TheWaitWindow, FitsItsLabelAtEveryOtherResize)
{
    const auto mensagem = frmMensagem::Criar();
    mensagem->MontarExibirFormulario();
    EXPECT_EQ(mensagem->lblMensagem.Width(), mensagem->Formulario->Width()) << "the first one fits it";
    EXPECT_EQ(mensagem->lblMensagem.Left(), 0);
    mensagem->Formulario->Width(6000);
    EXPECT_NE(mensagem->lblMensagem.Width(), 6000);
    mensagem->Formulario->Width(7000);
    EXPECT_EQ(mensagem->lblMensagem.Width(), 7000);
}

TEST_F(TheWaitWindow, HasRoundCornersOrAFrame)
{
    const auto round = frmMensagem::Criar();
    round->MontarExibirFormulario();
    ASSERT_TRUE(toolkit.CornersOf(round->Formulario->Handle()));
    EXPECT_EQ(toolkit.CornersOf(round->Formulario->Handle())->ellipseWidth, 5);
    EXPECT_THROW(round->Formulario->Control("lshpObj"), Failure);

    script.System("WINDOWS 8");
    const auto framed = frmMensagem::Criar();
    framed->MontarExibirFormulario();
    EXPECT_FALSE(toolkit.CornersOf(framed->Formulario->Handle()));
    const Widget& frame = framed->Formulario->Control("lshpObj");
    EXPECT_EQ(frame.Kind(), WidgetKind::Shape);
    EXPECT_TRUE(frame.Visible());
    EXPECT_EQ(frame.Width(), framed->Formulario->ScaleWidth());
    EXPECT_EQ(frame.Height(), framed->Formulario->ScaleHeight());
}

TEST_F(TheWaitWindow, ReportsAFailedVersionAndShowsItselfAllTheSame)
{
    script.FailCreate("KOVA_N_SO.clsObterVersaoDoSO", Failure(429, "sem versão"));
    const auto mensagem = frmMensagem::Criar();
    EXPECT_EQ(mensagem->MontarExibirFormulario(), 0);
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmMensagem, Form_Load, Ponto: 1"), std::string::npos);
    EXPECT_TRUE(mensagem->Formulario->Visible());
    EXPECT_FALSE(toolkit.CornersOf(mensagem->Formulario->Handle()));
}

TEST_F(TheWaitWindow, ClosesWithItsObject)
{
    auto mensagem = frmMensagem::Criar();
    mensagem->MontarExibirFormulario();
    const FormRef form = mensagem->Formulario;
    mensagem.reset();
    EXPECT_FALSE(form->IsLoaded());
    EXPECT_FALSE(form->Visible());
}

TEST_F(TheWaitWindow, MayBeUnloadedInsideItsOwnPause)
{
    const auto mensagem = frmMensagem::Criar();
    toolkit.Queue().QueueDuringPause([&] { mensagem->Formulario->Unload(); });
    EXPECT_EQ(mensagem->MontarExibirFormulario(), 0);
    EXPECT_FALSE(mensagem->Formulario->IsLoaded());
    EXPECT_TRUE(Reports().empty());
}

} // namespace

} // namespace kova::agenda
