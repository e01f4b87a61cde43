#pragma once

#include "agenda/simplified_record/frmFichaSimplificada.hpp"
#include "tests/unit/agenda/module_fixture.hpp"
#include "toolkits/common/access_observer.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/form.hpp"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace kova::agenda {

/// The simplified record form over a list of one appointment without a registered customer, its combos filled
/// as the list fills them. A box that no test has prepared fails it, and so does an answer that nobody asked
/// for.
class FichaSimplificadaTest : public ModuleTest {
protected:
    using Strings = std::vector<std::string>;
    static constexpr const char* Form = "frmFichaSimplificada";
    static inline const std::string Especies = "KOVA_N_EspecRacas.clsEspecies.SelecionarParaComboBox";
    static inline const std::string Racas = "KOVA_N_EspecRacas.clsRacas.SelecionarParaComboBox";
    static inline const std::string Servicos = "KOVA_N_Servicos.clsServicos.Selecionar";

    void TearDown() override
    {
        EXPECT_EQ(toolkit.Queue().Unexpected(), Strings());
        EXPECT_EQ(toolkit.Queue().Unused(), 0U);
        EXPECT_TRUE(toolkit.UnhandledFailures().empty());
        EXPECT_EQ(script.LiveObjects(), lista ? 1 : 0) << "but for the list's own object";
    }

    /// `changes` are fields of the appointment.
    void Prepare(const std::map<std::string, Value>& changes = {})
    {
        std::map<std::string, Value> fields{
            {"CodigoDoCliente", ""},    {"CodigoDoAnimal", ""},       {"SexoDoAnimal", "Macho"},
            {"NomeDaEspecie", "Gato"},  {"NomeDaRaca", "Siamês"},     {"CorDoAnimal", "Preto"},
            {"NomeDoServico", "Banho"}, {"TempoDeExecucao", "01:00"}, {"Observacao", "Arisco"}};
        for (const auto& [field, value] : changes)
            fields[field] = value;
        script.Always("KOVA_N_Agenda.clsAgenda.Selecionar", {.records = Table({Appointment(41, fields)})});
        ScriptNames(Especies, {{"Cão", 1}, {"Gato", 2}});
        ScriptNames(Racas, {{"Persa", 21}, {"Siamês", 22}});
        if (lista)
            lista->Formulario->Unload();
        lista = Open();
        ASSERT_EQ(user.Hover("frmLista", "msfgGrade", 1), "");
        MakeForm();
    }

    void MakeForm(Integer type = 0)
    {
        ficha = frmFichaSimplificada::Criar();
        ficha->Formulario->Load();
        Fill(ficha->kvcmbSituacao, {{"Agendado", 1}, {"Atendido", 2}, {"Cancelado", 3}});
        Fill(ficha->kvcmbTiposDeServicos,
             {{"(Todos)", 0}, {"Consulta", 1}, {"Retorno", 2}, {"Banho e tosa", 4}});
        Fill(ficha->kvcmbFuncionarios, {{"Ana", 7}, {"Beto", 9}});
        ficha->kvcmbTiposDeServicos.ListIndex(type);
        Forget();
    }

    static void Fill(KVComboBox& combo, std::initializer_list<std::pair<const char*, Long>> rows)
    {
        for (const auto& [text, number] : rows) {
            combo.AddItem(text);
            combo.ItemData(combo.NewIndex(), number);
        }
    }
    void ScriptNames(const std::string& member, std::initializer_list<std::pair<const char*, Long>> names)
    {
        scenario::RecordTable table{{"Nome", "Codigo"}, {}};
        for (const auto& [name, code] : names)
            table.rows.push_back({name, code});
        script.Always(member, {.records = std::move(table)});
    }
    /// The services that the next searches find, in type 4.
    void ScriptServices(std::initializer_list<std::pair<const char*, Long>> services)
    {
        scenario::RecordTable table{{"Codigo", "Nome", "Descricao", "ValorDeVenda", "Custo",
                                     "NumeroDoTipoDeServico", "TempoDeExecucao"},
                                    {}};
        for (const auto& [name, code] : services)
            table.rows.push_back({Double(code), name, "", Double{1}, Double{1}, Long{4}, "01:30:00"});
        script.Always(Servicos, {.records = std::move(table)});
    }

    /// The next call of that member answers a technical failure.
    void AnswerFailure(const std::string& member)
    {
        script.Answer(member,
                      {.result = Integer{1},
                       .members = {{"NumeroDoErro", Long{17}},
                                   {"DescricaoDoErro", "Sem conexão"},
                                   {"LocalDoErro", "clsX"}}});
    }
    static std::string ReportOfFailure()
    {
        return R"(call KOVA_A_MsgErro.clsMensagem.Exibir(Long& 17, Text& "Sem conexão", Text& "clsX", )"
               R"(Text& "Kova") -> Integer 0)";
    }
    void ExpectReport(const std::string& number, const std::string& place) const
    {
        ASSERT_EQ(Reports().size(), 1U);
        EXPECT_NE(Reports()[0].find("Long& " + number + ","), std::string::npos) << Reports()[0];
        EXPECT_NE(Reports()[0].find("\"KOVA_A_Agenda, " + place), std::string::npos) << Reports()[0];
    }

    /// Opens the form and does what is given inside it; a form left open is hidden then.
    void Show(
        Integer mode, const std::function<void()>& acts = [] {})
    {
        toolkit.Queue().QueueAction([&, this] {
            acts();
            if (ficha->Formulario->Visible())
                ficha->Formulario->Hide();
        });
        ficha->MontarExibirFormulario(mode);
    }
    /// The same, with the logs begun afresh when the form stands.
    void InForm(Integer mode, const std::function<void()>& acts)
    {
        Show(mode, [&, this] {
            Forget();
            acts();
        });
    }
    void Forget()
    {
        lines.clear();
        toolkit.ClearLog();
    }
    void Box(Reply reply = Reply::Ok) { toolkit.Queue().QueueReply(reply); }
    static std::string Information(const std::string& text)
    {
        return "box information \"Kova\" \"" + text + "\" -> ok";
    }

    std::shared_ptr<frmLista> lista;
    std::shared_ptr<frmFichaSimplificada> ficha;
};

} // namespace kova::agenda
