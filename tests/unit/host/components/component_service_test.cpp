#include "host/components/component_service.hpp"
#include "tests/unit/host/components/host_fixture.hpp"

#include <gtest/gtest.h>

namespace kova::host {

using test::Contains;
using test::ContentOf;
using test::WriteFile;

namespace {

class LocalComponent : public Component {
public:
    Value Get(std::string_view) override { return "local"; }
    void Set(std::string_view, const Value&) override { }
    using Component::Call;
    Value Call(std::string_view, std::span<Argument>) override { return {}; }
};

} // namespace

class RegisteredComponentsTest : public test::HostTest {
protected:
    /// The text of the failure 429 that creating the class ends in.
    std::string RefusalOf(const std::string& className)
    {
        try {
            components.CreateObject(className);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 429);
            return failure.Description();
        }
        ADD_FAILURE() << className << " was created";
        return {};
    }
};

TEST_F(RegisteredComponentsTest, CreatesAClassOfARegisteredLibrary)
{
    server.RegisterLibrary(TEST_COMPONENT);
    const auto echo = components.CreateObject("Teste.clsEco");
    EXPECT_EQ(echo->Get("FonteDeDados").ToText(), "dados.db");
}

TEST_F(RegisteredComponentsTest, MakesANewObjectEachTime)
{
    server.RegisterLibrary(TEST_COMPONENT);
    EXPECT_NE(components.CreateObject("Teste.clsEco"), components.CreateObject("Teste.clsEco"));
}

TEST_F(RegisteredComponentsTest, SaysThatAClassIsNotRegistered)
{
    const std::string text = RefusalOf("KOVA_N_Nada.clsNada");
    EXPECT_TRUE(text.starts_with("O componente 'KOVA_N_Nada.clsNada' não está registrado.")) << text;
    EXPECT_TRUE(Contains(text, registry.Path())) << text;
}

TEST_F(RegisteredComponentsTest, SaysThatTheMissingClassMayStandInACorruptLine)
{
    WriteFile(registry.Path(), "Teste.clsEco\t{11111111-2222-43\n");
    const std::string text = RefusalOf("Teste.clsEco");
    EXPECT_TRUE(Contains(text, "não está registrado")) << text;
    EXPECT_TRUE(Contains(text, "A linha 1 do arquivo de registro")) << text;
}

TEST_F(RegisteredComponentsTest, NamesClassAndCauseWhereTheLibraryIsMissing)
{
    registry.Write({"Teste.clsEco", "{11111111-2222-4333-8444-555555555501}", "/nao/existe.so"});
    const std::string text = RefusalOf("Teste.clsEco");
    EXPECT_TRUE(text.starts_with("O componente 'Teste.clsEco' não pode ser criado.")) << text;
    EXPECT_TRUE(Contains(text, "'" + folder.OnItsDisk("/nao/existe.so") + "' não foi encontrada")) << text;
}

TEST_F(RegisteredComponentsTest, NamesTheLibraryThatDoesNotOfferTheClass)
{
    const std::string path = system::TextOf(std::filesystem::canonical(system::PathOf(TEST_COMPONENT)));
    registry.Write({"Teste.clsOutra", "{99999999-2222-4333-8444-555555555501}", path});
    const std::string text = RefusalOf("Teste.clsOutra");
    EXPECT_TRUE(Contains(text, "não oferece a classe {99999999-2222-4333-8444-555555555501}")) << text;
}

TEST_F(RegisteredComponentsTest, PassesOnWhyTheClassCouldNotBeCreated)
{
    server.RegisterLibrary(TEST_COMPONENT);
    const std::string text = RefusalOf("Teste.clsFalha");
    EXPECT_TRUE(Contains(text, "'Teste.clsFalha'")) << text;
    EXPECT_TRUE(Contains(text, "O banco de dados não pôde ser aberto.")) << text;
}

TEST_F(RegisteredComponentsTest, SaysThatTheRegistryCannotBeRead)
{
    std::filesystem::create_directory(system::PathOf(registry.Path()));
    const std::string text = RefusalOf("Teste.clsEco");
    EXPECT_TRUE(Contains(text, "não pôde ser lido")) << text;
}

TEST_F(RegisteredComponentsTest, PrefersAProvidedFactory)
{
    server.RegisterLibrary(TEST_COMPONENT);
    components.Provide("Teste.clsEco", [] { return std::make_shared<LocalComponent>(); });
    EXPECT_EQ(components.CreateObject("Teste.clsEco")->Get("FonteDeDados").ToText(), "local");
    components.Withdraw("Teste.clsEco");
    EXPECT_EQ(components.CreateObject("Teste.clsEco")->Get("FonteDeDados").ToText(), "dados.db");
}

TEST_F(RegisteredComponentsTest, MakesAFailureOfAProvidedFactoryA429)
{
    components.Provide("Teste.clsLocal",
                       []() -> ComponentRef { throw Failure(FailureNumber::Overflow, "Grande demais."); });
    EXPECT_TRUE(Contains(RefusalOf("Teste.clsLocal"), "Grande demais."));
    components.Provide("Teste.clsLocal", [] { return ComponentRef(); });
    EXPECT_TRUE(Contains(RefusalOf("Teste.clsLocal"), "recusou-se a criar o objeto"));
}

TEST_F(RegisteredComponentsTest, SurvivesAFactoryThatWithdrawsItself)
{
    const auto object = std::make_shared<LocalComponent>();
    components.Provide("Teste.clsLocal", [this, object] {
        components.Withdraw("Teste.clsLocal");
        return object;
    });
    EXPECT_EQ(components.CreateObject("Teste.clsLocal"), object);
    RefusalOf("Teste.clsLocal");
}

TEST_F(RegisteredComponentsTest, RegistersEveryClassUnderTheLibrarysFullPath)
{
    const auto relative = system::TextOf(std::filesystem::relative(system::PathOf(TEST_COMPONENT)));
    server.RegisterLibrary(relative);
    const std::string path = system::TextOf(std::filesystem::canonical(system::PathOf(TEST_COMPONENT)));
    EXPECT_EQ(ContentOf(registry.Path()),
              "Teste.clsEco\t{11111111-2222-4333-8444-555555555501}\t" + path
                  + "\nTeste.clsFalha\t{11111111-2222-4333-8444-555555555502}\t" + path + "\n");
    EXPECT_FALSE(server.Libraries().IsLoaded(TEST_COMPONENT));
}

TEST_F(RegisteredComponentsTest, UnregistersEveryClassOfALibrary)
{
    WriteFile(registry.Path(), "# meu\nOutro.clsA\t{11111111-2222-4333-8444-555555555599}\t/a.so\n");
    server.RegisterLibrary(TEST_COMPONENT);
    server.UnregisterLibrary(TEST_COMPONENT);
    EXPECT_EQ(ContentOf(registry.Path()),
              "# meu\nOutro.clsA\t{11111111-2222-4333-8444-555555555599}\t/a.so\n");
    RefusalOf("Teste.clsEco");
    server.UnregisterLibrary(TEST_COMPONENT);
}

TEST_F(RegisteredComponentsTest, KeepsALibraryLoadedThatIsInUseWhileItIsRegistered)
{
    server.RegisterLibrary(TEST_COMPONENT);
    const auto echo = components.CreateObject("Teste.clsEco");
    server.RegisterLibrary(TEST_COMPONENT);
    EXPECT_EQ(echo->Get("FonteDeDados").ToText(), "dados.db");
}

TEST_F(RegisteredComponentsTest, SaysWhyALibraryCannotBeRegistered)
{
    std::filesystem::create_directory(system::PathOf(registry.Path()));
    const std::string error = ErrorOf([&] { server.RegisterLibrary(TEST_COMPONENT); });
    EXPECT_TRUE(Contains(error, "não registrou as suas classes")) << error;
    EXPECT_TRUE(Contains(error, registry.Path())) << error;
}

TEST_F(RegisteredComponentsTest, SaysWhyALibraryCannotBeTakenOutOfTheRegistry)
{
    std::filesystem::create_directory(system::PathOf(registry.Path()));
    const std::string error = ErrorOf([&] { server.UnregisterLibrary(TEST_COMPONENT); });
    EXPECT_TRUE(Contains(error, "não retirou as suas classes do registro")) << error;
    EXPECT_TRUE(Contains(error, registry.Path())) << error;
}

TEST_F(RegisteredComponentsTest, TakesNoRegistrationWithoutAPathOutsideARegistration)
{
    EXPECT_FALSE(server.Register({"A.clsA", "{11111111-2222-4333-8444-555555555599}", ""}));
    EXPECT_TRUE(server.Register({"A.clsA", "{11111111-2222-4333-8444-555555555599}", "/a.so"}));
    EXPECT_TRUE(server.Unregister("A.clsA"));
    EXPECT_TRUE(server.Unregister("A.clsA"));
}

} // namespace kova::host
