// The label component: whose address it prints, whom it refuses, what it remembers.

#include "family/presentation/clsEtiquetas.hpp"
#include "tests/unit/family/presentation/labels/label_fixture.hpp"
#include "tools/scenario/memory_profile.hpp"
#include "tools/scenario/scripted_components.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QTimer>

namespace kova::family::test {
namespace {

constexpr const char* Selection = "KOVA_N_ClientAnim.clsClientes.SelecionarEndereco";

class User : public Object { };

class LabelHost : public ServerHost, public Platform {
public:
    explicit LabelHost(headless::HeadlessToolkit& toolkit) : toolkit_(toolkit) { }

    bool Register(const ClassRegistration&) override { return true; }
    bool Unregister(std::string_view) override { return true; }
    Platform& GetPlatform() override { return *this; }
    std::string DataSource() const override { return {}; }

    ComponentService& Components() override { return components; }
    kova::Toolkit& Toolkit() override { return toolkit_; }
    kova::Clock& Clock() override { return toolkit_.Clock(); }
    kova::Profile& Profile() override { return profile; }
    Text SettingsFolder() const override { return "/configuracao"; }
    Text SettingsTitle() const override { return "KOVA_A_Agenda"; }

    scenario::ScriptedComponents components;
    scenario::MemoryProfile profile;

private:
    headless::HeadlessToolkit& toolkit_;
};

class LabelComponent : public LabelTest {
protected:
    LabelComponent()
    {
        Script(Row(1));
        labels_.Set("CodigoDoCliente", Text("12"));
        labels_.Set("ApelidoOuNomeFantasiaDoCliente", Text("Zé"));
        labels_.Set("NomeOuRazaoSocialDoCliente", Text("José da Grade"));
        labels_.Set("NomeDaAplicacao", Text("Kova"));
        labels_.Set("DadosDoUsuario", std::make_shared<User>());
    }
    void TearDown() override
    {
        EXPECT_EQ(toolkit.Queue().Unused(), 0U);
        EXPECT_EQ(toolkit.Queue().Unexpected(), std::vector<std::string>());
    }

    static std::vector<Value> Row(Long situation, const Text& street = "Rua do Ipê")
    {
        return {12.0, "Zeca",   "José do Cadastro", situation, street,    "110",
                "",   "Centro", "Vale Sereno",      "SP",      "00456789"};
    }
    void Script(std::vector<Value> row)
    {
        std::vector<std::vector<Value>> rows;
        if (!row.empty())
            rows.push_back(std::move(row));
        host_.components.Always(
            Selection,
            {.records = {{"CodigoDoCliente", "ApelidoOuNomeFantasia", "NomeOuRazaoSocial", "Situacao",
                          "Logradouro", "Numero", "Complemento", "Bairro", "Cidade", "UF", "CEP"},
                         rows}});
    }

    /// Opens the labels; the user does `act` in the window and closes it. Whether there was a window.
    bool Open(const std::function<void(LabelWindow&)>& act = {})
    {
        bool shown = false;
        QTimer::singleShot(0, [&] {
            auto* window = dynamic_cast<LabelWindow*>(QApplication::activeModalWidget());
            if (!window)
                return;
            shown = true;
            if (act)
                act(*window);
            window->reject();
        });
        EXPECT_TRUE(labels_.Call("AbrirEmissaoDeEtiqueta", {Integer{1}}).IsEmpty());
        QCoreApplication::processEvents();
        return shown;
    }
    std::string Asked()
    {
        return toolkit.Queue().Questions().empty() ? "" : toolkit.Queue().Questions().back().text;
    }
    /// The number of the failure; 0 where there is none.
    template <class Action> static std::int32_t NumberOf(Action action)
    {
        try {
            action();
        } catch (const Failure& failure) {
            return failure.Number();
        }
        return 0;
    }

    LabelHost host_{toolkit};
    clsEtiquetas labels_{host_};
};

std::string TextOn(const LabelWindow& window)
{
    std::string text;
    for (const reports::Item& item : window.Pages().pages.front().items)
        text += item.text + "\n";
    return text;
}

TEST_F(LabelComponent, PrintsTheRegisteredAddressUnderTheNamesOfTheCaller)
{
    std::string text;
    EXPECT_TRUE(Open([&](LabelWindow& window) {
        window.findChild<QCheckBox*>("apelido")->setChecked(true);
        text = TextOn(window);
    }));
    EXPECT_EQ(text, "Zé\nJosé da Grade\nRua do Ipê, 110\nCentro\nVale Sereno/SP\nCEP 00456-789\n");
}

TEST_F(LabelComponent, TakesTheRegisteredNamesWhereTheCallerGaveNone)
{
    labels_.Set("ApelidoOuNomeFantasiaDoCliente", Text());
    labels_.Set("NomeOuRazaoSocialDoCliente", Text());
    std::string text;
    EXPECT_TRUE(Open([&](LabelWindow& window) { text = TextOn(window); }));
    EXPECT_TRUE(text.starts_with("José do Cadastro\nRua")) << text;
}

TEST_F(LabelComponent, RemembersSheetAndNickname)
{
    EXPECT_TRUE(Open([](LabelWindow& window) { window.findChild<QCheckBox*>("apelido")->setChecked(true); }));
    EXPECT_EQ(host_.profile.LastPath(), "/configuracao/KOVA_A_EmissorDeEtiquetas.ini");
    EXPECT_EQ(host_.profile.ValueOf("Etiquetas", "Folha"), "A4-2x7");
    host_.profile.Put("Etiquetas", "Folha", "carta-3x10");
    LabelChoice again;
    EXPECT_TRUE(Open([&](LabelWindow& window) { again = window.Choice(); }));
    EXPECT_EQ(again, (LabelChoice{"carta-3x10", true}));
}

TEST_F(LabelComponent, RefusesWhoIsNoLongerRegistered)
{
    const std::vector<Value> cases[]{{}, Row(4)};
    for (const auto& row : cases) {
        Script(row);
        toolkit.Queue().QueueReply(Reply::Ok);
        EXPECT_FALSE(Open());
        EXPECT_EQ(Asked(),
                  "O cliente de código 12 não está mais cadastrado.\r\n\r\n"
                  "Atualize a lista e escolha outro agendamento.");
        EXPECT_EQ(toolkit.Queue().Questions().back().kind, MessageKind::Information);
        EXPECT_EQ(toolkit.Queue().Questions().back().title, "Kova");
    }
}

TEST_F(LabelComponent, RefusesACustomerWithoutAnAddress)
{
    Script(Row(1, ""));
    toolkit.Queue().QueueReply(Reply::Ok);
    EXPECT_FALSE(Open());
    EXPECT_EQ(Asked(),
              "O cadastro de José da Grade não tem logradouro ou cidade.\r\n\r\n"
              "Complete o endereço no cadastro do cliente e abra a etiqueta novamente.");
}

TEST_F(LabelComponent, AsksBeforeItPrintsForAnInactiveOrBlockedCustomer)
{
    const std::pair<Long, const char*> cases[]{{2, "inativo"}, {3, "bloqueado"}};
    for (const auto& [situation, word] : cases) {
        Script(Row(situation));
        toolkit.Queue().QueueReply(Reply::No);
        EXPECT_FALSE(Open());
        EXPECT_EQ(Asked(),
                  std::string("O cliente está ") + word + ".\r\n\r\nDeseja imprimir a etiqueta mesmo assim?");
        toolkit.Queue().QueueReply(Reply::Yes);
        EXPECT_TRUE(Open());
    }
}

TEST_F(LabelComponent, HandsABusinessFailureToTheErrorScreenAndReturns)
{
    host_.components.Always(Selection,
                            {.result = Integer{1},
                             .members = {{"NumeroDoErro", Long{17}},
                                         {"DescricaoDoErro", "sem conexão"},
                                         {"LocalDoErro", "clsClientes, SelecionarEndereco"}}});
    testing::internal::CaptureStderr();
    EXPECT_FALSE(Open());
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "Aplicação: Kova\nNúmero: 17\nDescrição: sem conexão\nLocal: clsClientes, SelecionarEndereco\n");
}

TEST_F(LabelComponent, HandsATrappedFailureToTheErrorScreenAndReturns)
{
    host_.components.Fail(Selection, Failure(91, "sem objeto"));
    testing::internal::CaptureStderr();
    EXPECT_FALSE(Open());
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Aplicação: Kova\nNúmero: 91\nDescrição: sem objeto\n"
              "Local: KOVA_A_EmissorDeEtiquetas.clsEtiquetas, AbrirEmissaoDeEtiqueta\n");
}

TEST_F(LabelComponent, KnowsItsMembersAndTheirArguments)
{
    EXPECT_EQ(NumberOf([&] { labels_.Call("Abrir"); }), 438);
    EXPECT_EQ(NumberOf([&] { labels_.Get("CodigoDoCliente"); }), 438);
    EXPECT_EQ(NumberOf([&] { labels_.Set("Codigo", Text("1")); }), 438);
    EXPECT_EQ(NumberOf([&] { labels_.Set("DadosDoUsuario", Text("Lia")); }), 13);
    EXPECT_EQ(NumberOf([&] { labels_.Call("AbrirEmissaoDeEtiqueta"); }), 450);
    EXPECT_EQ(NumberOf([&] { labels_.Call("AbrirEmissaoDeEtiqueta", {Integer{2}}); }), 5);
}

} // namespace
} // namespace kova::family::test
