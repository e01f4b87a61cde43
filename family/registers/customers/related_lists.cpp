#include "family/registers/customers/related_lists.hpp"

#include "family/business/shown_values.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/selections/attendances.hpp"
#include "family/registers/customers/merged_customer.hpp"

#include <algorithm>

namespace kova::family::registers {

namespace {

constexpr int Cancelled = 3;

class Appointments : public RelatedList {
public:
    std::string_view Title() const override { return "Atendimentos"; }
    std::string_view None() const override { return "Ainda não há atendimentos."; }

    std::span<const ListColumn> ListColumns() const override { return columns_; }

    std::vector<ListRow> Rows(Database& database, std::span<const Key> keys) const override
    {
        const Attendances attendances = SelectAttendances(database, keys);
        std::vector<ListRow> rows;
        for (const auto& one : attendances.rows) {
            Texts cells = {ShownDate(one.date), std::string(one.time)};
            if (namesAnimal_)
                cells.emplace_back(one.animal);
            for (std::string text : {std::string(one.service), std::string(one.employee),
                                     ShownStatus(one.status), ShownMoney(one.priceInCents)})
                cells.push_back(std::move(text));
            rows.push_back({one.codigo, std::move(cells), one.status != Cancelled});
        }
        return rows;
    }

protected:
    explicit Appointments(bool namesAnimal) : namesAnimal_(namesAnimal)
    {
        for (const char* label : {"Data", "Hora", "Animal", "Serviço", "Funcionário(a)", "Situação", "Valor"})
            columns_.push_back(
                {label, std::string_view(label) == "Valor", std::string_view(label) == "Valor"});
        if (!namesAnimal)
            std::erase_if(columns_, [](const ListColumn& column) { return column.label == "Animal"; });
    }

private:
    const bool namesAnimal_;
    std::vector<ListColumn> columns_;
};

class OfCustomer : public Appointments {
public:
    OfCustomer() : Appointments(true) { }

    std::string_view ChoiceName() const override { return "Animal"; }

    std::vector<RelatedChoice> Choices(Database& database, Key customer) const override
    {
        std::vector<RelatedChoice> choices;
        for (const AnimalRow& animal : AnimalsOf(database, customer))
            choices.push_back({animal.codigo, animal.nome});
        std::ranges::sort(choices, {}, &RelatedChoice::shown);
        return choices;
    }

    std::vector<Key> Find(Database& database, Key customer, Key animal) const override
    {
        return AppointmentsOfCustomer(database, customer, animal);
    }
};

class OfAnimal : public Appointments {
public:
    OfAnimal() : Appointments(false) { }

    std::vector<Key> Find(Database& database, Key animal, Key) const override
    {
        return AppointmentsOfAnimal(database, animal);
    }
};

class Packages : public RelatedList {
public:
    std::string_view Title() const override { return "Saldo de pacotes"; }
    std::string_view None() const override { return "Não há pacotes."; }

    std::span<const ListColumn> ListColumns() const override
    {
        static constexpr ListColumn Columns[] = {{"Pacote"},          {"Desde"},          {"Sessões", true},
                                                 {"Atendidas", true}, {"Marcadas", true}, {"A marcar", true},
                                                 {"Saldo", true}};
        return Columns;
    }

    std::vector<Key> Find(Database& database, Key customer, Key) const override
    {
        return PackagesOfCustomer(database, customer);
    }

    std::vector<ListRow> Rows(Database& database, std::span<const Key> keys) const override
    {
        constexpr std::size_t DateLength = 10;
        const PackageBalances balances = SelectPackageBalances(database, keys);
        std::vector<ListRow> rows;
        for (const auto& one : balances.rows) {
            // More can have been booked than the service has sessions today.
            const long long sessions =
                std::max<long long>(one.sessions.ValueOr(0), one.attended + one.booked);
            const long long left = sessions - one.attended;
            Texts cells = {std::string(one.service), ShownDate(one.madeAt.substr(0, DateLength))};
            for (const long long count : {sessions, one.attended, one.booked, left - one.booked, left})
                cells.push_back(std::to_string(count));
            rows.push_back({one.codigo, std::move(cells), left > 0});
        }
        return rows;
    }
};

} // namespace

const RelatedList& CustomerAppointments()
{
    static const OfCustomer list;
    return list;
}

const RelatedList& AnimalAppointments()
{
    static const OfAnimal list;
    return list;
}

const RelatedList& CustomerPackages()
{
    static const Packages list;
    return list;
}

} // namespace kova::family::registers
