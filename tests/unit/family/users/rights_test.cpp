#include "tests/unit/family/users/users_fixture.hpp"

#include "family/data/engine/change_count.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/data_source.hpp"

#include <iterator>
#include <set>
#include <utility>

namespace kova::family::test {

namespace {

std::string NamesOf(const Rights& rights)
{
    std::string names;
    for (const RightInfo& info : AllRights()) {
        if (rights.contains(info.right))
            names.append(names.empty() ? "" : " ").append(info.name);
    }
    return names;
}

constexpr const char* EveryRight =
    "agendamento.incluir agendamento.alterar agendamento.cancelar agendamento.excluir"
    " agendamento.desfazer_pre_venda cadastro.alterar cadastro.precos dados.exportar dados.anonimizar"
    " historico.ver usuarios.administrar";

} // namespace

TEST(RightNames, AreToldApartAndFoundAgain)
{
    std::set<std::string_view> names, labels;
    for (const RightInfo& info : AllRights()) {
        EXPECT_TRUE(names.insert(info.name).second) << info.name;
        EXPECT_TRUE(labels.insert(info.label).second) << info.label;
        EXPECT_EQ(RightNamed(info.name), info.right);
        EXPECT_EQ(&InfoOf(info.right), &info);
        EXPECT_FALSE(info.group.empty());
    }
    EXPECT_EQ(InfoOf(Right::DeleteAppointments).label, "Excluir agendamentos");
    EXPECT_EQ(InfoOf(Right::DeleteAppointments).Act(), "excluir agendamentos");
    EXPECT_EQ(RightNamed("agendamento.voar"), std::nullopt);
    EXPECT_EQ(RightNamed(""), std::nullopt);
}

using UserRights = UsersTest;

TEST_F(UserRights, AreAllThereAreInAShopWithoutUsers)
{
    EXPECT_FALSE(HasUsers(Data()));
    for (const Key user : {0, 7, 8, 4711})
        EXPECT_EQ(NamesOf(RightsOf(Data(), user)), EveryRight);
    for (const RightInfo& info : AllRights())
        EXPECT_EQ(WhyDenied(Data(), lia_, info.right), "") << info.name;
}

TEST_F(UserRights, OfTheFirstRolesAreThose)
{
    MakeUsers();
    EXPECT_TRUE(HasUsers(Data()));
    EXPECT_EQ(NamesOf(RightsOf(Data(), 8)), EveryRight);
    EXPECT_EQ(NamesOf(RightsOf(Data(), 7)),
              "agendamento.incluir agendamento.alterar agendamento.cancelar cadastro.alterar");
    GiveLia(Management);
    EXPECT_EQ(
        NamesOf(RightsOf(Data(), 7)),
        "agendamento.incluir agendamento.alterar agendamento.cancelar agendamento.excluir"
        " agendamento.desfazer_pre_venda cadastro.alterar cadastro.precos dados.exportar historico.ver");
    EXPECT_EQ(Texts("select nome from papel order by codigo"),
              (std::vector<std::string>{"Administração", "Gerência", "Recepção"}));
}

TEST_F(UserRights, AreDeniedWithTheRoleTheRightAndWhomToAsk)
{
    MakeUsers();
    EXPECT_EQ(WhyDenied(Data(), lia_, Right::Book), "");
    EXPECT_EQ(WhyDenied(Data(), lia_, Right::DeleteAppointments),
              "Recepção não pode excluir agendamentos. Peça a quem administra os usuários.");
    Allow({});
    const std::pair<Right, const char*> acts[] = {
        {Right::Book, "incluir agendamentos"},
        {Right::ChangeAppointments, "alterar agendamentos"},
        {Right::CancelAppointments, "cancelar agendamentos"},
        {Right::DeleteAppointments, "excluir agendamentos"},
        {Right::UndoPreSales, "desfazer pré-vendas geradas"},
        {Right::ChangeRegisters, "alterar cadastros"},
        {Right::SeePrices, "ver e alterar preços e custos"},
        {Right::Export, "exportar dados"},
        {Right::Anonymise, "anonimizar clientes"},
        {Right::SeeHistory, "ver o histórico"},
        {Right::AdministerUsers, "administrar usuários"},
    };
    EXPECT_EQ(std::size(acts), AllRights().size());
    for (const auto& [right, act] : acts)
        EXPECT_EQ(WhyDenied(Data(), lia_, right),
                  "Recepção não pode " + std::string(act) + ". Peça a quem administra os usuários.");
    try {
        RequireRight(Data(), lia_, Right::Export);
        ADD_FAILURE();
    } catch (const RightDenied& denied) {
        EXPECT_EQ(denied.DeniedRight(), Right::Export);
        EXPECT_EQ(denied.Cause(), "Recepção não pode exportar dados. Peça a quem administra os usuários.");
    }
}

TEST_F(UserRights, AreThoseOfNobodyWhoHasNotSignedIn)
{
    MakeUsers();
    for (const char* code : {"", "0", "4711", "7x", "7 ", "-7", "99999999999999999999", "Lia", "7' or 1=1"})
        EXPECT_EQ(
            WhyDenied(Data(), {code, "Lia", "2026-11-20 09:04:05"}, Right::Book),
            "Para incluir agendamentos é preciso entrar com um usuário desta loja. Entre e tente de novo.")
            << code;
    EXPECT_EQ(NamesOf(RightsOf(Data(), 0)), "");
}

TEST_F(UserRights, DoNotBindWhoeverHasTheDatabaseAtHand)
{
    MakeUsers();
    const Author owner{.code = "0", .name = "root", .moment = "2026-11-20 09:04:05", .isOwner = true};
    for (const RightInfo& info : AllRights())
        EXPECT_EQ(WhyDenied(Data(), owner, info.right), "") << info.name;
}

TEST_F(UserRights, EndWithTheRoleAndWithTheUser)
{
    MakeUsers();
    GiveLia(0);
    EXPECT_EQ(NamesOf(RightsOf(Data(), 7)), "");
    GiveLia(Reception);
    EXPECT_EQ(SaveAccount(Data(), {7, "Lia", Reception, false}, nullptr, ana_, Cheap).why, "");
    EXPECT_EQ(NamesOf(RightsOf(Data(), 7)), "");
}

TEST_F(UserRights, AreThoseThatAnotherDeskHasGivenMeanwhile)
{
    MakeUsers();
    const std::shared_ptr<Database> other = OpenDatabase(host_.DataSource());
    EXPECT_NE(WhyDenied(*other, lia_, Right::Export), "");
    Allow({Right::Export});
    EXPECT_EQ(WhyDenied(*other, lia_, Right::Export), "");
    EXPECT_NE(WhyDenied(*other, lia_, Right::Book), "");
    const WriteTransaction transaction(*other);
    EXPECT_EQ(WhyDenied(*other, lia_, Right::Export), "");
}

TEST_F(UserRights, OfAWritingTransactionAreThoseOfItsBeginning)
{
    EXPECT_EQ(Data().ChangesOfRights(), std::nullopt);
    MakeUsers();
    {
        const WriteTransaction transaction(Data());
        ASSERT_TRUE(Data().ChangesOfRights());
        EXPECT_EQ(Texts("select cast((" + ChangeCount::Selection(CountedRights()) + ") as text)"),
                  std::vector<std::string>{std::to_string(*Data().ChangesOfRights())});
        EXPECT_NE(WhyDenied(Data(), lia_, Right::Export), "");
    }
    EXPECT_EQ(Data().ChangesOfRights(), std::nullopt);
}

TEST_F(UserRights, ThatThisProgramDoesNotKnowAreLeftAlone)
{
    MakeUsers();
    Run("insert into papel_direito (codigo_do_papel, direito) values (3, 'caixa.abrir')");
    EXPECT_EQ(WhyDenied(Data(), lia_, Right::Book), "");
    Allow({Right::Book});
    EXPECT_EQ(NamesOf(RightsOf(Data(), 7)), "agendamento.incluir");
    EXPECT_EQ(Texts("select direito from papel_direito where codigo_do_papel = 3 order by direito"),
              (std::vector<std::string>{"agendamento.incluir", "caixa.abrir"}));
}

} // namespace kova::family::test
