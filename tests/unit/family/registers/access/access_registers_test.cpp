// Users and roles as registers.

#include "tests/unit/family/users/users_fixture.hpp"

#include "family/registers/access/access_registers.hpp"

#include <algorithm>

namespace kova::family::test {

using namespace registers;

namespace {

constexpr const char* Nobody = "ninguém mais poderia administrar os usuários desta loja; antes dê a outro "
                               "usuário ativo, com senha, um papel"
                               " que administra os usuários.";
constexpr const char* First =
    "o primeiro usuário com um papel precisa poder administrar os usuários e ter uma senha.";

} // namespace

class AccessRegisters : public UsersTest {
protected:
    /// What is typed into the fields that are called so.
    using Typed = std::vector<std::pair<const char*, const char*>>;

    SaveAnswer Type(const Register& of, Key key, const Typed& typed, const Author& author)
    {
        const registers::Texts before = key == 0 ? of.New() : of.Read(Data(), key).value();
        registers::Texts after = before;
        for (const auto& [label, text] : typed)
            after.at(FieldNamed(of.Fields(), label)) = text;
        return of.Save(Data(), key, before, after, author);
    }
    /// What Ana's save is told: "LABEL: why", or "feito".
    std::string Save(const Register& of, Key key, const Typed& typed)
    {
        const SaveAnswer answer = Type(of, key, typed, ana_);
        std::string told;
        for (const RefusedField& refused : answer.refused)
            told.append(told.empty() ? "" : " ")
                .append(of.Fields().at(refused.field).label)
                .append(": ")
                .append(refused.why);
        return answer.IsDone() ? "feito" : told;
    }
    std::string Field(const Register& of, Key key, const char* label)
    {
        return of.Read(Data(), key).value().at(FieldNamed(of.Fields(), label));
    }
    std::vector<std::string> Listed(const Register& of)
    {
        std::vector<std::string> rows;
        for (const ListRow& row : of.Search(Data(), "", 0, 100).rows) {
            std::string text;
            for (const std::string& cell : row.cells)
                text += (text.empty() ? "" : "|") + cell;
            rows.push_back(text);
        }
        return rows;
    }
};

TEST_F(AccessRegisters, ShowUsersWithTheirRolesAndNothingThatIsSecret)
{
    MakeUsers();
    EXPECT_EQ(Listed(UserRegister()),
              (std::vector<std::string>{"Ana|Administração|Ativo|8", "Lia|Recepção|Ativo|7"}));
    EXPECT_EQ(UserRegister().Read(Data(), 7).value(), (registers::Texts{"7", "Lia", "3", "Ativo"}));
    for (const FieldInfo& field : UserRegister().Fields()) {
        for (const std::string& column : field.stored)
            EXPECT_TRUE(column != "senha" && column != "pin") << field.label;
    }
    EXPECT_EQ(
        UserRegister().Offers(Data(), FieldNamed(UserRegister().Fields(), "Código do papel"), {}).size(), 3U);
}

TEST_F(AccessRegisters, ShowRolesWithAFieldForEachRight)
{
    EXPECT_EQ(Listed(RoleRegister()),
              (std::vector<std::string>{"Administração|1", "Gerência|2", "Recepção|3"}));
    for (const RightInfo& info : AllRights())
        EXPECT_EQ(RoleRegister()
                      .Read(Data(), Administration)
                      .value()
                      .at(FieldNamed(RoleRegister().Fields(), info.label)),
                  "Sim")
            << info.label;
    EXPECT_EQ(Field(RoleRegister(), Reception, "Excluir agendamentos"), "Não");
}

TEST_F(AccessRegisters, ChangeWhatARoleMayDo)
{
    MakeUsers();
    EXPECT_EQ(Save(RoleRegister(), Reception, {{"Excluir agendamentos", "sim"}, {"Nome", "Balcão"}}),
              "feito");
    EXPECT_EQ(Field(RoleRegister(), Reception, "Excluir agendamentos"), "Sim");
    EXPECT_EQ(WhyDenied(Data(), lia_, Right::DeleteAppointments), "");
    EXPECT_EQ(Save(RoleRegister(), Reception, {{"Excluir agendamentos", "Não"}}), "feito");
    EXPECT_EQ(WhyDenied(Data(), lia_, Right::DeleteAppointments),
              "Balcão não pode excluir agendamentos. Peça a quem administra os usuários.");
    EXPECT_EQ(Save(RoleRegister(), Reception, {{"Ver o histórico", "talvez"}}),
              "Ver o histórico: deve ser Sim ou Não.");
    const std::vector<std::string> lines = Audit();
    EXPECT_EQ(Save(RoleRegister(), Reception, {}), "feito");
    EXPECT_EQ(Audit(), lines);
}

TEST_F(AccessRegisters, MakeANewRoleAndTakeItAwayWhereNobodyHasIt)
{
    MakeUsers();
    const SaveAnswer added =
        Type(RoleRegister(), 0, {{"Nome", "Banhista"}, {"Incluir agendamentos", "Sim"}}, ana_);
    ASSERT_TRUE(added.IsDone());
    GiveLia(added.key);
    EXPECT_EQ(RightsOf(Data(), 7), Rights{Right::Book});
    EXPECT_EQ(RoleRegister().Remove(Data(), added.key, ana_).text,
              "Está em uso (1 usuário) e não pode ser excluído.");
    GiveLia(Reception);
    EXPECT_TRUE(RoleRegister().Remove(Data(), added.key, ana_).IsDone());
    EXPECT_EQ(Count("papel_direito where codigo_do_papel = " + std::to_string(added.key)), 0);
}

TEST_F(AccessRegisters, LeaveANameAsItStandsThere)
{
    MakeUsers();
    Run("update usuario set nome = 'L\u200Bia' where codigo = 7");
    EXPECT_EQ(Save(UserRegister(), 7, {{"Situação", "Inativo"}}), "feito");
    EXPECT_EQ(Save(UserRegister(), 7, {{"Nome", "Li\u200Ba"}}), "Nome: só pode ter caracteres que se veem.");
}

TEST_F(AccessRegisters, TellEveryNameOnce)
{
    MakeUsers();
    EXPECT_EQ(Save(RoleRegister(), 0, {{"Nome", "RECEPCAO"}}), "Nome: já há um papel com este nome.");
    EXPECT_EQ(Save(RoleRegister(), 0, {{"Nome", "Re\u200Bpouso"}}),
              "Nome: só pode ter caracteres que se veem.");
    EXPECT_EQ(Save(UserRegister(), 0, {{"Nome", "\u202EaiL"}, {"Código do papel", "3"}}),
              "Nome: só pode ter caracteres que se veem.");
    EXPECT_EQ(Save(UserRegister(), 0, {{"Nome", "ANA"}, {"Código do papel", "3"}}),
              "Nome: já há um usuário com este nome.");
    EXPECT_EQ(Save(UserRegister(), 0, {{"Nome", "ANA"}}), "feito") << "without a role it is only a name";
    EXPECT_EQ(Save(UserRegister(), 0, {{"Nome", "Bia"}, {"Código do papel", "4711"}}),
              "Código do papel: não há papel com este código.");
    const std::string longName(1000, 'x');
    EXPECT_EQ(Save(UserRegister(), 0, {{"Nome", longName.c_str()}}), "Nome: tem 1000 caracteres; cabem 60.");
}

TEST_F(AccessRegisters, LeaveSomebodyWhoAdministers)
{
    EXPECT_EQ(Save(UserRegister(), 7, {{"Código do papel", "3"}}), std::string("Código do papel: ") + First);
    EXPECT_EQ(Save(UserRegister(), 7, {{"Código do papel", "1"}}), std::string("Código do papel: ") + First);
    MakeUsers();
    EXPECT_EQ(Save(UserRegister(), 8, {{"Código do papel", "2"}}), std::string("Código do papel: ") + Nobody);
    EXPECT_EQ(Save(UserRegister(), 8, {{"Código do papel", ""}}), std::string("Código do papel: ") + Nobody);
    EXPECT_EQ(Save(UserRegister(), 8, {{"Situação", "Inativo"}}), std::string("Situação: ") + Nobody);
    EXPECT_EQ(Save(RoleRegister(), Administration, {{"Administrar usuários", "Não"}}),
              std::string("Administrar usuários: ") + Nobody);
    EXPECT_EQ(
        UserRegister().Remove(Data(), 8, ana_).text,
        "Ninguém mais poderia administrar os usuários desta loja. Antes dê a outro usuário ativo, com senha,"
        " um papel que administra os usuários.");
    EXPECT_EQ(Save(UserRegister(), 8, {{"Nome", "Ana Maria"}}), "feito");
    GiveLia(Administration);
    EXPECT_EQ(Save(UserRegister(), 8, {{"Situação", "Inativo"}}), "feito");
    EXPECT_TRUE(UserRegister().Remove(Data(), 8, lia_).IsDone());
}

TEST_F(AccessRegisters, AreWrittenByThoseWhoAdministerUsersAlone)
{
    MakeUsers(Management);
    EXPECT_THROW(Type(UserRegister(), 7, {{"Código do papel", "1"}}, lia_), RightDenied);
    EXPECT_THROW(Type(RoleRegister(), Management, {{"Administrar usuários", "Sim"}}, lia_), RightDenied);
    EXPECT_THROW(UserRegister().Remove(Data(), 8, lia_), RightDenied);
    EXPECT_EQ(LinesOf("direito_negado").size(), 3U);
    EXPECT_EQ(Field(UserRegister(), 7, "Código do papel"), "2");
}

TEST_F(AccessRegisters, KeepThePasswordOfWhoeverIsChanged)
{
    MakeUsers();
    EXPECT_EQ(Save(UserRegister(), 7, {{"Nome", "Lia Sá"}, {"Código do papel", "2"}}), "feito");
    EXPECT_EQ(Enter("lia sa", "Laço Azul 22").role, "Gerência");
}

} // namespace kova::family::test
