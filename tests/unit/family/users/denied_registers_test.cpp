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
#include "system/path_text.hpp"

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

csv::ImportOrder OrderOf(const char* into, const std::string& text)
{
    csv::ImportOrder order;
    order.into = csv::RegisterNamed(into);
    order.path = "planilha.csv";
    order.file = {text, csv::Encoding::Utf8};
    order.makesCopy = false;
    return order;
}

bool BringIn(const Place& place, const char* into, const std::string& text)
{
    const csv::ImportOrder order = OrderOf(into, text);
    const csv::ImportWatch watch{.problem = [](const auto&...) {}};
    const csv::ImportReport report =
        csv::BringIn(place.source, order, place.author, {{2026, 11, 20}, {9, 4, 5}}, watch);
    return report.IsGood() && report.number != 0;
}

bool Rehearse(const Place& place, const char* into, const std::string& text)
{
    const csv::ImportOrder order = OrderOf(into, text);
    return csv::RehearseImport(place.source, order, place.author, {{2026, 11, 20}, {9, 4, 5}},
                               {.problem = [](const auto&...) {}})
        .IsGood();
}

bool TakeLastBack(const Place& place)
{
    return csv::TakeBack(place.source, std::nullopt, registers::ChangedRows::Refuse, place.author, {})
        .IsDone();
}

bool Export(const Place& place, const char* from)
{
    const csv::ExportOrder order{csv::RegisterNamed(from), place.folder + "/saida.csv"};
    csv::ExportTo(place.source, order, place.author, {});
    return std::filesystem::exists(system::PathOf(order.path));
}

bool ExportOfAPerson(const Place& place)
{
    const privacy::PersonFiles files =
        privacy::ExportPerson(place.source, 10, place.folder, place.author, {{2026, 11, 20}, {9, 4, 5}}, {});
    return std::filesystem::exists(system::PathOf(files.page));
}

constexpr const char* Prices = "Nome;Número do tipo;Duração em minutos;Preço\nTosa;4;60;80,00\n";
constexpr const char* Appointments =
    "Data inicial;Hora inicial;Data final;Hora final;Código do cliente;Código do animal;Número do"
    " tipo;Código do serviço;Código do funcionário\n07/12/2026;09:00;07/12/2026;10:00;10;50;4;2;2\n";

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
     [](const Place& place) { return BringIn(place, "servicos", Prices); }},
    {"ImportThatIsTried", Right::ChangeRegisters,
     [](const Place& place) { return Rehearse(place, "especies", "Nome\nPeixe\n"); }},
    {"ImportOfPricesThatIsTried", Right::SeePrices,
     [](const Place& place) { return Rehearse(place, "servicos", Prices); }},
    {"ImportTakenBack", Right::ChangeRegisters, TakeLastBack},
    {"Export", Right::Export, [](const Place& place) { return Export(place, "especies"); }},
    {"ExportOfPrices", Right::SeePrices, [](const Place& place) { return Export(place, "servicos"); }},
    {"ExportOfAppointments", Right::Export, [](const Place& place) { return Export(place, "agendamentos"); }},
    {"ExportOfAPerson", Right::Export, ExportOfAPerson},
    {"ExportOfAPersonsSales", Right::SeePrices, ExportOfAPerson},
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
        return {host_.DataSource(), Data(), system::TextOf(folder_.Path()), author};
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
                all.push_back(system::TextOf(file.path()));
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

/// What an import has brought goes by the rights that it is otherwise removed and changed with.
TEST_F(DeniedActs, AreTheReturnsOfWhatAnImportHasBrought)
{
    const auto without = [this](Right needed) {
        Rights rights;
        for (const RightInfo& info : AllRights()) {
            if (info.right != needed)
                rights.insert(info.right);
        }
        Allow(rights);
    };
    const std::pair<Right, std::function<bool()>> imports[] = {
        {Right::SeePrices, [this] { return BringIn(PlaceOf(ana_), "servicos", Prices); }},
        {Right::DeleteAppointments, [this] { return BringIn(PlaceOf(ana_), "agendamentos", Appointments); }},
    };
    for (const auto& [needed, bringIn] : imports) {
        GiveLia(Reception);
        without(needed);
        ASSERT_TRUE(bringIn());
        const std::vector<std::string> before = Everything();
        EXPECT_THROW(TakeLastBack(PlaceOf(lia_)), RightDenied) << InfoOf(needed).name;
        EXPECT_EQ(Everything(), before);
        GiveLia(Administration);
        EXPECT_TRUE(TakeLastBack(PlaceOf(lia_)));
        EXPECT_NE(Everything(), before);
    }
}

TEST_P(DeniedActs, AreDoneWithoutUsers)
{
    Run("update usuario set codigo_do_papel = null");
    EXPECT_TRUE(GetParam().run(PlaceOf(lia_)));
}

INSTANTIATE_TEST_SUITE_P(WithRegisters, DeniedActs, testing::ValuesIn(Acts),
                         [](const auto& one) { return std::string(one.param.what); });

} // namespace kova::family::test
