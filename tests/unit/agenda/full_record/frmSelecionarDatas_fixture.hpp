#pragma once

#include "agenda/full_record/frmSelecionarDatas.hpp"
#include "tests/unit/agenda/module_fixture.hpp"

#include <initializer_list>
#include <string>
#include <vector>

namespace kova::agenda {

/// The date selection as its opener makes it, for a service of an hour and a half; it is Friday, 20/11/2026,
/// 10:15. A question that no test has prepared fails it, and so does an answer that nobody asked for.
class DateSelectionTest : public ModuleTest {
protected:
    DateSelectionTest()
    {
        Principal.NomeDaAplicacao = "Kova";
        Principal.DadosDoUsuario = std::make_shared<scenario::NamedObject>("<user>");
        datas->kvtxtTempoDoServico.Text("01:30");
    }

    void TearDown() override
    {
        EXPECT_EQ(toolkit.Queue().Unexpected(), std::vector<std::string>());
        EXPECT_EQ(toolkit.Queue().Unused(), 0U);
        EXPECT_TRUE(toolkit.UnhandledFailures().empty());
    }

    /// Fills a row by the number that the user sees.
    void Row(std::size_t number, const Text& date, const Text& time)
    {
        datas->kvdtpDataInicial.at(number - 1)->Text(date);
        datas->kvtimHoraInicial.at(number - 1)->Text(time);
    }

    void Answers(std::initializer_list<Reply> replies)
    {
        for (const Reply reply : replies)
            toolkit.Queue().QueueReply(reply);
    }

    /// Opens the form, presses "Salvar" and answers whether that closed it. A form that stays open is
    /// left by the window's own button, after `meanwhile`.
    bool Save(const std::function<void()>& meanwhile = {})
    {
        bool closed = false;
        toolkit.Queue().QueueAction([&, this] {
            toolkit.ClearLog();
            lines.clear();
            EXPECT_EQ(user.Click("frmSelecionarDatas", "kvcmdSalvarFecharConfirmar"), "");
            closed = !datas->Formulario->Visible();
            focused = Logged("focus ");
            if (meanwhile)
                meanwhile();
            if (!closed)
                datas->Formulario->Hide();
        });
        datas->MontarExibirFormulario();
        return closed;
    }

    /// The days that were looked up.
    std::vector<std::string> LookedUp() const { return Lines("call KOVA_N_Feriados.clsFeriados.Selecionar"); }

    std::shared_ptr<frmSelecionarDatas> datas = frmSelecionarDatas::Criar();
    /// Where code put the focus while "Salvar" ran.
    std::vector<std::string> focused;
};

} // namespace kova::agenda
