#include "component/entry_names.hpp"
#include "host/components/component_error.hpp"
#include "host/components/component_library.hpp"
#include "tests/unit/host/components/host_fixture.hpp"

#include <gtest/gtest.h>

namespace kova::host {

using test::Contains;
using test::WriteFile;

class LibraryCacheTest : public test::HostTest {
protected:
    ComponentRef CreateEcho()
    {
        ClassFactory* factory = nullptr;
        libraries.Load(TEST_COMPONENT).GetClassObject("{11111111-2222-4333-8444-555555555501}", &factory);
        ComponentRef object;
        factory->CreateInstance(nullptr, &object);
        return object;
    }

    LibraryCache& libraries = server.Libraries();
};

TEST_F(LibraryCacheTest, LoadsALibraryOnceWhateverTheSpellingOfItsPath)
{
    const std::filesystem::path path = system::PathOf(TEST_COMPONENT);
    const auto otherSpelling = path.parent_path() / "." / path.filename();
    EXPECT_FALSE(libraries.IsLoaded(TEST_COMPONENT));
    LoadedLibrary& library = libraries.Load(TEST_COMPONENT);
    EXPECT_EQ(&libraries.Load(system::TextOf(otherSpelling)), &library);
    EXPECT_TRUE(libraries.IsLoaded(system::TextOf(otherSpelling)));
}

TEST_F(LibraryCacheTest, HandsTheHostOverToTheLibrary)
{
    const auto echo = CreateEcho();
    EXPECT_EQ(echo->Get("FonteDeDados").ToText(), "dados.db");
    EXPECT_EQ(echo->Get("Pasta").ToText(), "/pasta/de/teste");
}

TEST_F(LibraryCacheTest, CarriesFailuresAndReferencesAcrossTheLibrarysBorder)
{
    const auto echo = CreateEcho();
    Text variable = "antes";
    EXPECT_TRUE(echo->Call("Escrever", {ByRef(variable)}).IsNull());
    EXPECT_EQ(variable, "escrito");
    try {
        echo->Call("Escrever");
        FAIL() << "no failure came";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 450);
    }
}

TEST_F(LibraryCacheTest, RefusesToUnloadWhileAnObjectLives)
{
    auto echo = CreateEcho();
    EXPECT_FALSE(libraries.Unload(TEST_COMPONENT));
    libraries.UnloadUnused();
    EXPECT_TRUE(libraries.IsLoaded(TEST_COMPONENT));
    EXPECT_EQ(echo->Get("FonteDeDados").ToText(), "dados.db");
    echo.reset();
    EXPECT_TRUE(libraries.Unload(TEST_COMPONENT));
    EXPECT_FALSE(libraries.IsLoaded(TEST_COMPONENT));
    EXPECT_TRUE(libraries.Unload(TEST_COMPONENT));
}

TEST_F(LibraryCacheTest, RefusesToUnloadALibraryThatIsLocked)
{
    ClassFactory* factory = nullptr;
    libraries.Load(TEST_COMPONENT).GetClassObject("{11111111-2222-4333-8444-555555555501}", &factory);
    factory->LockServer(true);
    EXPECT_FALSE(libraries.Unload(TEST_COMPONENT));
    factory->LockServer(false);
    EXPECT_TRUE(libraries.Unload(TEST_COMPONENT));
}

TEST_F(LibraryCacheTest, LoadsAnUnloadedLibraryAgain)
{
    libraries.Load(TEST_COMPONENT);
    libraries.UnloadUnused();
    EXPECT_NE(CreateEcho(), nullptr);
}

TEST_F(LibraryCacheTest, LeavesAnObjectUsableThatOutlivesIt)
{
    ComponentRef echo;
    {
        LibraryCache brief(server);
        ClassFactory* factory = nullptr;
        brief.Load(TEST_COMPONENT).GetClassObject("{11111111-2222-4333-8444-555555555501}", &factory);
        factory->CreateInstance(nullptr, &echo);
    }
    EXPECT_EQ(echo->Get("FonteDeDados").ToText(), "dados.db");
}

TEST_F(LibraryCacheTest, SaysThatALibraryIsMissing)
{
    const std::string path = folder.File("nenhuma.so");
    const std::string error = ErrorOf([&] { libraries.Load(path); });
    EXPECT_TRUE(Contains(error, "'" + path + "' não foi encontrada")) << error;
}

TEST_F(LibraryCacheTest, SaysThatAFileIsNoLibrary)
{
    const std::string path = folder.File("texto.so");
    WriteFile(path, "isto não é uma biblioteca\n");
    const std::string error = ErrorOf([&] { libraries.Load(path); });
    EXPECT_TRUE(Contains(error, "'" + path + "' não pode ser carregada. ")) << error;
    EXPECT_TRUE(Contains(error, "pode estar danificado ou não ser uma biblioteca")) << error;
    EXPECT_TRUE(Contains(error, "\nDetalhe técnico: ")) << error;
    EXPECT_FALSE(libraries.IsLoaded(path));
}

TEST_F(LibraryCacheTest, SaysWhichEntryPointIsMissing)
{
    const std::string path =
        system::TextOf(std::filesystem::canonical(system::PathOf(TEST_COMPONENT_INCOMPLETE)));
    const std::string error = ErrorOf([&] { libraries.Load(path); });
    EXPECT_TRUE(
        Contains(error, "falta o ponto de entrada '" + std::string(component::ClassesEntryPoint()) + "'"))
        << error;
    EXPECT_TRUE(Contains(error, path)) << error;
}

TEST_F(LibraryCacheTest, SaysThatALibraryRefusesTheHost)
{
    const std::string error = ErrorOf([&] { libraries.Load(TEST_COMPONENT_REFUSING); });
    EXPECT_TRUE(Contains(error, "recusou-se a ser usada")) << error;
    EXPECT_FALSE(libraries.IsLoaded(TEST_COMPONENT_REFUSING));
}

TEST_F(LibraryCacheTest, LetsOneHostOnlyUseALibraryWhileItsObjectsLive)
{
    auto echo = CreateEcho();
    RegistryServerHost other(registry, platform, "outros.db");
    EXPECT_NE(ErrorOf([&] { other.Libraries().Load(TEST_COMPONENT); }), "");
    EXPECT_EQ(echo->Get("FonteDeDados").ToText(), "dados.db");
}

} // namespace kova::host
