// An import is taken back whole.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/copies/row_copy.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/import_undo.hpp"
#include "family/registers/registers.hpp"

namespace kova::data::test {

namespace {

using family::registers::Register;

const family::Author Lia{"7", "Lia", "2026-11-20 10:11:12", "BALCAO-1"};

const std::string AppointmentHeader =
    "Número;Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;Código do serviço;"
    "Código do funcionário;Situação;Código do pacote\n";

} // namespace

class UndoImport : public ImportTest {
protected:
    int Undo(std::vector<std::string> options = {})
    {
        options.insert(options.begin(), {"undo-import", Database(), "--user", "Ana"});
        return Run(options);
    }

    /// The rows of every table but those that tell of writes. Channels are numbered anew when they are
    /// written; they are compared by what they are.
    std::vector<family::TableSum> Rows()
    {
        auto sums = family::SumTables(*family::OpenForReading(Database()));
        std::erase_if(sums, [](const family::TableSum& sum) {
            return sum.name == "auditoria" || sum.name == "elo_da_auditoria" || sum.name == "gravacao"
                || sum.name == "canal_de_comunicacao";
        });
        return sums;
    }
    std::string Channels()
    {
        return Ask("select codigo_do_cliente || ' ' || tipo || ' ' || canal from canal_de_comunicacao"
                   " order by codigo_do_cliente, codigo");
    }

    /// Lia changes one field of a row at her desk.
    void Change(const Register& of, family::Key key, std::string_view label, const std::string& text)
    {
        const auto database = family::OpenDatabase(Database());
        const auto before = of.Read(*database, key);
        ASSERT_TRUE(before);
        auto typed = *before;
        typed[family::registers::FieldNamed(of.Fields(), label)] = text;
        ASSERT_TRUE(of.Save(*database, key, *before, typed, Lia).IsDone());
    }
    void Remove(const Register& of, family::Key key)
    {
        ASSERT_TRUE(of.Remove(*family::OpenDatabase(Database()), key, Lia).IsDone());
    }
};

TEST_F(UndoImport, TakesAwayWhatWasNewInEveryRegister)
{
    ImportShop();
    const std::pair<const char*, std::string> files[] = {
        {"tipos", "Número;Nome\n9;Hotel\n;Creche\n"},
        {"especies", "Nome\nEquina\n"},
        {"racas", "Espécie;Nome\nCanina;Poodle\n"},
        {"servicos", "Nome;Número do tipo;Duração em minutos;Preço\nTosa;4;30;40,00\n"},
        {"funcionarios", "Apelido;Nome\nLu;Luana Reis\n"},
        {"feriados", "Nome;Data\nNatal;25/12\nCarnaval;16/02/2027\n"},
        {"clientes", "Nome;Documento;Celular;CEP\nAna Sá;52998224725;(11) 91234-5678;01234-567\nRui;;;\n"},
        {"animais",
         "Código do cliente;Nome;Sexo;Espécie;Raça;Porte;Microchip\n"
         "10;Mia;F;Felina;Siamês;Pequeno;999\n10;Rex;M;Canina;;Médio;\n"},
        {"agendamentos",
         AppointmentHeader
             + ";25/11/2026;10:00;11:00;10;50;2;2;;7\n"
               ";02/11/2026;10:00;11:00;11;51;2;2;Pré-venda gerada;\n"},
    };
    for (const auto& [name, content] : files) {
        const auto before = Rows();
        const std::string channels = Channels();
        ASSERT_EQ(Import(name, content), 0) << name << Error();
        EXPECT_NE(Rows(), before) << name;
        EXPECT_EQ(Undo(), 0) << name << Error();
        EXPECT_EQ(Rows(), before) << name;
        EXPECT_EQ(Channels(), channels) << name;
    }
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
}

TEST_F(UndoImport, GivesChangedRowsTheirFormerValues)
{
    ImportShop();
    ASSERT_EQ(Import("clientes",
                     "Nome;Celular;E-mail;Logradouro;CEP;Curva ABC\n"
                     "Ana;(11) 91234-5678;ana@example.com;Rua A;01234567;B\n"),
              0);
    ASSERT_EQ(Import("racas", "Espécie;Nome\nCanina;Poodle\nCanina;Maltês\n"), 0) << Error();
    ASSERT_EQ(Import("feriados", "Nome;Data\nNatal;25/12\nCarnaval;16/02/2027\n"), 0);
    const std::pair<const char*, std::string> files[] = {
        {"clientes",
         "Código;Nome;Canais;Logradouro;CEP;Curva ABC;Documento;VIP\n"
         "12;Ana Sá;Telefone: (11) 3333-4444;;;A;52998224725;Sim\n10;José P.;;;;;12345678909;Não\n"},
        {"animais",
         "Código;Código do cliente;Nome;Sexo;Espécie;Raça;Porte;Microchip\n"
         "50;11;Paçoca II;M;Canina;Poodle;Grande;123\n"},
        {"racas", "Código;Espécie;Nome;Situação\n3;Canina;Bichon;Inativo\n"},
        {"servicos",
         "Código;Nome;Número do tipo;Duração em minutos;Preço;Sessões\n2;Banho e perfume;4;90;99;3\n"},
        {"funcionarios", "Código;Apelido;Nome;Situação\n1;Bê;Beatriz;Inativo\n"},
        {"feriados", "Código;Nome;Data\n1;Véspera;24/12/2026\n2;Carnaval;17/02\n"},
        {"tipos", "Número;Nome\n4;Beleza\n"},
    };
    for (const auto& [name, content] : files) {
        const auto before = Rows();
        const std::string channels = Channels();
        ASSERT_EQ(Import(name, content, {"--update"}), 0) << name << Error();
        EXPECT_NE(Rows(), before) << name;
        EXPECT_EQ(Undo(), 0) << name << Error();
        EXPECT_EQ(Rows(), before) << name;
        EXPECT_EQ(Channels(), channels) << name;
    }
    EXPECT_EQ(Channels(), "12 Celular (11) 91234-5678,12 E-mail ana@example.com");
}

TEST_F(UndoImport, TellsWhatItHasDone)
{
    ImportShop();
    ASSERT_EQ(Import("tipos", "Número;Nome\n4;Beleza\n;Hotel\n;Creche\n", {"--update"}), 0) << Error();
    EXPECT_NE(Output().find("Para desfazer esta importação: agenda-data undo-import \"" + Database()
                            + "\" --import 6\n"),
              std::string::npos)
        << Output();
    ASSERT_EQ(Undo({"--import", "6"}), 0) << Error();
    EXPECT_EQ(Output().find("Importação 6 desfeita: tipos, \"" + File("entrada.csv")
                            + "\", de 20/11/2026 09:00:00 por 0 - Carla"),
              0u)
        << Output();
    EXPECT_NE(Output().find("\n2 registros excluídos; 1 registro como era antes.\n"), std::string::npos);
    EXPECT_EQ(Error(), "");
}

TEST_F(UndoImport, LeavesALineInTheAuditForEachRowAndOneForTheWhole)
{
    ImportShop();
    ASSERT_EQ(Import("tipos", "Número;Nome\n4;Beleza\n9;Hotel\n", {"--update"}), 0) << Error();
    ASSERT_EQ(Undo(), 0) << Error();
    EXPECT_EQ(Ask("select chave || ' ' || operacao from auditoria where usuario = '0 - Ana'"
                  " and tabela = 'tipo_de_servico' order by chave"),
              "4 alteracao,9 exclusao");
    EXPECT_EQ(Ask("select chave || ' ' || depois from auditoria where usuario = '0 - Ana'"
                  " and operacao = 'importacao_desfeita'"),
              "6 {\"excluidos\":1,\"restaurados\":1,\"mantidos\":0}");
}

TEST_F(UndoImport, IsRefusedWholeWhereSomebodyHasChangedARowSince)
{
    ImportShop();
    ASSERT_EQ(Import("clientes", "Código;Nome\n10;Zé\n;Ana\n;Rui\n", {"--update"}), 0) << Error();
    Change(family::registers::CustomerRegister(), 10, "Bairro", "Centro");
    Change(family::registers::CustomerRegister(), 12, "Nome", "Ana Sá");
    const auto before = Rows();
    const std::string lines = Ask("select count(*) from auditoria");
    EXPECT_EQ(Undo(), 1);
    EXPECT_EQ(Error(),
              "cliente 12 (Ana Sá): Foi mudado por Lia (posto BALCAO-1) em 20/11/2026 às 10:11. Para o"
              " desfazer, mude-o de volta à mão.\n"
              "cliente 10 (Zé): Foi mudado por Lia (posto BALCAO-1) em 20/11/2026 às 10:11. Para o"
              " desfazer, mude-o de volta à mão.\n"
              "Nada da importação 6 foi desfeito. Com --keep-changed esses registros ficam como estão e o"
              " resto é desfeito.\n");
    EXPECT_EQ(Output(), "");
    EXPECT_EQ(Rows(), before);
    EXPECT_EQ(Ask("select count(*) from auditoria"), lines);
}

TEST_F(UndoImport, KeepsWhatWasChangedSinceWhereThatIsAskedFor)
{
    ImportShop();
    ASSERT_EQ(Import("clientes", "Código;Nome\n10;Zé\n;Ana\n;Rui\n", {"--update"}), 0) << Error();
    Change(family::registers::CustomerRegister(), 12, "Nome", "Ana Sá");
    ASSERT_EQ(Undo({"--keep-changed"}), 0) << Error();
    EXPECT_EQ(Ask("select nome from cliente order by codigo"), "José Peçanha,Canil Céu Azul Ltda.,Ana Sá");
    EXPECT_NE(Output().find("\n1 registro excluído; 1 registro como era antes.\nFicaram como estão:\n"
                            "cliente 12 (Ana Sá): Foi mudado por Lia"),
              std::string::npos)
        << Output();
    EXPECT_NE(
        Ask("select depois from auditoria where operacao = 'importacao_desfeita'").find("\"mantidos\":1}"),
        std::string::npos);
}

TEST_F(UndoImport, KeepsWhatLaterWorkRefersTo)
{
    ImportShop();
    ASSERT_EQ(Import("clientes", "Código;Nome\n20;Ana\n21;Rui\n"), 0) << Error();
    ASSERT_EQ(
        Import("animais", "Código;Código do cliente;Nome;Sexo;Espécie;Porte\n60;20;Mel;F;Canina;Médio\n"), 0)
        << Error();
    EXPECT_EQ(Undo({"--import", "6"}), 1);
    EXPECT_NE(Error().find("cliente 20 (Ana): Está em uso (1 animal) e não pode ser excluído. Marque a"
                           " situação como Inativo.\n"),
              std::string::npos)
        << Error();
    EXPECT_NE(Error().find("Com --keep-changed esse registro fica como está"), std::string::npos);
    EXPECT_EQ(Ask("select count(*) from cliente"), "4");
    ASSERT_EQ(Undo({"--import", "7"}), 0) << Error();
    ASSERT_EQ(Undo({"--import", "6"}), 0) << Error();
    EXPECT_EQ(Ask("select count(*) from cliente"), "2");
}

TEST_F(UndoImport, NamesTheLaterImportThatHasToGoFirst)
{
    ImportShop();
    const auto before = Rows();
    ASSERT_EQ(Import("tipos", "Número;Nome\n4;Beleza\n", {"--update"}), 0) << Error();
    ASSERT_EQ(Import("tipos", "Número;Nome\n4;Estética\n", {"--update"}), 0) << Error();
    EXPECT_EQ(Undo({"--import", "6"}), 1);
    EXPECT_NE(Error().find("tipo de serviço 4 (Estética): Foi mudado pela importação 7 de Carla"),
              std::string::npos)
        << Error();
    EXPECT_NE(Error().find("Desfaça-a antes."), std::string::npos);
    ASSERT_EQ(Undo(), 0) << Error();
    EXPECT_EQ(Ask("select nome from tipo_de_servico where numero = 4"), "Beleza");
    ASSERT_EQ(Undo({"--import", "6"}), 0) << Error();
    EXPECT_EQ(Rows(), before);
}

TEST_F(UndoImport, TakesARowThatWasChangedAndChangedBack)
{
    ImportShop();
    const auto before = Rows();
    ASSERT_EQ(Import("tipos", "Número;Nome\n4;Beleza\n9;Hotel\n", {"--update"}), 0) << Error();
    for (const char* name : {"Estética", "Beleza"})
        Change(family::registers::ServiceTypeRegister(), 4, "Nome", name);
    ASSERT_EQ(Undo(), 0) << Error();
    EXPECT_EQ(Rows(), before);
}

TEST_F(UndoImport, SeesAlsoWhatAnotherProgramHasChangedWithoutTheAudit)
{
    ImportShop();
    ASSERT_EQ(Import("servicos", "Código;Nome;Número do tipo;Duração em minutos;Preço\n8;Tosa;4;30;40,00\n"),
              0);
    family::OpenDatabase(Database())->Session()
        << "update servico set preco_em_centavos = 4500 where codigo = 8";
    EXPECT_EQ(Undo(), 1);
    EXPECT_NE(Error().find("serviço 8 (Tosa): Não está mais como ficou então: outro programa o mudou."),
              std::string::npos)
        << Error();
    EXPECT_EQ(Ask("select preco_em_centavos from servico where codigo = 8"), "4500");
}

TEST_F(UndoImport, NeedsNothingForARowThatIsGoneAlready)
{
    ImportShop();
    ASSERT_EQ(Import("tipos", "Número;Nome\n9;Hotel\n10;Creche\n"), 0) << Error();
    Remove(family::registers::ServiceTypeRegister(), 9);
    ASSERT_EQ(Undo(), 0) << Error();
    EXPECT_NE(Output().find("\n1 registro excluído; 0 registros como eram antes.\n"), std::string::npos);
    ASSERT_EQ(Import("especies", "Nome\nEquina\n"), 0) << Error();
    const std::string code = Ask("select codigo from especie where nome = 'Equina'");
    ASSERT_EQ(Import("especies", "Código;Nome\n" + code + ";Cavalo\n", {"--update"}), 0) << Error();
    Remove(family::registers::SpeciesRegister(), std::stoll(code));
    EXPECT_EQ(Undo(), 1);
    EXPECT_NE(Error().find("espécie " + code + ": Foi excluído por Lia (posto BALCAO-1)"), std::string::npos)
        << Error();
}

TEST_F(UndoImport, GivesNothingBackThatBreaksARuleByNow)
{
    ImportShop();
    ASSERT_EQ(Import("clientes", "Código;Nome;Documento\n10;José Peçanha;52998224725\n", {"--update"}), 0);
    ASSERT_EQ(Import("clientes", "Nome;Documento\nOutro José;12345678909\n"), 0) << Error();
    EXPECT_EQ(Undo({"--import", "6"}), 1);
    EXPECT_NE(
        Error().find("cliente 10 (José Peçanha): O que havia antes não cabe mais. Documento: o cliente 12"
                     " já tem este documento.\n"),
        std::string::npos)
        << Error();
    ASSERT_EQ(Import("racas", "Código;Espécie;Nome\n30;Canina;Poodle\n31;Canina;Maltês\n"), 0) << Error();
    Change(family::registers::AnimalRegister(), 50, "Raça", "Poodle");
    ASSERT_EQ(Import("animais",
                     "Código;Raça;Código do cliente;Nome;Sexo;Espécie;Porte\n"
                     "50;Maltês;10;Paçoca;F;Canina;Médio\n",
                     {"--update"}),
              0)
        << Error();
    Remove(family::registers::BreedRegister(), 30);
    EXPECT_EQ(Undo(), 1);
    EXPECT_NE(Error().find("animal 50 (Paçoca): O que havia antes se refere a raça 30, que não existe mais."),
              std::string::npos)
        << Error();
}

TEST_F(UndoImport, KeepsAnAppointmentWhosePreSaleWasBilled)
{
    ImportShop();
    ASSERT_EQ(Import("agendamentos",
                     AppointmentHeader
                         + "5;02/11/2026;10:00;11:00;10;50;2;2;Pré-venda gerada;\n"
                           "6;02/11/2026;12:00;13:00;11;51;2;2;;\n"),
              0)
        << Error();
    family::OpenDatabase(Database())->Session()
        << "update pre_venda set situacao = 3 where numero_do_agendamento = 5";
    EXPECT_EQ(Undo(), 1);
    EXPECT_NE(Error().find("pré-venda 1: Não está mais como ficou então"), std::string::npos) << Error();
    EXPECT_NE(Error().find("agendamento 5: Tem pré-venda e não pode ser excluído."), std::string::npos);
    ASSERT_EQ(Undo({"--keep-changed"}), 0) << Error();
    EXPECT_EQ(Ask("select numero from agendamento"), "5");
}

TEST_F(UndoImport, KeepsAPackageThatLaterAppointmentsAreBookedOn)
{
    ImportShop();
    ASSERT_EQ(Import("agendamentos", AppointmentHeader + "5;25/11/2026;10:00;11:00;10;50;2;2;;7\n"), 0)
        << Error();
    ASSERT_EQ(Import("agendamentos", AppointmentHeader + "6;26/11/2026;10:00;11:00;10;50;2;2;;7\n"), 0)
        << Error();
    EXPECT_EQ(Undo({"--import", "6"}), 1);
    EXPECT_NE(Error().find("pacote 7: Está em uso (1 agendamento) e não pode ser excluído."),
              std::string::npos)
        << Error();
    EXPECT_EQ(Ask("select count(*) from agendamento"), "2");
}

TEST_F(UndoImport, ListsTheImportsAndWhatBecameOfThem)
{
    ASSERT_EQ(Run({"undo-import", Database(), "--list"}), 0) << Error();
    EXPECT_EQ(Output(), "Nada foi importado neste banco.\n");
    ASSERT_EQ(Import("tipos", "Número;Nome\n9;Hotel\n10;Creche\n"), 0) << Error();
    ASSERT_EQ(Import("tipos", "Número;Nome\n9;Hotelzinho\n;Táxi\n", {"--update"}), 0) << Error();
    ASSERT_EQ(Undo(), 0) << Error();
    ASSERT_EQ(Run({"undo-import", Database(), "--list"}), 0) << Error();
    std::string output = Output();
    EXPECT_EQ(output.find("1  20/11/2026 09:00:00  0 - Carla"), 0u) << output;
    const std::string file = "    tipos, \"" + File("entrada.csv") + "\": ";
    EXPECT_NE(output.find("\n" + file + "2 novos, 0 alterados\n2  20/11/2026 09:00:00  0 - Carla"),
              std::string::npos)
        << output;
    EXPECT_NE(
        output.find("\n" + file + "1 novo, 1 alterado\n    desfeita em 20/11/2026 09:00:00 por 0 - Ana"),
        std::string::npos)
        << output;
}

TEST_F(UndoImport, IsRefusedASecondTimeAndOfANumberThatThereIsNot)
{
    EXPECT_EQ(Undo(), 1);
    EXPECT_EQ(Error(), "Não há essa importação. Veja as que há com --list.\n");
    ASSERT_EQ(Import("especies", "Nome\nEquina\n"), 0) << Error();
    EXPECT_EQ(Undo({"--import", "2"}), 1);
    ASSERT_EQ(Undo(), 0) << Error();
    EXPECT_EQ(Undo(), 1);
    EXPECT_EQ(Error().find("A importação 1 já foi desfeita em 20/11/2026 09:00:00 por 0 - Ana"), 0u)
        << Error();
    ASSERT_EQ(Import("especies", "Nome\nEquina\n"), 0)
        << "what was taken back can be brought in again" << Error();
}

TEST_F(UndoImport, OfAnImportThatToldNoCountsYetTellsItsLines)
{
    ASSERT_EQ(Import("especies", "Nome\nEquina\nFelina\n"), 0) << Error();
    family::OpenDatabase(Database())->Session()
        << "update auditoria set depois = "
           "'{\"cadastro\":\"especies\",\"arquivo\":\"velho.csv\",\"linhas\":2}'"
           " where tabela = 'importacao'";
    ASSERT_EQ(Run({"undo-import", Database(), "--list"}), 0) << Error();
    EXPECT_NE(Output().find("\n    especies, \"velho.csv\": 2 linhas\n"), std::string::npos) << Output();
    family::OpenDatabase(Database())->Session() << "update auditoria set depois = "
                                                   "'{\"cadastro\":\"especies\",\"arquivo\":\"velho.csv\","
                                                   "\"linhas\":2,\"novos\":2,\"alterados\":\"\"}'"
                                                   " where tabela = 'importacao'";
    ASSERT_EQ(Run({"undo-import", Database(), "--list"}), 0) << Error();
    EXPECT_NE(Output().find("\n    especies, \"velho.csv\": 2 linhas\n"), std::string::npos) << Output();
    ASSERT_EQ(Undo(), 0) << Error();
    EXPECT_EQ(Ask("select count(*) from especie"), "0");
}

TEST_F(UndoImport, OfMoreThanAPageOfRowsTakesThemAll)
{
    std::string content = "Nome\n";
    for (int line = 0; line < 2500; ++line)
        content += "Cliente " + std::to_string(line) + "\n";
    ASSERT_EQ(Import("clientes", content), 0) << Error();
    ASSERT_EQ(Undo(), 0) << Error();
    EXPECT_NE(Output().find("\n2500 registros excluídos;"), std::string::npos) << Output();
    EXPECT_EQ(Ask("select count(*) from cliente"), "0");
}

TEST_F(UndoImport, ThatIsAskedToEndTakesNothingBack)
{
    std::string content = "Nome\n";
    for (int line = 0; line < 300; ++line)
        content += "Cliente " + std::to_string(line) + "\n";
    ASSERT_EQ(Import("clientes", content), 0) << Error();
    const auto before = Rows();
    std::stop_source source;
    family::LongWork work;
    work.stop = source.get_token();
    work.progress = [&](long long done, long long total) {
        EXPECT_EQ(total, 300);
        if (done == 200)
            source.request_stop();
    };
    const auto database = family::OpenForLongWork(Database());
    EXPECT_THROW(family::registers::UndoImport(*database, std::nullopt,
                                               family::registers::ChangedRows::Refuse, Lia, work),
                 family::DatabaseFailure);
    EXPECT_EQ(Rows(), before);
}

} // namespace kova::data::test
