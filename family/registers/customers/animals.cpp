#include "family/registers/customers/animals.hpp"

#include "family/business/merged_row_text.hpp"
#include "family/data/selections/register_texts.hpp"
#include "family/registers/customers/customer_registers.hpp"
#include "family/registers/customers/likely_doubles.hpp"
#include "family/registers/customers/related_lists.hpp"
#include "family/registers/description/register_of.hpp"

namespace kova::family::registers {

namespace {

/// What a customer is called.
struct CustomerName {
    static constexpr const char* Table = CustomerRow::Table;
    Key code = 0;
    std::string nickname, name;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("apelido", nickname);
        visit("nome", name);
    }
};

/// The species of that name, case and accents aside; nothing where there is none.
std::optional<SpeciesRow> SpeciesNamed(Database& database, const std::string& name)
{
    const std::vector<SpeciesRow> all = AllOf<SpeciesRow>(database);
    const auto found = std::ranges::find(all, FoldText(name), &SpeciesRow::nomeDeBusca);
    return found == all.end() ? std::nullopt : std::optional(*found);
}

/// The code of a breed of the species; 0 where there is none of that name.
Key BreedNamed(Database& database, Key species, const std::string& name)
{
    const std::string folded = FoldText(name);
    for (const BreedRow& breed : AllOf<BreedRow>(database)) {
        if (breed.codigoDaEspecie == species && breed.nomeDeBusca == folded)
            return breed.codigo;
    }
    return 0;
}

class Animals : public RegisterOf<AnimalRecord> {
public:
    Animals() : RegisterOf({"animais", "Animais", "animal"}, AnimalColumns(), ListOfAnimals()) { }

    bool IsJudgedAmong(std::size_t) const override { return false; }

    std::span<const RelatedList* const> Related() const override
    {
        static const RelatedList* const lists[] = {&AnimalAppointments()};
        return lists;
    }

    std::vector<LikelyDouble> LikelyDoubles(Database& database, Key key, const Texts& before,
                                            const Texts& typed) const override
    {
        return DoublesOfAnimal(database, key, before, typed);
    }

    std::vector<Offer> Offers(Database& database, std::size_t field, const Texts& typed) const override
    {
        const std::size_t species = FieldNamed(Fields(), animal_columns::Species);
        if (field == species)
            return OfferedNames(AllOf<SpeciesRow>(database), [](const SpeciesRow&) { return true; });
        const auto chosen = SpeciesNamed(database, typed.at(species));
        if (field != FieldNamed(Fields(), animal_columns::Breed) || !chosen)
            return {};
        return OfferedNames(AllOf<BreedRow>(database),
                            [&](const BreedRow& row) { return row.codigoDaEspecie == chosen->codigo; });
    }

private:
    std::vector<Key> FindRows(Database& database, const std::string& text, Listed listed) const override
    {
        const ListSearch sought(text);
        return AnimalsWith(database, sought.Parts(), sought.Code().ValueOr(0), listed == Listed::Active);
    }

    static std::vector<ShownColumn<AnimalRecord>> ListOfAnimals()
    {
        auto shown = ShownColumns(
            AnimalColumns(), {"Nome", animal_columns::Species, animal_columns::Breed, "Situação", "Código"});
        const ShownColumn<AnimalRecord> customer{{"Cliente", false},
                                                 [](const AnimalRecord& record) { return record.customer; }};
        shown.insert(shown.begin() + 1, customer);
        return shown;
    }

    void Load(Database& database, std::span<AnimalRecord> records) const override
    {
        std::unordered_map<Key, SpeciesRow> species;
        for (const SpeciesRow& row : AllOf<SpeciesRow>(database))
            species[row.codigo] = row;
        std::unordered_map<Key, BreedRow> breeds;
        for (const BreedRow& row : AllOf<BreedRow>(database))
            breeds[row.codigo] = row;
        std::set<Key> codes;
        for (AnimalRecord& record : records) {
            const BreedRow& breed = breeds[record.codigoDaRaca];
            record.breed = breed.nome;
            record.species = species[breed.codigoDaEspecie].nome;
            codes.insert(record.codigoDoCliente);
        }
        std::unordered_map<Key, std::string> names;
        SelectWhere<CustomerName>(database, codes, [&](const CustomerName& row) {
            names[row.code] = row.nickname.empty() ? row.name : row.nickname;
        });
        for (AnimalRecord& record : records)
            record.customer = names[record.codigoDoCliente];
    }

    void CheckRecord(const Among& among, const AnimalRecord* stored, AnimalRecord& record,
                     Refusals& refusals) const override
    {
        record.Complete();
        CheckCustomer(among, stored, record, refusals);
        CheckBreed(among, stored, record, refusals);
    }

    /// Its appointments name its customer, too.
    static void CheckCustomer(Database& database, const AnimalRecord* stored, const AnimalRecord& record,
                              Refusals& refusals)
    {
        using animal_columns::Customer;
        if (record.codigoDoCliente == 0 || (stored && stored->codigoDoCliente == record.codigoDoCliente))
            return;
        if (!FindByKey<CustomerName>(database, record.codigoDoCliente))
            refusals.Add(Customer, WhyNoCustomer(database, record.codigoDoCliente));
        else if (stored && IsBooked(database, "codigo_do_animal", record.codigo))
            refusals.Add(Customer,
                         "o animal tem agendamentos com o cliente " + std::to_string(stored->codigoDoCliente)
                             + " e fica com ele.");
    }

    /// A breed that is not told is made where its species has none for that yet (WriteRecord).
    static void CheckBreed(Database& database, const AnimalRecord* stored, AnimalRecord& record,
                           Refusals& refusals)
    {
        if (record.species.empty()
            || (stored && stored->species == record.species && stored->breed == record.breed))
            return;
        const auto species = SpeciesNamed(database, record.species);
        if (!species)
            return refusals.Add(animal_columns::Species, "não há espécie com este nome.");
        const bool isTold = !record.breed.empty();
        record.codigoDaRaca = BreedNamed(database, species->codigo, isTold ? record.breed : BreedOfNone);
        if (isTold && record.codigoDaRaca == 0 && FoldText(record.breed) != FoldText(BreedOfNone))
            refusals.Add(animal_columns::Breed, "não há raça com este nome nesta espécie.");
    }

    Key WriteRecord(Database& database, const AnimalRecord* stored, AnimalRecord& record,
                    const Author& author) const override
    {
        if (record.codigoDaRaca == 0) {
            const Key species = SpeciesNamed(database, record.species).value().codigo;
            record.codigoDaRaca =
                AddRow(database, BreedRow{0, species, BreedOfNone, FoldText(BreedOfNone)}, author);
        }
        return RegisterOf::WriteRecord(database, stored, record, author);
    }

    const char* BookedBy() const override { return "codigo_do_animal"; }
    bool AreRemovedTogether() const override { return true; }
};

} // namespace

const Register& AnimalRegister() { return Only<Animals>(); }

} // namespace kova::family::registers
