#include "family/registers/shop/shop_registers.hpp"

#include "family/data/stores/national_holidays.hpp"
#include "family/registers/description/register_of.hpp"
#include "family/registers/shop/shop_columns.hpp"
#include "family/registers/shop/usual_days.hpp"

#include <set>

namespace kova::family::registers {

namespace {

namespace column = shop_columns;

class ServiceTypes : public RegisterOf<ServiceTypeRow> {
public:
    ServiceTypes()
        : RegisterOf({"tipos", "Tipos de serviço", "tipo de serviço"}, ServiceTypeColumns(),
                     ShownColumns(ServiceTypeColumns(), {column::Name, column::Situation, "Número"}))
    {
    }

private:
    void CheckRecord(const Among& among, const ServiceTypeRow* stored, ServiceTypeRow& record,
                     Refusals& refusals) const override
    {
        record.nomeDeBusca = FoldText(record.nome);
        if (IsTaken(among, stored, record, [](const ServiceTypeRow& row) { return FoldText(row.nome); }))
            refusals.Add(column::Name, "já há um tipo de serviço com este nome.");
        if (stored && !IsActive(record) && IsLastActive(among, *stored))
            refusals.Add(column::Situation, "a agenda precisa de ao menos um tipo de serviço ativo.");
    }

    /// The rules of the agenda know the first ones by their numbers.
    std::string WhyKept(Database&, const ServiceTypeRow& row) const override
    {
        constexpr Key LastKnown = 4;
        return row.numero <= LastKnown ? "As regras da agenda contam com os tipos de 1 a 4: eles não podem "
                                         "ser excluídos. Marque a situação"
                                         " como Inativo."
                                       : "";
    }
    const char* BookedBy() const override { return "numero_do_tipo_de_servico"; }
};

class Services : public RegisterOf<ServiceRecord> {
public:
    Services() : RegisterOf({"servicos", "Serviços", "serviço"}, ServiceColumns(), ListOfServices()) { }

    std::vector<Offer> Offers(Database& database, std::size_t field, const Texts&) const override
    {
        if (field != FieldNamed(Fields(), column::TypeOfService))
            return {};
        std::vector<Offer> offers;
        SelectRows<ServiceTypeRow>(database, [&](const ServiceTypeRow& row) {
            const std::string number = std::to_string(row.numero);
            if (row.situacao == 1)
                offers.push_back({number, number + " - " + row.nome});
        });
        return offers;
    }

private:
    static std::vector<ShownColumn<ServiceRecord>> ListOfServices()
    {
        auto shown = ShownColumns(ServiceColumns(),
                                  {column::Name, "Duração em minutos", "Preço", column::Situation, "Código"});
        const ShownColumn<ServiceRecord> type{{"Tipo", false},
                                              [](const ServiceRecord& record) { return record.typeName; }};
        shown.insert(shown.begin() + 1, type);
        return shown;
    }

    void Load(Database& database, std::span<ServiceRecord> records) const override
    {
        std::unordered_map<Key, std::string> names;
        SelectRows<ServiceTypeRow>(database,
                                   [&](const ServiceTypeRow& row) { names[row.numero] = row.nome; });
        for (ServiceRecord& record : records)
            record.typeName = names[record.numeroDoTipo];
    }

    void CheckRecord(const Among& among, const ServiceRecord* stored, ServiceRecord& record,
                     Refusals& refusals) const override
    {
        record.nomeDeBusca = FoldText(record.nome);
        CheckType(among, stored, record, refusals);
        const auto trait = [](const ServiceRecord& row) {
            return std::pair(row.numeroDoTipo, FoldText(row.nome));
        };
        if (IsTaken(among, stored, record, trait))
            refusals.Add(column::Name, "já há um serviço deste tipo com este nome.");
    }

    /// Its appointments name its type, too.
    static void CheckType(Database& database, const ServiceRecord* stored, const ServiceRecord& record,
                          Refusals& refusals)
    {
        if (record.numeroDoTipo == 0 || (stored && stored->numeroDoTipo == record.numeroDoTipo))
            return;
        if (!FindByKey<ServiceTypeRow>(database, record.numeroDoTipo))
            refusals.Add(column::TypeOfService, "não há tipo de serviço com este número.");
        else if (stored && IsBooked(database, "codigo_do_servico", record.codigo))
            refusals.Add(column::TypeOfService,
                         "há agendamentos deste serviço com o tipo " + std::to_string(stored->numeroDoTipo)
                             + ", e ele fica assim.");
    }

    const char* BookedBy() const override { return "codigo_do_servico"; }
};

class Employees : public RegisterOf<EmployeeRow> {
public:
    Employees()
        : RegisterOf(
            {"funcionarios", "Funcionários", "funcionário"}, EmployeeColumns(),
            ShownColumns(EmployeeColumns(), {column::Nickname, column::Name, column::Situation, "Código"}))
    {
    }

private:
    void CheckRecord(const Among& among, const EmployeeRow* stored, EmployeeRow& record,
                     Refusals& refusals) const override
    {
        record.nomeDeBusca = FoldText(record.nome);
        const auto trait = [](const EmployeeRow& row) {
            return std::pair(FoldText(row.apelido), FoldText(row.nome));
        };
        if (IsTaken(among, stored, record, trait))
            refusals.Add(column::Nickname, "já há um(a) funcionário(a) com este apelido e este nome.");
        if (stored && !IsActive(record) && IsLastActive(among, *stored))
            refusals.Add(column::Situation, "a agenda precisa de ao menos um(a) funcionário(a) ativo(a).");
    }

    std::string WhyKept(Database& database, const EmployeeRow& row) const override
    {
        return IsLastActive(database, row) ? "A agenda precisa de ao menos um(a) funcionário(a) ativo(a)."
                                           : "";
    }
    const char* BookedBy() const override { return "codigo_do_funcionario"; }
};

class Species : public RegisterOf<SpeciesRow> {
public:
    Species()
        : RegisterOf({"especies", "Espécies", "espécie", 'a'}, SpeciesColumns(),
                     ShownColumns(SpeciesColumns(), {column::Name, column::Situation, "Código"}))
    {
    }

private:
    void CheckRecord(const Among& among, const SpeciesRow* stored, SpeciesRow& record,
                     Refusals& refusals) const override
    {
        record.nomeDeBusca = FoldText(record.nome);
        if (IsTaken(among, stored, record, [](const SpeciesRow& row) { return FoldText(row.nome); }))
            refusals.Add(column::Name, "já há uma espécie com este nome.");
    }
};

class Breeds : public RegisterOf<BreedRecord> {
public:
    Breeds()
        : RegisterOf(
            {"racas", "Raças", "raça", 'a'}, BreedColumns(),
            ShownColumns(BreedColumns(), {column::Name, column::Species, column::Situation, "Código"}))
    {
    }

    std::vector<Offer> Offers(Database& database, std::size_t field, const Texts&) const override
    {
        if (field != FieldNamed(Fields(), column::Species))
            return {};
        return OfferedNames(AllOf<SpeciesRow>(database), [](const SpeciesRow&) { return true; });
    }

private:
    void Load(Database& database, std::span<BreedRecord> records) const override
    {
        std::unordered_map<Key, std::string> names;
        for (const SpeciesRow& row : AllOf<SpeciesRow>(database))
            names[row.codigo] = row.nome;
        for (BreedRecord& record : records)
            record.species = names[record.codigoDaEspecie];
    }

    void CheckRecord(const Among& among, const BreedRecord* stored, BreedRecord& record,
                     Refusals& refusals) const override
    {
        record.nomeDeBusca = FoldText(record.nome);
        if (!stored || stored->species != record.species)
            FindSpecies(among, record, refusals);
        const auto trait = [](const BreedRecord& row) {
            return std::pair(FoldText(row.species), FoldText(row.nome));
        };
        if (IsTaken(among, stored, record, trait))
            refusals.Add(column::Name, "já há uma raça desta espécie com este nome.");
    }

    static void FindSpecies(Database& database, BreedRecord& record, Refusals& refusals)
    {
        if (record.species.empty())
            return;
        const std::vector<SpeciesRow> all = AllOf<SpeciesRow>(database);
        const auto found = std::ranges::find(all, FoldText(record.species), &SpeciesRow::nomeDeBusca);
        if (found == all.end())
            refusals.Add(column::Species, "não há espécie com este nome.");
        else
            record.codigoDaEspecie = found->codigo;
    }
};

class Holidays : public RegisterOf<HolidayRow> {
public:
    Holidays()
        : RegisterOf({"feriados", "Feriados", "feriado"}, HolidayColumns(),
                     ShownColumns(HolidayColumns(), {column::Name, column::Day, "Código"}))
    {
    }

    std::string_view SuggestionsTitle() const override { return UsualDaysTitle; }
    std::vector<Suggestion> Suggestions(Database& database, int year) const override
    {
        std::set<std::string> stored;
        for (const HolidayRow& row : AllRows(database))
            stored.insert(WriteDay(row));
        std::vector<Suggestion> suggestions;
        for (const HolidayRow& day : UsualDaysOff(year)) {
            const std::string date = WriteDay(day);
            Texts texts = New();
            texts[FieldNamed(Fields(), column::Name)] = day.nome;
            texts[FieldNamed(Fields(), column::Day)] = date;
            const bool isStored = stored.contains(date) || stored.contains(date.substr(0, DayAndMonth));
            suggestions.push_back({std::move(texts), day.nome + ", " + DayInWords(date), isStored});
        }
        return suggestions;
    }

private:
    /// "dd/mm"
    static constexpr std::size_t DayAndMonth = 5;

    /// Different holidays can fall on one day.
    void CheckRecord(const Among& among, const HolidayRow* stored, HolidayRow& record,
                     Refusals& refusals) const override
    {
        const auto trait = [](const HolidayRow& row) { return WriteDay(row) + " " + FoldText(row.nome); };
        if (IsTaken(among, stored, record, trait))
            refusals.Add(column::Day, "este feriado já está cadastrado.");
    }
};

class Company : public RegisterOf<CompanyRow> {
public:
    Company()
        : RegisterOf({"empresa", "Empresa", "empresa", 'a'}, CompanyColumns(),
                     ShownColumns(CompanyColumns(), {"Nome fantasia", "Razão social", "CNPJ", "Telefone"}))
    {
    }

private:
    void CheckRecord(const Among& among, const CompanyRow* stored, CompanyRow&,
                     Refusals& refusals) const override
    {
        if (!stored && !AllRows(among).empty())
            refusals.Add(0, "a empresa já está cadastrada.");
    }

    std::string WhyKept(Database&, const CompanyRow&) const override
    {
        return "A empresa não pode ser excluída: o que se imprime leva o nome dela.";
    }
};

} // namespace

const Register& ServiceTypeRegister() { return Only<ServiceTypes>(); }
const Register& ServiceRegister() { return Only<Services>(); }
const Register& EmployeeRegister() { return Only<Employees>(); }
const Register& SpeciesRegister() { return Only<Species>(); }
const Register& BreedRegister() { return Only<Breeds>(); }
const Register& HolidayRegister() { return Only<Holidays>(); }
const Register& CompanyRegister() { return Only<Company>(); }

} // namespace kova::family::registers
