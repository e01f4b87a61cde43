#include "host/components/registry.hpp"
#include "tests/unit/host/program_run.hpp"

#include <gtest/gtest.h>

namespace kova::host::test {

namespace {

/// A user's home with the registry that the application keeps in it.
class ComponentSetup : public testing::Test {
protected:
    /// Starts the application far enough to set up its components: it ends at the missing database.
    void Start() { RunKovaris({"--database", home_ / "nenhum.db"}, home_.Path()); }

    Registry TheRegistry() const { return Registry(file_.string()); }
    std::string LibraryOf(const char* className) const
    {
        const auto found = TheRegistry().Find(className);
        return found ? found->libraryPath : "";
    }
    static std::string Library(const char* name) { return fs::canonical(BuildFolder() / name).string(); }

    const TemporaryFolder home_;
    const fs::path file_ = home_ / ".local/share/kovaris/componentes.reg";
};

} // namespace

TEST_F(ComponentSetup, RegistersTheLibrariesBesideTheExecutable)
{
    Start();
    EXPECT_EQ(LibraryOf("KOVA_A_Agenda.clsAgenda"), Library("libKOVA_A_Agenda.so"));
    EXPECT_EQ(LibraryOf("KOVA_A_MsgErro.clsMensagem"), Library("libKOVA_A_Familia.so"));
    EXPECT_EQ(LibraryOf("KOVA_N_Agenda.clsAgenda"), Library("libKOVA_N_Familia.so"));
    EXPECT_TRUE(TheRegistry().Load().problems.empty());
}

TEST_F(ComponentSetup, DoesNotWriteACompleteRegistryAgain)
{
    Start();
    const fs::file_time_type written = fs::last_write_time(file_);
    Start();
    EXPECT_EQ(fs::last_write_time(file_), written);
}

TEST_F(ComponentSetup, FollowsALibraryThatMoved)
{
    Start();
    ClassRegistration moved = *TheRegistry().Find("KOVA_A_Agenda.clsAgenda");
    moved.libraryPath = "/antes/libKOVA_A_Agenda.so";
    TheRegistry().Write(moved);
    Start();
    EXPECT_EQ(LibraryOf("KOVA_A_Agenda.clsAgenda"), Library("libKOVA_A_Agenda.so"));
}

TEST_F(ComponentSetup, PutsAMissingClassBack)
{
    Start();
    TheRegistry().Remove("KOVA_N_Funcionarios.clsFuncionarios");
    Start();
    EXPECT_EQ(LibraryOf("KOVA_N_Funcionarios.clsFuncionarios"), Library("libKOVA_N_Familia.so"));
}

TEST_F(ComponentSetup, KeepsAClassThatTheUserTookFromAnotherLibrary)
{
    Start();
    ClassRegistration other = *TheRegistry().Find("KOVA_N_SO.clsObterVersaoDoSO");
    other.libraryPath = "/outra/lib.so";
    TheRegistry().Write(other);
    Start();
    EXPECT_EQ(LibraryOf("KOVA_N_SO.clsObterVersaoDoSO"), "/outra/lib.so");
}

TEST_F(ComponentSetup, GoesOnBesideALineThatCannotBeReadWhereNothingIsMissing)
{
    Start();
    const std::string content = ContentOf(file_) + "linha perdida\n";
    WriteFile(file_, content);
    const ProgramResult result = RunKovaris({"--database", home_ / "nenhum.db"}, home_.Path());
    EXPECT_NE(result.errors.find("linha perdida"), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("nenhum.db"), std::string::npos) << result.errors;
    EXPECT_EQ(ContentOf(file_), content);
}

} // namespace kova::host::test
