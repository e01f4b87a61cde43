#pragma once

#include "agenda/full_record/frmFichaCompleta.hpp"
#include "tests/unit/agenda/module_fixture.hpp"
#include "toolkits/common/boxes/edit_core.hpp"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace kova::agenda {

/// A record form over a list of one appointment, its combos filled as the list fills them, and nothing found
/// yet. A box that no test has prepared fails it, and so does an answer that nobody asked for.
class FichaCompletaTest : public ModuleTest {
protected:
    using Strings = std::vector<std::string>;
    static constexpr const char* Form = "frmFichaCompleta";

    void TearDown() override
    {
        EXPECT_EQ(toolkit.Queue().Unexpected(), Strings());
        EXPECT_EQ(toolkit.Queue().Unused(), 0U);
        EXPECT_TRUE(toolkit.UnhandledFailures().empty());
        EXPECT_EQ(script.LiveObjects(), lista ? 1 : 0) << "but for the list's own object";
    }

    void Prepare(const std::map<std::string, Value>& changes = {})
    {
        script.Always("KOVA_N_Agenda.clsAgenda.Selecionar", {.records = Table({Appointment(41, changes)})});
        ScriptAnimals({{"Rex", 3}});
        lista = Open();
        ASSERT_EQ(user.Hover("frmLista", "msfgGrade", 1), "");
        MakeForm();
    }

    void MakeForm()
    {
        ficha = frmFichaCompleta::Criar();
        ficha->Formulario->Load();
        Fill(ficha->kvcmbSituacao, {{"Agendado", 1}, {"Atendido", 2}, {"Cancelado", 3}});
        Fill(ficha->kvcmbTiposDeServicos,
             {{"(Todos)", 0}, {"Consulta", 1}, {"Retorno", 2}, {"Banho e tosa", 4}});
        Fill(ficha->kvcmbFuncionarios, {{"Ana", 7}, {"Beto", 9}});
        ficha->kvcmbTiposDeServicos.ListIndex(0);
        lines.clear();
        toolkit.ClearLog();
    }

    static void Fill(KVComboBox& combo, std::initializer_list<std::pair<const char*, Long>> rows)
    {
        for (const auto& [text, number] : rows) {
            combo.AddItem(text);
            combo.ItemData(combo.NewIndex(), number);
        }
    }

    /// The animals of every customer, and the details of each of them.
    void ScriptAnimals(std::initializer_list<std::pair<const char*, Long>> animals)
    {
        scenario::RecordTable names{{"Nome", "Codigo"}, {}};
        for (const auto& [name, code] : animals)
            names.rows.push_back({name, code});
        script.Always("KOVA_N_ClientAnim.clsAnimais.SelecionarParaComboBoxFiltradoPorCliente",
                      {.records = std::move(names)});
        script.Always(
            "KOVA_N_ClientAnim.clsAnimais.Selecionar",
            {.records = {{"Sexo", "CodigoDaEspecie", "NomeDaEspecie", "CodigoDaRaca", "NomeDaRaca", "Cor"},
                         {{"Macho", Long{1}, "Cão", Long{2}, "Poodle", "Branco"}}}});
    }

    static std::vector<Value> Customer(Double code, const char* name, Long situation = 1,
                                       const char* vip = "Não", const char* category = "B")
    {
        return {code,      Text(name),    Text(name) + " da Silva", situation, "Rua A, 1", "Tel. 1",
                Text(vip), Text(category)};
    }
    void AnswerCustomers(std::vector<std::vector<Value>> rows)
    {
        script.Answer(
            "KOVA_N_ClientAnim.clsClientes.Selecionar",
            {.records = {{"CodigoDoCliente", "ApelidoOuNomeFantasia", "NomeOuRazaoSocial", "Situacao",
                          "EnderecoCompleto", "TiposECanaisDeComunicacao", "VIP", "CategoriaDaCurvaABC"},
                         std::move(rows)}});
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
    std::string ReportOfFailure() const
    {
        return R"(call KOVA_A_MsgErro.clsMensagem.Exibir(Long& 17, Text& "Sem conexão", Text& "clsX", )"
               R"(Text& "Kova") -> Integer 0)";
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
    /// The same for adding, with the log begun afresh.
    void Add(const std::function<void()>& acts)
    {
        Show(operacao::Adicionar, [&, this] {
            lines.clear();
            toolkit.ClearLog();
            acts();
        });
    }

    void Type(const char* control, const char* text) { EXPECT_EQ(user.Type(Form, control, text), ""); }
    void Press(const char* find) { EXPECT_EQ(user.Press(Form, find), ""); }
    /// Types into a find box and presses it.
    void Search(const char* find, const char* text)
    {
        Type(find, text);
        Press(find);
    }
    void Key(toolkit::FormKey key) { EXPECT_EQ(user.PressKey(Form, key), ""); }
    void Answer(Reply reply = Reply::Ok) { toolkit.Queue().QueueReply(reply); }
    /// What the user does in the next modal form.
    void Inside(std::function<void()> acts) { toolkit.Queue().QueueAction(std::move(acts)); }

    /// Name of the control that has the focus, "" where none has.
    std::string Focused()
    {
        const auto* widget = toolkit.FindForm(Form)->Focused();
        return widget ? widget->FullName().substr(std::string(Form).size() + 1) : "";
    }
    /// How many characters of a box are selected.
    std::size_t SelectedIn(const char* box)
    {
        const auto* edit = dynamic_cast<toolkit::EditCore*>(toolkit.FindForm(Form)->Find(box));
        const auto selection = edit->ShownSelection();
        return std::max(selection.anchor, selection.caret) - std::min(selection.anchor, selection.caret);
    }
    static std::string Box(const char* kind, const std::string& text, const char* reply = "ok")
    {
        return std::string("box ") + kind + R"( "Kova" ")" + text + R"(" -> )" + reply;
    }
    Strings CustomerTexts() const
    {
        return {ficha->kvfCodigoDoCliente.Text(), ficha->kvfApelidoOuNomeFantasiaDoCliente.Text(),
                ficha->kvfNomeOuRazaoSocialDoCliente.Text(), ficha->kvfEnderecoDoCliente.Text(),
                ficha->kvtxtTiposECanaisDeComunicacao.Text()};
    }
    Strings AnimalTexts() const
    {
        return {ficha->kvcmbAnimal.Text(), ficha->kvtxtSexoDoAnimal.Text(),
                ficha->kvtxtEspecieDoAnimal.Text(), ficha->kvtxtRacaDoAnimal.Text(),
                ficha->kvtxtCorDoAnimal.Text()};
    }

    std::shared_ptr<frmLista> lista;
    std::shared_ptr<frmFichaCompleta> ficha;
};

} // namespace kova::agenda
