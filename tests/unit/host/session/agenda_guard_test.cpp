#include "host/session/agenda_guard.hpp"

#include "agenda/contracts/widgets.hpp"
#include "agenda/full_record/frmFichaCompleta_design.hpp"
#include "agenda/list/frmLista_design.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/simplified_record/frmFichaSimplificada_design.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/headless/toolkit.hpp"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace kova::host::test {

namespace {

using family::Right;
using Names = std::set<std::string>;

/// The agenda's forms as they are designed, without what happens in them.
class GuardOfTheAgenda : public testing::Test {
protected:
    GuardOfTheAgenda()
    {
        for (const char* record : {"frmFichaCompleta", "frmFichaSimplificada"})
            Say(record, "kvcmdSalvarFecharConfirmar", "Fechar");
        guard_.Look();
    }

    void Deny(std::initializer_list<Right> rights)
    {
        denied_.clear();
        for (const Right right : rights)
            denied_[right] = "Não pode: " + std::string(family::InfoOf(right).name);
        guard_.Look();
    }
    void Say(const char* form, const char* button, const char* caption)
    {
        Bind<KVCommandButton>(forms_.at(form), button).Caption(caption);
    }
    /// All controls that are denied now, by their full names.
    Names Denied() const
    {
        Names names;
        for (const auto& [name, form] : forms_) {
            for (const auto& widget : dynamic_cast<const toolkit::FormModel&>(*form).Widgets()) {
                if (!widget->Denial().empty())
                    names.insert(widget->FullName());
            }
        }
        return names;
    }
    Text WhyOf(const char* control, const char* form = "frmLista") const
    {
        return dynamic_cast<const toolkit::FormModel&>(*forms_.at(form)).Find(control)->Denial();
    }
    Text WhyNotSaved(const char* form) const { return WhyOf("kvcmdSalvarFecharConfirmar", form); }
    void Entitle(const char* form, const char* title)
    {
        Bind<KVTheme>(forms_.at(form), "KVTheme").Caption(title);
    }
    /// That status in the record.
    void Choose(Long status)
    {
        auto& box = Bind<KVComboBox>(forms_.at("frmFichaCompleta"), "kvcmbSituacao");
        box.Clear();
        box.AddItem("outra");
        box.ItemData(0, status);
        box.ListIndex(0);
    }
    /// The list has two rows, the second of which has that status; its buttons stand on it.
    void StandOnRowOf(const char* status)
    {
        auto& grid = Bind<MSFlexGrid>(forms_.at("frmLista"), "msfgGrade");
        grid.Rows(3);
        grid.Cols(agenda::QuantidadeDeColunas);
        grid.TextMatrix(1, agenda::colunas::Situacao, "1");
        grid.TextMatrix(2, agenda::colunas::Situacao, status);
        grid.Row(2);
        grid.RowSel(2);
    }

    headless::HeadlessToolkit toolkit_;
    std::map<std::string, FormRef> forms_{
        {"frmLista", toolkit_.CreateForm(agenda::DesenhoDefrmLista())},
        {"frmFichaCompleta", toolkit_.CreateForm(agenda::DesenhoDefrmFichaCompleta())},
        {"frmFichaSimplificada", toolkit_.CreateForm(agenda::DesenhoDefrmFichaSimplificada())}};
    family::DeniedRights denied_;
    bool isAway_ = false;
    AgendaGuard guard_{toolkit_, [this] {
                           if (isAway_)
                               throw family::DatabaseFailure("away");
                           return denied_;
                       }};
};

} // namespace

TEST_F(GuardOfTheAgenda, ShutsNothingWhereNothingIsDenied) { EXPECT_EQ(Denied(), Names()); }

TEST_F(GuardOfTheAgenda, ShutsWhatEachRightIsFor)
{
    Deny({Right::Book});
    EXPECT_EQ(Denied(),
              (Names{"frmLista.kvcmdAdicionar", "frmLista.mnuAdicionarAgendamentoCompleto",
                     "frmLista.mnuAdicionarAgendamentoSimplificado"}));
    Deny({Right::ChangeAppointments});
    EXPECT_EQ(Denied(),
              (Names{"frmLista.kvcmdAlterar", "frmLista.kvcmdMarcarAgendamentoComoAgendado",
                     "frmLista.kvcmdMarcarAgendamentoComoAtendido",
                     "frmLista.kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda"}));
    Deny({Right::CancelAppointments});
    EXPECT_EQ(Denied(), Names{"frmLista.kvcmdMarcarAgendamentoComoCancelado"});
    Deny({Right::DeleteAppointments});
    EXPECT_EQ(Denied(), Names{"frmLista.kvcmdExcluir"});
    EXPECT_EQ(WhyOf("kvcmdExcluir"), "Não pode: agendamento.excluir");
    EXPECT_EQ(WhyOf("kvcmdDetalhar"), "");
    Deny({Right::ChangeRegisters, Right::Export, Right::SeePrices});
    EXPECT_EQ(Denied(), Names());
}

TEST_F(GuardOfTheAgenda, ShutsTheButtonsOfARecordByWhatTheySay)
{
    Deny({Right::ChangeAppointments, Right::DeleteAppointments});
    const Names ofTheList = Denied();
    for (const char* form : {"frmFichaCompleta", "frmFichaSimplificada"}) {
        const auto name = [form](const char* button) { return std::string(form) + "." + button; };
        Say(form, "kvcmdCancelarAlterar", "Alterar");
        EXPECT_TRUE(Denied().contains(name("kvcmdCancelarAlterar")));
        Say(form, "kvcmdCancelarAlterar", "Cancelar");
        Say(form, "kvcmdSalvarFecharConfirmar", "Fechar");
        EXPECT_EQ(Denied(), ofTheList) << "who looks on leaves as he came";
        Say(form, "kvcmdSalvarFecharConfirmar", "Confirmar");
        EXPECT_TRUE(Denied().contains(name("kvcmdSalvarFecharConfirmar")));
        Say(form, "kvcmdSalvarFecharConfirmar", "Fechar");
    }
}

TEST_F(GuardOfTheAgenda, ShutsTheSavingOfARecordByWhatIsDone)
{
    for (const char* form : {"frmFichaCompleta", "frmFichaSimplificada"}) {
        Say(form, "kvcmdSalvarFecharConfirmar", "Salvar");
        Entitle(form, "Adicionar agendamento completo");
        Deny({Right::ChangeAppointments, Right::CancelAppointments, Right::UndoPreSales});
        EXPECT_EQ(WhyNotSaved(form), "");
        Deny({Right::Book});
        EXPECT_EQ(WhyNotSaved(form), "Não pode: agendamento.incluir");
        Entitle(form, "Alterar agendamento completo");
        EXPECT_EQ(WhyNotSaved(form), "");
        Deny({Right::ChangeAppointments});
        EXPECT_EQ(WhyNotSaved(form), "Não pode: agendamento.alterar");
        Say(form, "kvcmdSalvarFecharConfirmar", "Fechar");
        EXPECT_EQ(WhyNotSaved(form), "");
    }
}

TEST_F(GuardOfTheAgenda, ShutsTheSavingOfAStatusThatOnlyOthersMaySet)
{
    Say("frmFichaCompleta", "kvcmdSalvarFecharConfirmar", "Salvar");
    Entitle("frmFichaCompleta", "Alterar agendamento completo");
    Deny({Right::CancelAppointments});
    StandOnRowOf("1");
    EXPECT_EQ(WhyNotSaved("frmFichaCompleta"), "") << "none is chosen yet";
    Choose(3);
    EXPECT_EQ(WhyNotSaved("frmFichaCompleta"), "Não pode: agendamento.cancelar");
    Choose(2);
    EXPECT_EQ(WhyNotSaved("frmFichaCompleta"), "");
    StandOnRowOf("3");
    Choose(3);
    EXPECT_EQ(WhyNotSaved("frmFichaCompleta"), "") << "it is cancelled already";
    Deny({Right::UndoPreSales});
    StandOnRowOf("4");
    EXPECT_EQ(WhyOf("kvcmbSituacao", "frmFichaCompleta"), "Não pode: agendamento.desfazer_pre_venda");
    EXPECT_EQ(WhyOf("kvcmbSituacao"), "") << "the list's is a filter";
    Choose(4);
    EXPECT_EQ(WhyNotSaved("frmFichaCompleta"), "");
    Choose(1);
    EXPECT_EQ(WhyNotSaved("frmFichaCompleta"), "Não pode: agendamento.desfazer_pre_venda");
    StandOnRowOf("2");
    EXPECT_EQ(WhyOf("kvcmbSituacao", "frmFichaCompleta"), "");
}

TEST_F(GuardOfTheAgenda, KeepsAGeneratedPreSaleOnItsRowAlone)
{
    Deny({Right::UndoPreSales});
    EXPECT_EQ(Denied(), Names()) << "there is no row";
    StandOnRowOf("4");
    EXPECT_EQ(Denied(),
              (Names{"frmFichaCompleta.kvcmbSituacao", "frmLista.kvcmdMarcarAgendamentoComoAgendado",
                     "frmLista.kvcmdMarcarAgendamentoComoAtendido",
                     "frmLista.kvcmdMarcarAgendamentoComoCancelado"}));
    EXPECT_EQ(WhyOf("kvcmdMarcarAgendamentoComoCancelado"), "Não pode: agendamento.desfazer_pre_venda");
    StandOnRowOf("2");
    EXPECT_EQ(Denied(), Names());
}

TEST_F(GuardOfTheAgenda, StaysAsItWasWhileNobodyCanBeAsked)
{
    Deny({Right::DeleteAppointments});
    EXPECT_TRUE(guard_.MaySeePrices());
    isAway_ = true;
    Deny({Right::Book, Right::SeePrices});
    EXPECT_EQ(Denied(), Names{"frmLista.kvcmdExcluir"});
    isAway_ = false;
    guard_.Look();
    EXPECT_TRUE(Denied().contains("frmLista.kvcmdAdicionar"));
    EXPECT_FALSE(guard_.MaySeePrices());
}

} // namespace kova::host::test
