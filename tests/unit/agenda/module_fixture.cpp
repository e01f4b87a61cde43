#include "tests/unit/agenda/module_fixture.hpp"

#include "agenda/list/module_reset.hpp"

namespace kova::agenda {

using scenario::RecordTable;
using scenario::ScriptedAnswer;

namespace {

constexpr Twips ContainerWidth = 28800;
constexpr Twips ContainerHeight = 16200;

/// Fields of the appointments in the order of the grid's columns.
std::vector<std::string> AppointmentFields()
{
    std::vector<std::string> fields;
    for (const Coluna& coluna : ColunasDaGrade()) {
        if (*coluna.campo != '\0')
            fields.emplace_back(coluna.campo);
    }
    return fields;
}

std::vector<std::string> Beginning(const std::vector<std::string>& all, const std::string& text)
{
    std::vector<std::string> found;
    for (const std::string& line : all) {
        if (line.starts_with(text))
            found.push_back(line);
    }
    return found;
}

} // namespace

ModuleTest::ModuleTest()
{
    crossings->line = [this](const std::string& line) { lines.push_back(line); };
    profile.line = crossings->line;
    toolkit.Clock().Set({{2026, 11, 20}, {10, 15, 0}});
    container = toolkit.CreateContainer(ContainerWidth, ContainerHeight);
    script.Always("KOVA_N_TipoDeServ.clsTiposDeServ.SelecionarParaComboBox",
                  {.records = {{"Nome", "Numero"},
                               {{"Consulta", Long{1}}, {"Retorno", Long{2}}, {"Banho e tosa", Long{4}}}}});
    script.Always("KOVA_N_Funcionarios.clsFuncionarios.SelecionarParaComboBox",
                  {.records = {{"Apelido", "Codigo"}, {{"Ana", Long{7}}, {"Beto", Long{9}}}}});
    script.Always("KOVA_N_Agenda.clsAgenda.Selecionar", {.records = Table({})});
    AttachPlatform(this);
}

ModuleTest::~ModuleTest()
{
    ReiniciarModulo();
    AttachPlatform(nullptr);
}

std::shared_ptr<frmLista> ModuleTest::Open()
{
    clsAgenda agenda;
    if (withUser)
        agenda.Set("DadosDoUsuario", std::make_shared<scenario::NamedObject>("<user>"));
    if (!application.empty())
        agenda.Set("NomeDaAplicacao", application);
    const Value answer = agenda.Call("AbrirLista", {Long{4711}, container});
    EXPECT_TRUE(answer.IsEmpty());
    return std::dynamic_pointer_cast<frmLista>(Principal.FormularioDaLista);
}

std::vector<Value> ModuleTest::Appointment(int number, const std::map<std::string, Value>& changes)
{
    static const std::map<std::string, Value> usual{
        {"DataInicial", "20/11/2026"},
        {"HoraInicial", "08:00"},
        {"DataFinal", "20/11/2026"},
        {"HoraFinal", "09:00"},
        {"CodigoDoCliente", Double{12}},
        {"ApelidoOuNomeFantasiaDoCliente", "Zé"},
        {"NomeOuRazaoSocialDoCliente", "José Antônio da Silva"},
        {"TipoDeCliente", "PF"},
        {"TiposECanaisDeComunicacao", "Celular: 00000-0000"},
        {"CodigoDoAnimal", Long{3}},
        {"NomeDoAnimal", "Rex"},
        {"NumeroDoTipoDeServico", Long{4}},
        {"CodigoDoServico", Double{8}},
        {"CodigoDoFuncionario", Long{7}},
        {"ApelidoDoFuncionario", "Ana"},
        {"ObservacaoDoAnimal", Null{}},
        {"Observacao", Null{}},
        {"TransporteBuscar", "Sim"},
        {"TransporteLevar", "Não"},
        {"Situacao", Long{1}},
        {"DataEHoraDaInclusao", "19/11/2026 17:45:10"},
        {"UsuarioDaInclusao", "Maria"},
        {"DataEHoraDaAlteracao", Null{}},
        {"UsuarioDaAlteracao", Null{}},
    };
    std::vector<Value> row;
    for (const std::string& field : AppointmentFields()) {
        const auto changed = changes.find(field);
        const auto known = usual.find(field);
        if (field == "NumeroDeLancamento")
            row.emplace_back(Double(number));
        else if (changed != changes.end())
            row.push_back(changed->second);
        else
            row.push_back(known != usual.end() ? known->second : Value("(" + field + ")"));
    }
    return row;
}

RecordTable ModuleTest::Table(std::vector<std::vector<Value>> rows)
{
    return {AppointmentFields(), std::move(rows)};
}

void ModuleTest::ScriptAppointments(int count)
{
    std::vector<std::vector<Value>> rows;
    for (int number = 1; number <= count; ++number)
        rows.push_back(Appointment(number));
    script.Always("KOVA_N_Agenda.clsAgenda.Selecionar", {.records = Table(std::move(rows))});
}

std::vector<std::string> ModuleTest::Lines(const std::string& beginning) const
{
    return Beginning(lines, beginning);
}

std::vector<std::string> ModuleTest::Logged(const std::string& beginning) const
{
    return Beginning(toolkit.Log(), beginning);
}

std::vector<std::string> ModuleTest::Reports() const
{
    return Lines("call KOVA_A_MsgErro.clsMensagem.Exibir");
}

} // namespace kova::agenda
