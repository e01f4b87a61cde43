#pragma once

#include "agenda/full_record/frmFichaCompleta.hpp"
#include "tests/unit/agenda/module_fixture.hpp"

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace kova::agenda {

/// A record form with everything on it that can be saved, opened over a list of one appointment. It is
/// 20/11/2026, 10:15. A question that no test has prepared fails it, and so does an answer that nobody asked
/// for.
class SavingTest : public ModuleTest {
protected:
    void TearDown() override
    {
        EXPECT_EQ(toolkit.Queue().Unexpected(), std::vector<std::string>());
        EXPECT_EQ(toolkit.Queue().Unused(), 0U);
        EXPECT_TRUE(toolkit.UnhandledFailures().empty());
    }

    /// The list with its appointment under the mouse, and a form beside it as the list makes it.
    void Prepare(const std::map<std::string, Value>& changes = {})
    {
        script.Always("KOVA_N_Agenda.clsAgenda.Selecionar", {.records = Table({Appointment(41, changes)})});
        script.Always("KOVA_N_ClientAnim.clsAnimais.SelecionarParaComboBoxFiltradoPorCliente",
                      {.records = {{"Nome", "Codigo"}, {{"Rex", Long{3}}}}});
        script.Always(
            "KOVA_N_ClientAnim.clsAnimais.Selecionar",
            {.records = {{"Sexo", "CodigoDaEspecie", "NomeDaEspecie", "CodigoDaRaca", "NomeDaRaca", "Cor"},
                         {{"Macho", Long{1}, "Cão", Long{2}, "Poodle", "Branco"}}}});
        lista = Open();
        ASSERT_EQ(user.Hover("frmLista", "msfgGrade", 1), "");
        Principal.DataDaAgenda = "20/11/2026";
        ficha = frmFichaCompleta::Criar();
        Fill(ficha->kvcmbSituacao, {{"Agendado", 1}, {"Atendido", 2}, {"Cancelado", 3}});
        Fill(ficha->kvcmbFuncionarios, {{"Ana", 7}, {"Beto", 9}});
        Fill(ficha->kvcmbTiposDeServicos, {{"Consulta", 1}, {"Banho e tosa", 4}});
    }

    static void Fill(KVComboBox& combo, std::initializer_list<std::pair<const char*, Long>> rows)
    {
        for (const auto& [text, number] : rows) {
            combo.AddItem(text);
            combo.ItemData(combo.NewIndex(), number);
        }
    }

    /// What an addition needs, as the lookups leave it.
    void FillAddition()
    {
        ficha->kvcmbTiposDeServicos.ListIndex(1);
        ficha->kvfCodigoDoCliente.Text("12");
        ficha->kvfApelidoOuNomeFantasiaDoCliente.Text("Zé");
        ficha->kvcmbAnimal.Clear();
        Fill(ficha->kvcmbAnimal, {{"Rex", 3}});
        ficha->kvcmbAnimal.ListIndex(0);
        ficha->kvfCodigoDoServico.Text("8");
        ficha->kvfNomeDoServico.Text("Banho");
        ficha->kvtxtTempoDoServico.Text("01:30");
        ficha->kvdtpDataInicial.Text("23/11/2026");
        ficha->kvtimHoraInicial.Text("09:00");
        ficha->kvdtpDataFinal.Text("23/11/2026");
        ficha->kvtimHoraFinal.Text("10:30");
        ficha->kvcmbFuncionarios.ListIndex(0);
        ficha->kvcmbFuncionarios.Enabled(true);
        ficha->kvtxtObservacaoDoServico.Text("  usa perfume ");
    }

    /// Opens the form, does what is given and answers whether that closed it; an open form is hidden then.
    bool Run(Integer mode, const std::function<void()>& acts)
    {
        bool closed = false;
        toolkit.Queue().QueueAction([&, this] {
            if (mode == operacao::Adicionar)
                FillAddition();
            lines.clear();
            toolkit.ClearLog();
            acts();
            closed = !ficha->Formulario->Visible();
            if (!closed)
                ficha->Formulario->Hide();
        });
        ficha->MontarExibirFormulario(mode);
        return closed;
    }

    void PressSave() { EXPECT_EQ(user.Click("frmFichaCompleta", "kvcmdSalvarFecharConfirmar"), ""); }
    bool Save(Integer mode = operacao::Adicionar)
    {
        return Run(mode, [this] { PressSave(); });
    }

    void Answers(std::initializer_list<Reply> replies)
    {
        for (const Reply reply : replies)
            toolkit.Queue().QueueReply(reply);
    }

    void WriteAnswers(const char* member, Integer result, std::map<std::string, Value> members = {})
    {
        script.Answer(std::string("KOVA_N_Agenda.clsAgenda.") + member,
                      {.result = result, .members = std::move(members)});
    }

    /// The lines at the business border that concern the appointment's own object.
    std::vector<std::string> AtTheAgenda() const
    {
        std::vector<std::string> found;
        for (const std::string& line : lines)
            if (line.find(" KOVA_N_Agenda.clsAgenda") != std::string::npos)
                found.push_back(line);
        return found;
    }

    std::vector<std::string> Writes() const { return Lines("set KOVA_N_Agenda.clsAgenda."); }
    std::string Written(const std::string& member) const
    {
        const auto found = Lines("set KOVA_N_Agenda.clsAgenda." + member + " ");
        return found.size() == 1 ? found[0].substr(found[0].find(member) + member.size() + 1) : "";
    }
    std::vector<std::string> FocusedByCode() const { return Logged("focus "); }

    std::shared_ptr<frmLista> lista;
    std::shared_ptr<frmFichaCompleta> ficha;
};

} // namespace kova::agenda
