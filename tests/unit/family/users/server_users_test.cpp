#include "tests/unit/family/server_fixture.hpp"
#include "tests/unit/family/users/users_fixture.hpp"

#include "family/data/audit/import_audit.hpp"
#include "family/data/sources/data_source.hpp"

#include <atomic>
#include <thread>

namespace kova::family::test {

/// Two desks on a server, with two users who administer.
class UsersPostgresql : public PostgresqlShop {
protected:
    UsersPostgresql()
    {
        const Secret password("Gato-Preto 1");
        for (const char* name : {"Ana", "Bia"})
            EXPECT_EQ(SaveAccount(*one_, {0, name, Administration, true}, &password, owner_, Cheap).why, "");
    }

    /// Bia, 2, becomes somebody of the reception.
    AccountAnswer TakeFromBia(Database& desk)
    {
        return SaveAccount(desk, {2, "Bia", Reception, true}, nullptr, owner_, Cheap);
    }

    const Author owner_{.code = "0", .name = "root", .moment = "2026-11-20 09:04:05", .isOwner = true};
    std::shared_ptr<Database> one_ = OpenDatabase(shop_.Address()), other_ = OpenDatabase(shop_.Address());
};

TEST_F(UsersPostgresql, KeepOneWhoAdministersWhenTwoDesksTakeTheRightAwayAtOnce)
{
    std::atomic<bool> over = false;
    AccountAnswer answer;
    std::jthread taking;
    {
        WriteTransaction first(*one_);
        LockImports(*one_);
        one_->Session() << "update usuario set codigo_do_papel = 3 where codigo = 1";
        taking = std::jthread([&] {
            answer = TakeFromBia(*other_);
            over = true;
        });
        while (!over && WaitingForALock() == 0) { }
        EXPECT_FALSE(over);
        first.Commit();
    }
    taking.join();
    EXPECT_EQ(answer.why,
              "Ninguém mais poderia administrar os usuários desta loja. Antes dê a outro usuário ativo, com"
              " senha, um papel que administra os usuários.");
    EXPECT_EQ(shop_.Run("select codigo_do_papel from usuario order by codigo"),
              (std::vector<std::string>{"3", "1"}));
}

TEST_F(UsersPostgresql, AreTriedByOneDeskAtATime)
{
    DeskHost host(shop_.Address());
    const Secret wrong("errada 123");
    std::vector<std::jthread> desks;
    for (const auto& desk : {one_, other_}) {
        desks.emplace_back([&, desk] {
            for (int time = 0; time < 10; ++time)
                SignIn(*desk, {"Ana", wrong}, host.GetPlatform().Clock(), Cheap);
        });
    }
    desks.clear();
    EXPECT_EQ(shop_.Run("select erros from tentativa_de_entrada").size(), 1U);
    EXPECT_GE(std::stoi(shop_.Run("select erros from tentativa_de_entrada").front()), 3);
    EXPECT_EQ(shop_.Run("select count(*) from auditoria where operacao = 'entrada_recusada'"),
              shop_.Run("select erros from tentativa_de_entrada"));
}

TEST_F(UsersPostgresql, WaitByTheServersClockWhateverTheDeskSays)
{
    DeskHost host(shop_.Address());
    const Secret wrong("errada 123"), right("Gato-Preto 1");
    for (int time = 0; time < 10; ++time) {
        shop_.Run("update tentativa_de_entrada set ultimo_erro = ultimo_erro - 300");
        SignIn(*one_, {"Ana", wrong}, host.GetPlatform().Clock(), Cheap);
    }
    for (const int hour : {8, 9, 10, 23}) {
        host.now.time.hour = hour;
        EXPECT_EQ(SignIn(*one_, {"Ana", right}, host.GetPlatform().Clock(), Cheap).outcome,
                  SignInAnswer::Outcome::Wait)
            << hour;
    }
}

} // namespace kova::family::test
