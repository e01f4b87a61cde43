#include "tests/unit/family/privacy/privacy_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/privacy/person_report.hpp"
#include "tests/unit/family/bath.hpp"

#include <nlohmann/json.hpp>

namespace kova::family::test {

using privacy::Likeness;
using privacy::PersonData;

class PersonDataOfAShop : public PrivacyTest {
protected:
    std::optional<PersonData> Read(Key code)
    {
        const auto database = OpenNewestForReading(host_.DataSource());
        const Snapshot snapshot(*database);
        return privacy::ReadPerson(*database, code, {});
    }

    std::string Page() { return PageOf(InWords(Read(10).value(), now_)); }
    nlohmann::json Json() { return nlohmann::json::parse(JsonOf(InWords(Read(10).value(), now_))); }

    static std::vector<Key> NumbersOf(const std::vector<privacy::PersonAppointment>& appointments)
    {
        std::vector<Key> numbers;
        for (const privacy::PersonAppointment& one : appointments)
            numbers.push_back(one.row.numero);
        return numbers;
    }
};

TEST_F(PersonDataOfAShop, HoldEveryTextThatCanTellWhoSomebodyIs)
{
    Write();
    const std::string page = Page(), json = Json().dump();
    EXPECT_GT(Marks().size(), 20U);
    for (const std::string& mark : Marks()) {
        EXPECT_NE(page.find(mark), std::string::npos) << mark;
        EXPECT_NE(json.find(mark), std::string::npos) << mark;
    }
}

TEST_F(PersonDataOfAShop, HoldNothingOfOthers)
{
    Run("update agendamento set observacao = 'zq of others' where numero = 3");
    Run("update animal set observacao = 'zq of others' where codigo = 51");
    Run("update cliente set apelido = 'zq of others' where codigo = 11");
    EXPECT_EQ(Page().find("zq of others"), std::string::npos);
    EXPECT_EQ(NumbersOf(Read(10)->appointments), (std::vector<Key>{1, 2, 21, 22, 23}));
    EXPECT_EQ(NumbersOf(Read(10)->likely), std::vector<Key>{4});
    EXPECT_EQ(NumbersOf(Read(11)->likely), std::vector<Key>{});
}

TEST_F(PersonDataOfAShop, TellOfPackagesAndPreSales)
{
    Change(2, 4);
    const PersonData data = Read(10).value();
    ASSERT_EQ(data.preSales.size(), 1U);
    EXPECT_EQ(data.preSales[0].valorEmCentavos, 6000);
    ASSERT_EQ(data.packages.size(), 1U);
    EXPECT_EQ(data.packages[0].service, "2 - Banho");
    EXPECT_EQ(data.appointments[0].animal, "50 - zq animal nome");
    EXPECT_EQ(data.shop, "Pet Shop Amigo Fiel");
    EXPECT_EQ(Json()["pre_vendas"][0]["valor"], "60,00");
    EXPECT_EQ(Json()["pacotes"][0]["codigo"], "1");
}

TEST_F(PersonDataOfAShop, TellAppointmentsWithoutACustomerApartByWhatSpeaksForThem)
{
    Run("update cliente set nome = 'José Peçanha', apelido = 'Zé' where codigo = 10");
    for (const auto& [name, contacts, animal] :
         {std::tuple("jose pecanha", "zq of others 99999-8888", "zq Rex"),
          std::tuple("Zé", "", "zq animal nome"), std::tuple("Zé", "", "Rex")}) {
        AppointmentInput booked = Bath("25/11/2026");
        booked.customerName = name;
        booked.customerChannels = contacts;
        booked.animalName = animal;
        booked.startTime = animal == std::string("Rex") ? "15:00" : *contacts != 0 ? "11:00" : "13:00";
        booked.endTime = booked.startTime.substr(0, 3) + "30";
        ASSERT_TRUE(AddAppointments(*OpenDatabase(host_.DataSource()), booked, ana_).IsDone());
    }
    const PersonData data = Read(10).value();
    ASSERT_EQ(data.likely.size(), 3U);
    EXPECT_EQ(data.likely[0].likeness, Likeness::Contact);
    EXPECT_EQ(data.likely[1].likeness, Likeness::Name);
    EXPECT_EQ(data.likely[2].likeness, Likeness::NameAndAnimal);
    const auto json = Json()["agendamentos_possivelmente_desta_pessoa"];
    EXPECT_EQ(json[0]["motivo"], "mesmo telefone ou e-mail");
    EXPECT_EQ(json[1]["motivo"], "só o mesmo nome; pode ser de outra pessoa");
    EXPECT_EQ(json[2]["motivo"], "mesmo nome e animal de mesmo nome");
    // What may be another person's is not handed over.
    EXPECT_EQ(Page().find("zq of others"), std::string::npos);
    EXPECT_EQ(Page().find("zq Rex"), std::string::npos);
}

TEST_F(PersonDataOfAShop, TellOfAppointmentsThatWereDeleted)
{
    Run("update agendamento set observacao = 'zq deleted' where numero = 1");
    AppointmentInput booked;
    booked.number = 1;
    ASSERT_TRUE(DeleteAppointment(*OpenDatabase(host_.DataSource()), booked, ana_).IsDone());
    const PersonData data = Read(10).value();
    ASSERT_EQ(data.changes.size(), 1U);
    EXPECT_EQ(data.changes[0].operation, "exclusao");
    EXPECT_EQ(data.changes[0].key, 1);
    EXPECT_NE(Page().find("zq deleted"), std::string::npos);
}

TEST_F(PersonDataOfAShop, TellOfAChangeWhatItChanged)
{
    Write();
    const auto history = Json()["historico"];
    ASSERT_GE(history.size(), 1U);
    EXPECT_EQ(history[0]["operacao"], "Alteração");
    EXPECT_EQ(history[0]["registro"], "cliente 10");
    EXPECT_EQ(history[0]["quem"], "3 - Ana");
    EXPECT_EQ(history[0]["momento"], "20/11/2026 09:04:05");
    EXPECT_EQ(history[0]["antes"]["apelido"], "zq cliente apelido");
    EXPECT_EQ(history[0]["depois"]["apelido"], "zq another nickname");
    EXPECT_FALSE(history[0]["antes"].contains("documento"));
    EXPECT_FALSE(history[0]["antes"].contains("nome_de_busca"));
}

TEST_F(PersonDataOfAShop, TellOfAnAppointmentThatWasDeletedEverythingThatHappenedToIt)
{
    const auto database = OpenDatabase(host_.DataSource());
    AppointmentInput booked = Bath("25/11/2026");
    booked.customerName = "Maria";
    booked.customerChannels = "(11) 91234-5678";
    const WriteAnswer added = AddAppointments(*database, booked, ana_);
    ASSERT_TRUE(added.IsDone()) << added.text;
    const int number = std::stoi(Texts("select cast(max(numero) as text) from agendamento").front());
    ASSERT_EQ(Change(number, 2), 0);
    booked.number = number;
    ASSERT_TRUE(DeleteAppointment(*database, booked, ana_).IsDone());
    const PersonData data = Read(10).value();
    std::vector<std::string> operations;
    for (const auto& change : data.changes)
        operations.push_back(change.operation + " " + std::to_string(change.key));
    const std::string of = " " + std::to_string(number);
    EXPECT_EQ(operations, (std::vector<std::string>{"inclusao" + of, "alteracao" + of, "exclusao" + of}));
}

TEST_F(PersonDataOfAShop, TellOfChangesOfThePersonsRowsAlone)
{
    for (const auto& [table, key] :
         {std::pair("cliente", 10), std::pair("cliente", 11), std::pair("agendamento", 2),
          std::pair("agendamento", 3), std::pair("animal", 10), std::pair("animal", 2)})
        Run(std::string("insert into auditoria (momento, usuario, tabela, chave, operacao) values"
                        " ('2026-11-20 09:00:00', '1 - Ana', '")
            + table + "', " + std::to_string(key) + ", 'alteracao')");
    Change(3, 2);
    const PersonData data = Read(10).value();
    std::vector<std::string> rows;
    for (const auto& change : data.changes)
        rows.push_back(change.table + " " + std::to_string(change.key));
    EXPECT_EQ(rows, (std::vector<std::string>{"cliente 10", "agendamento 2"}))
        << "whose values nothing is told of";
}

TEST_F(PersonDataOfAShop, AreAPageThatShowsTextsAsTheyAre)
{
    Run("update cliente set nome = '<b>\"A\" & ''B''</b>' where codigo = 10");
    const std::string page = Page();
    EXPECT_NE(page.find("&lt;b&gt;&quot;A&quot; &amp; &#39;B&#39;&lt;/b&gt;"), std::string::npos);
    EXPECT_EQ(page.find("<b>"), std::string::npos);
    EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\n<html lang=\"pt-BR\">\n<head>\n<meta charset=\"utf-8\">"));
    EXPECT_NE(page.find("<title>Dados da pessoa: cliente 10</title>"), std::string::npos);
    EXPECT_NE(page.find("20/11/2026 09:04:05"), std::string::npos);
    EXPECT_NE(page.find("Nada consta."), std::string::npos);
    EXPECT_NE(page.find("@media print"), std::string::npos);
    for (const char* outside : {"src=", "href=", "http:", "https:", "<script"})
        EXPECT_EQ(page.find(outside), std::string::npos) << outside;
}

TEST_F(PersonDataOfAShop, AreWellFormedJsonWithTheKeysOfTheGuide)
{
    const nlohmann::json json = Json();
    EXPECT_EQ(json["loja"], "Pet Shop Amigo Fiel");
    EXPECT_EQ(json["gerado_em"], "20/11/2026 09:04:05");
    EXPECT_EQ(json["codigo_do_cliente"], "10");
    for (const char* group :
         {"cadastro", "canais_de_comunicacao", "animais", "agendamentos",
          "agendamentos_possivelmente_desta_pessoa", "pacotes", "pre_vendas", "lista_de_espera", "historico"})
        EXPECT_TRUE(json.contains(group) && json[group].is_array()) << group;
    ASSERT_EQ(json["cadastro"].size(), 1U);
    EXPECT_EQ(json["cadastro"][0]["tipo_de_pessoa"], "PF");
    EXPECT_EQ(json["canais_de_comunicacao"].size(), 2U);
    EXPECT_EQ(json["animais"][0]["especie"], "Canina");
    EXPECT_EQ(json["agendamentos"][0]["inicio"], "20/11/2026 09:00");
    EXPECT_EQ(json["agendamentos"][0]["funcionario_a"], "1 - Zeca");
    EXPECT_EQ(json["lista_de_espera"][0]["servicos"], "2 - Banho");
    EXPECT_EQ(json["lista_de_espera"][0]["funcionarios"], "");
    EXPECT_EQ(json["lista_de_espera"][0]["dias_da_semana"], "seg, qua, sex");
    EXPECT_EQ(json["lista_de_espera"][0]["situacao"], "Esperando");
}

TEST_F(PersonDataOfAShop, AreNotThereWhereNoCustomerHasTheCode) { EXPECT_FALSE(Read(99)); }

} // namespace kova::family::test
