#include "host/component_setup.hpp"

#include "host/components/component_error.hpp"
#include "system/library.hpp"
#include "system/path_text.hpp"

#include <algorithm>
#include <array>
#include <iostream>

namespace kova::host {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 18> NeededClasses{
    "KOVA_A_Agenda.clsAgenda",
    "KOVA_A_MsgErro.clsMensagem",
    "KOVA_N_Dados.clsBanco",
    "KOVA_N_Dados.clsImpressoes",
    "KOVA_N_Agenda.clsAgenda",
    "KOVA_N_TipoDeServ.clsTiposDeServ",
    "KOVA_N_Funcionarios.clsFuncionarios",
    "KOVA_N_Empresa.clsEmpresa",
    "KOVA_N_EspecRacas.clsEspecies",
    "KOVA_N_EspecRacas.clsRacas",
    "KOVA_N_Servicos.clsServicos",
    "KOVA_N_ClientAnim.clsClientes",
    "KOVA_N_ClientAnim.clsAnimais",
    "KOVA_N_Feriados.clsFeriados",
    "KOVA_N_SO.clsObterVersaoDoSO",
    "KOVA_A_EfeitosDeTela.clsFundoEscuro",
    "KOVA_A_MsgAcesso.clsMensagem",
    "KOVA_A_EmissorDeEtiquetas.clsEtiquetas",
};

std::vector<std::string> LibrariesIn(const fs::path& folder)
{
    std::vector<std::string> libraries;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const std::string name = system::LibraryNameIn(system::TextOf(entry.path().filename()));
        if (name.starts_with("KOVA_"))
            libraries.push_back(system::TextOf(fs::canonical(entry.path())));
    }
    std::sort(libraries.begin(), libraries.end());
    return libraries;
}

std::string MissingClass(const RegistryContents& contents)
{
    for (const std::string_view needed : NeededClasses)
        if (contents.Find(needed) == nullptr)
            return std::string(needed);
    return {};
}

bool Names(const RegistryContents& contents, const std::string& library)
{
    return std::any_of(contents.classes.begin(), contents.classes.end(),
                       [&](const ClassRegistration& entry) { return entry.libraryPath == library; });
}

void RegisterWhatIsNew(RegistryServerHost& server, const RegistryContents& contents, const fs::path& folder)
{
    const bool incomplete = !MissingClass(contents).empty();
    for (const std::string& library : LibrariesIn(folder))
        if (incomplete || !Names(contents, library))
            server.RegisterLibrary(library);
}

std::string TextOf(const std::vector<RegistryProblem>& problems)
{
    std::string text;
    for (const RegistryProblem& problem : problems)
        text += " " + problem.message;
    return text;
}

} // namespace

void SetUpComponents(Registry& registry, RegistryServerHost& server, const fs::path& folder)
{
    RegistryContents contents = registry.Load();
    if (contents.problems.empty()) {
        RegisterWhatIsNew(server, contents, folder);
        contents = registry.Load();
    }
    if (const std::string missing = MissingClass(contents); !missing.empty())
        throw ComponentError("O componente '" + missing + "' não está registrado em '" + registry.Path()
                             + "'." + TextOf(contents.problems)
                             + " Instale o programa novamente, com todas as bibliotecas ao lado dele em '"
                             + system::TextOf(folder) + "'.");
    for (const RegistryProblem& problem : contents.problems)
        std::cerr << "Kovaris: " << problem.message << std::endl;
}

void LoadComponents(const Registry& registry, RegistryServerHost& server)
{
    for (const ClassRegistration& entry : registry.Load().classes) {
        try {
            server.Libraries().Load(registry.Find(entry.className)->libraryPath);
        } catch (const ComponentError&) {
        }
    }
}

} // namespace kova::host
