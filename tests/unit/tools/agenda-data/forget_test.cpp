#include "system/path_text.hpp"
#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include <fstream>

namespace kova::data::test {

namespace {

class ForgottenCustomers : public ImportTest {
protected:
    ForgottenCustomers() { ImportShop(); }

    bool Said(const std::string& words) const { return Output().find(words) != std::string::npos; }
    bool Complained(const std::string& words) const { return Error().find(words) != std::string::npos; }
};

} // namespace

TEST_F(ForgottenCustomers, AreThoseForWhomItWasConfirmed)
{
    const std::string before = Ask("select nome from cliente where codigo = 10");
    EXPECT_EQ(Run({"forget", Database(), "--customer", "10"}), 1);
    EXPECT_TRUE(Complained("O cliente 10 ficaria anônimo: ")) << Error();
    EXPECT_TRUE(Complained("--confirm")) << Error();
    EXPECT_TRUE(Complained("Nada foi mudado.")) << Error();
    EXPECT_EQ(Ask("select nome from cliente where codigo = 10"), before);

    EXPECT_EQ(Run({"forget", Database(), "--customer", "10", "--confirm", "--user", "Lia"}), 0) << Error();
    EXPECT_TRUE(Said("O cliente 10 ficou anônimo: ")) << Output();
    EXPECT_TRUE(Said("ainda guardam os dados de antes")) << Output();
    EXPECT_EQ(Ask("select nome from cliente where codigo = 10"), "Pessoa anonimizada 10");
    EXPECT_EQ(Ask("select usuario from auditoria where operacao = 'anonimizacao'"), "0 - Lia");
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
}

TEST_F(ForgottenCustomers, TakeAppointmentsOfTheSameNameAlongAsIsDecided)
{
    ASSERT_EQ(Import("agendamentos",
                     "Data inicial;Hora inicial;Hora final;Nome do cliente;Nome do animal;Código do serviço;"
                     "Código do funcionário;Situação\n"
                     "19/11/2026;10:00;11:00;José Peçanha;Rex;2;1;Atendido\n"
                     "19/11/2026;12:00;13:00;Canil Céu Azul Ltda.;Rex;2;1;Atendido\n"),
              0)
        << Error();
    const std::string names = "select nome_do_cliente from agendamento order by numero";
    EXPECT_EQ(Run({"forget", Database(), "--customer", "10", "--confirm"}), 1);
    EXPECT_TRUE(Complained("Use --same-name sim ou --same-name nao.\nNada foi mudado.\n")) << Error();
    EXPECT_EQ(Run({"forget", Database(), "--customer", "10", "--same-name", "sim"}), 1);
    EXPECT_TRUE(Complained("1 agendamento,")) << Error();
    EXPECT_EQ(Run({"forget", Database(), "--customer", "10", "--same-name", "nao", "--confirm"}), 0)
        << Error();
    EXPECT_EQ(Run({"forget", Database(), "--customer", "11", "--same-name", "sim", "--confirm"}), 0)
        << Error();
    EXPECT_EQ(Ask(names), "José Peçanha,Pessoa anonimizada");
}

TEST_F(ForgottenCustomers, AreNoneByACommandLineThatIsWrong)
{
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"forget", Database()},
             {"forget", Database(), "--customer", "x"},
             {"forget", Database(), "--customer", "10", "--same-name", "talvez", "--confirm"},
             {"forget", Database(), "--customer", "10", "--confirm=sim"}}) {
        EXPECT_EQ(Run(words), 2);
        EXPECT_TRUE(Complained(" --help")) << Error();
    }
    EXPECT_EQ(Run({"forget", Database(), "--customer", "99", "--confirm"}), 1);
    EXPECT_TRUE(Complained("Não há cliente com o código 99.")) << Error();
    EXPECT_EQ(Ask("select count(*) from auditoria where operacao = 'anonimizacao'"), "0");
}

TEST_F(ForgottenCustomers, GoFromShopToShop)
{
    for (const char* code : {"10", "11"})
        ASSERT_EQ(Run({"forget", Database(), "--customer", code, "--confirm"}), 0) << Error();
    const std::string other = Place("outra");
    MakeEmptyDatabase(other);
    for (const std::string name : {"clientes", "animais"}) {
        std::ofstream(system::PathOf(File(name + ".csv"))) << Exported(name);
        EXPECT_EQ(Run({"import", other, name, File(name + ".csv")}), 0) << Error();
        EXPECT_EQ(Exported(name, other), Exported(name));
    }
}

} // namespace kova::data::test
