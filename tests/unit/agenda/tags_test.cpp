// The literal tags of the traps: each names its own object and procedure, but for those that borrow one on
// purpose. The sources are read as text, so a procedure written tomorrow is held to its row today.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace {

struct Procedure {
    std::string object;
    std::string name;

    auto operator<=>(const Procedure&) const = default;
    std::string Tag() const { return ", " + object + ", " + name + ", Ponto: "; }
};

/// Procedures whose tag names another object or procedure: who carries it, and what it says.
const std::map<Procedure, Procedure>& Borrowed()
{
    static const std::map<Procedure, Procedure> borrowed{
        {{"frmLista", "PreencherComboboxTiposDeServicos"},
         {"frmFichaCompleta", "PreencherComboboxTiposDeServicos"}},
        {{"frmLista", "PreencherComboboxFuncionarios"},
         {"frmFichaCompleta", "PreencherComboboxFuncionarios"}},
        {{"frmLista", "kvdtpDataDeAgendamento_GotFocus"}, {"frmLista", "kvdtpDataDeAgendamento_LostFocus"}},
        {{"frmFichaCompleta", "kvfNomeDoAnimal_KeyDown"},
         {"frmFichaCompleta", "kvfApelidoOuNomeFantasiaDoCliente_KeyDown"}},
        {{"frmFichaSimplificada", "MontarExibirFormulario"}, {"frmFichaCompleta", "MontarExibirFormulario"}},
        {{"frmFichaSimplificada", "kvcmdCancelarAlterar_Click"},
         {"frmFichaCompleta", "kvcmdCancelarAlterar_Click"}},
        {{"frmFichaSimplificada", "PreencherkvcmbSexo"},
         {"frmFichaDeClientesEAnimais", "PreencherkvcmbSexo"}},
        {{"frmPesquisaDeServicos", "ConfigurarGrade"}, {"frmLista", "ConfigurarGrade"}},
        {{"frmPesquisaDeServicos", "PreencherGrade"}, {"frmLista", "PreencherGrade"}},
        {{"frmPesquisaDeServicos", "kvfndCodigoOuNome_Click"}, {"frmLista", "kvfndCodigoOuNome_Click"}},
        {{"frmImprimirAgenda", "PreencherComboBoxDeTransporte"},
         {"frmLista", "PreencherComboBoxDeTransporte"}},
        {{"frmImprimirAgenda", "MontarExibirFormulario"}, {"frmFicha", "MontarExibirFormulario"}},
        {{"frmImprimirAgenda", "kvcmdCancelar_Click"}, {"frmFicha", "kvcmdCancelar_Click"}},
        {{"frmImprimirAgenda", "ValidarCampos"}, {"frmFicha", "ValidarCampos"}},
        {{"frmSelecionarDatas", "MontarExibirFormulario"}, {"frmFicha", "MontarExibirFormulario"}},
        {{"frmSelecionarDatas", "kvcmdCancelar_Click"}, {"frmFicha", "kvcmdCancelar_Click"}},
        {{"frmSelecionarDatas", "ValidarCampos"}, {"frmFicha", "ValidarCampos"}},
        {{"frmSelecionarDatas", "Form_Load"}, {"frmImprimirAgenda", "Form_Load"}},
        {{"frmMensagem", "ArredondarCantosDoObjeto"}, {"frmMensagem", "MontarExibirFormulario"}},
    };
    return borrowed;
}

std::string ExpectedTag(const Procedure& procedure)
{
    const auto found = Borrowed().find(procedure);
    return found == Borrowed().end() ? procedure.Tag() : found->second.Tag();
}

struct Tagged {
    Procedure procedure;
    std::string tag;
};

/// Every tag literal of a source with the procedure that it stands in.
void ReadTags(const std::string& text, std::vector<Tagged>& found)
{
    static const std::regex pattern(
        R"re((\w+)::(\w+)\([^;{}]*\)\n\{|\nvoid (\w+)\([^;{}]*\)\n\{|"(, \w+, \w+, Ponto: )")re");
    Procedure inside;
    for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at) {
        if ((*at)[1].matched)
            inside = {(*at)[1], (*at)[2]};
        else if ((*at)[3].matched)
            inside = {"mod" + std::string((*at)[3]), (*at)[3]};
        else
            found.push_back({inside, (*at)[4]});
    }
}

std::vector<Tagged> TagsOfTheModule()
{
    std::vector<Tagged> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(MODULE_SOURCES)) {
        if (entry.path().extension() != ".cpp")
            continue;
        std::ifstream file(entry.path());
        ReadTags({std::istreambuf_iterator<char>(file), {}}, found);
    }
    return found;
}

TEST(Tags, NameTheirOwnProcedureButForThoseThatBorrowOne)
{
    const auto tags = TagsOfTheModule();
    EXPECT_GT(tags.size(), 20U);
    for (const Tagged& tagged : tags)
        EXPECT_EQ(tagged.tag, ExpectedTag(tagged.procedure))
            << tagged.procedure.object << "::" << tagged.procedure.name;
}

TEST(Tags, StandOncePerProcedure)
{
    std::map<Procedure, int> count;
    for (const Tagged& tagged : TagsOfTheModule())
        ++count[tagged.procedure];
    for (const auto& [procedure, times] : count)
        EXPECT_EQ(times, 1) << procedure.object << "::" << procedure.name;
}

TEST(Tags, BorrowedByTheListAreThere)
{
    const auto tags = TagsOfTheModule();
    for (const auto& [procedure, said] : Borrowed()) {
        if (procedure.object != "frmLista")
            continue;
        const bool there = std::any_of(tags.begin(), tags.end(), [&](const Tagged& tagged) {
            return tagged.procedure == procedure && tagged.tag == said.Tag();
        });
        EXPECT_TRUE(there) << procedure.name;
    }
}

TEST(Tags, AreReadFromTheSourceAsWritten)
{
    std::vector<Tagged> found;
    ReadTags("\nvoid frmLista::Um(Integer a)\n{\n Trap(\", frmLista, Um, Ponto: \", Ponto);\n}\n"
             "\nInteger frmLista::Dois()\n{\n Trap(\", frmLista, Um, Ponto: \", Ponto);\n}\n",
             found);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].tag, ExpectedTag(found[0].procedure));
    EXPECT_NE(found[1].tag, ExpectedTag(found[1].procedure)) << "a copied tag is seen";
}

} // namespace
