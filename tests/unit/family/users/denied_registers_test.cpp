// What whoever works with registers, files and a customer's data is refused for want of a right.

#include "tests/unit/family/users/users_fixture.hpp"

#include "family/csv/exporting.hpp"
#include "family/csv/importing.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/customer_store.hpp"
#include "family/privacy/anonymise.hpp"
#include "family/privacy/person_files.hpp"
#include "family/registers/customers/customer_merge.hpp"
#include "family/registers/registers.hpp"

#include <filesystem>
#include <functional>

namespace kova::family::test {

namespace {

/// Where an act happens, and who does it.
struct Place {
    std::string source;
    Database& database;
    std::string folder;
    const Author& author;
};

/// Something that Lia does, and the right without which she is refused.
struct Act {
    const char* what;
    Right needed;
    /// Whether it was done.
    std::function<bool(const Place& place)> run;
};

registers::Texts With(const registers::Register& of, registers::Texts texts, const char* label,
                      const char* text)
{
    texts.at(registers::FieldNamed(of.Fields(), label)) = text;
    return texts;
}

bool Change(const Place& place, const registers::Register& of, Key key, const char* label, const char* text)
{
    const registers::Texts before = key == 0 ? of.New() : of.Read(place.database, key).value();
    return of.Save(place.database, key, before, With(of, before, label, text), place.author).IsDone();
}

bool BringIn(const Place& place, const char* into, const std::string& text)
{
    csv::ImportOrder order;
    order.into = csv::RegisterNamed(into);
    order.path = "planilha.csv";
    order.file = {text, csv::Encoding::Utf8};
    order.makesCopy = false;
    const csv::ImportWatch watch{.problem = [](const auto&...) {}};
    const csv::ImportReport report =
        csv::BringIn(place.source, order, place.author, {{2026, 11, 20}, {9, 4, 5}}, watch);
    return report.IsGood() && report.number != 0;
}

bool Export(const Place& place, const char* from)
{
    const csv::ExportOrder order{csv::RegisterNamed(from), place.folder + "/saida.csv"};
    csv::ExportTo(place.source, order, place.author, {});
    return std::filesystem::exists(order.path);
}

const Act Acts[] = {
    {"NewRow", Right::ChangeRegisters,
     [](const Place& place) { return Change(place, registers::SpeciesRegister(), 0, "Nome", "Peixe"); }},
    {"ChangedRow", Right::ChangeRegisters,
     [](const Place& place) { return Change(place, registers::SpeciesRegister(), 9, "Nome", "Peixe"); }},
    {"ChangedPrice", Right::SeePrices,
     [](const Place& place) { return Change(place, registers::ServiceRegister(), 1, "Preço", "151,00"); }},
    {"RowsAtOnce", Right::ChangeRegisters,
     [](const Place& place) {
         const registers::Register& species = registers::SpeciesRegister();
         const registers::Texts rows[] = {With(species, species.New(), "Nome", "Peixe")};
         return species.AddAll(place.database, rows, place.author).IsDone();
     }},
    {"RemovedRow", Right::ChangeRegisters,
     [](const Place& place) {
         return registers::SpeciesRegister().Remove(place.database, 9, place.author).IsDone();
     }},
    {"MergedCustomers", Right::ChangeRegisters,
     [](const Place& place) {
         const auto plan = registers::PlanCustomerMerge(place.database, 10, 12);
         return registers::MergeCustomers(place.database, plan.value(), {}, place.author).IsDone();
     }},
    {"Import", Right::ChangeRegisters,
     [](const Place& place) { return BringIn(place, "especies", "Nome\nPeixe\n"); }},
    {"ImportOfPrices", Right::SeePrices,
     [](const Place& place) {
         return BringIn(place, "servicos", "Nome;Número do tipo;Duração em minutos;Preço\nTosa;4;60;80,00\n");
     }},
    {"ImportTakenBack", Right::ChangeRegisters,
     [](const Place& place) {
         return csv::TakeBack(place.source, std::nullopt, registers::ChangedRows::Refuse, place.author, {})
             .IsDone();
     }},
    {"Export", Right::Export, [](const Place& place) { return Export(place, "especies"); }},
    {"ExportOfPrices", Right::SeePrices, [](const Place& place) { return Export(place, "servicos"); }},
    {"ExportOfAppointments", Right::Export, [](const Place& place) { return Export(place, "agendamentos"); }},
    {"ExportOfAPerson", Right::Export,
     [](const Place& place) {
         const privacy::PersonFiles files = privacy::ExportPerson(
             place.source, 10, place.folder, place.author, {{2026, 11, 20}, {9, 4, 5}}, {});
         return std::filesystem::exists(files.page);
     }},
    {"Anonymising", Right::Anonymise,
     [](const Place& place) {
         return privacy::Anonymise(place.source, {12, {}}, place.author, {}).IsDone();
     }},
};

} // namespace

class DeniedActs : public UsersTest, public testing::WithParamInterface<Act> {
protected:
    DeniedActs()
    {
        CustomerRow customer;
        customer.codigo = 12;
        customer.tipoDePessoa = "PF";
        customer.nome = "Rui Sá";
        WriteCustomer(Data(), customer, {});
        EXPECT_TRUE(BringIn(PlaceOf(ana_), "especies", "Nome\nRoedor\n"));
        Insert(Data(), SpeciesRow{9, "Ave", "ave"});
        MakeUsers();
    }

    Place PlaceOf(const Author& author)
    {
        return {host_.DataSource(), Data(), folder_.Path().string(), author};
    }

    /// Every row of what the acts may write but for the audit, and the files.
    std::vector<std::string> Everything()
    {
        std::vector<std::string> all;
        for (const char* table : {"especie", "servico", "cliente", "animal", "agendamento"}) {
            for (std::string& row : RowsOf(table, "1 = 1"))
                all.push_back(table + (" " + row));
        }
        for (const auto& file : std::filesystem::directory_iterator(folder_.Path())) {
            if (file.path().extension() == ".csv" || file.path().extension() == ".html")
                all.push_back(file.path().string());
        }
        return all;
    }
};

TEST_P(DeniedActs, AreRefusedWithoutThatRightAndDoneWithAll)
{
    const Act& act = GetParam();
    Rights rights;
    for (const RightInfo& info : AllRights()) {
        if (info.right != act.needed)
            rights.insert(info.right);
    }
    Allow(rights);
    const std::vector<std::string> before = Everything();
    try {
        act.run(PlaceOf(lia_));
        ADD_FAILURE();
    } catch (const RightDenied& denied) {
        EXPECT_EQ(denied.Cause(),
                  "Recepção não pode " + InfoOf(act.needed).Act() + ". Peça a quem administra os usuários.");
    }
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(LinesOf("direito_negado"),
              std::vector<std::string>{"7 7 - Lia direito_negado {\"direito\":\""
                                       + std::string(InfoOf(act.needed).name) + "\"}"});
    GiveLia(Administration);
    EXPECT_TRUE(act.run(PlaceOf(lia_)));
}

TEST_P(DeniedActs, AreDoneWithoutUsers)
{
    Run("update usuario set codigo_do_papel = null");
    EXPECT_TRUE(GetParam().run(PlaceOf(lia_)));
}

INSTANTIATE_TEST_SUITE_P(WithRegisters, DeniedActs, testing::ValuesIn(Acts),
                         [](const auto& one) { return std::string(one.param.what); });

} // namespace kova::family::test
