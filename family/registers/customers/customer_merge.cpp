#include "family/registers/customers/customer_merge.hpp"

#include "family/business/clash_text.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/audit/import_audit.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/insert_new_row.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/data/rows/update_row.hpp"
#include "family/data/stores/appointment_store.hpp"
#include "family/data/stores/waiting_list.hpp"
#include "family/registers/customers/customer_registers.hpp"
#include "family/registers/customers/merged_customer.hpp"
#include "family/registers/description/field_merge.hpp"
#include "family/registers/description/references.hpp"
#include "family/users/denials.hpp"

#include <algorithm>
#include <map>

namespace kova::family::registers {

namespace {

constexpr Key LinesToLookAt = 100;

struct LockedCustomer : CustomerRow {
    static constexpr bool LocksRow = true;
};
struct LockedAnimal : AnimalRow {
    static constexpr bool LocksRow = true;
};

/// An appointment, found by whom it is for.
struct BookedRow {
    static constexpr const char* Table = AppointmentRow::Table;
    Key number = 0;
    Nullable<Key> package;

    template <class Visit> void Columns(Visit visit)
    {
        visit("numero", number);
        visit("codigo_do_pacote", package);
    }
};
struct BookedByCustomer : BookedRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};
struct BookedForAnimal : BookedRow {
    static constexpr const char* FoundBy = "codigo_do_animal";
};

/// Numbers of the appointments, ascending, and of their packages.
struct Booked {
    std::set<Key> numbers, packages;

    template <class Row> void Find(Database& database, const std::set<Key>& keys)
    {
        SelectWhere<Row>(database, keys, [this](const Row& row) {
            numbers.insert(row.number);
            if (!row.package.IsNull())
                packages.insert(row.package.value);
        });
    }
};

/// Each animal of the other customer beside one of the kept customer's that is like it, if there is one that
/// stands beside none yet.
std::vector<AlikeAnimals> FindAlike(Database& database, Key kept, const std::vector<AnimalRow>& others)
{
    std::vector<AnimalRow> left = AnimalsOf(database, kept);
    std::vector<AlikeAnimals> alike;
    for (const AnimalRow& other : others) {
        const auto found = std::ranges::find_if(
            left, [&](const AnimalRow& animal) { return AreAlike(database, animal, other); });
        if (found == left.end())
            continue;
        const auto breed = FindByKey<BreedRow>(database, found->codigoDaRaca);
        const auto species = FindByKey<SpeciesRow>(database, breed ? breed->codigoDaEspecie : 0);
        alike.push_back({found->codigo, other.codigo, found->nome, species ? species->nome : ""});
        left.erase(found);
    }
    return alike;
}

/// From now on, until the end of the transaction that is open, nobody can write a row that refers to it.
void KeepReferencesOff(Database& database, const char* table, Key key)
{
    // A file has one writer at a time.
    if (!database.GetDialect().IsServer())
        return;
    try {
        Key found = 0;
        database.Session() << std::string("select codigo from ") + table
                + " where codigo = :chave for update",
            soci::use(key, "chave"), soci::into(found);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

/// The merge inside its transaction.
class Merging {
public:
    Merging(Database& database, const CustomerMerge& plan, std::span<const AlikeAnimals> joined,
            const Author& author)
        : database_(database), plan_(plan), joined_(joined), author_(author)
    {
    }

    MergeAnswer Run()
    {
        LockImports(database_);
        LockRows();
        const auto now = PlanCustomerMerge(database_, plan_.kept, plan_.other);
        if (!now)
            return {.outcome = MergeAnswer::Outcome::Gone,
                    .text = WhatBecameOfEither(database_, plan_.kept, plan_.other) + " Nada foi unido."};
        if (const std::string changes = ChangesSince(*now); !changes.empty())
            return {.outcome = MergeAnswer::Outcome::Changed,
                    .text = std::string(OfRegister.changed) + " Nada foi unido.\r\n\r\n" + changes + "\r\n"
                        + OfRegister.lookAgain};
        MoveAnimals();
        MoveAppointments();
        MoveWaiting();
        RemoveJoinedAnimals();
        MoveFields(*now);
        AuditMerging(database_, author_, CustomerRow::Table, plan_.kept, plan_.other,
                     AuditValues().Add("agendamentos", answer_.appointments).Add("animais", answer_.animals));
        RemoveOther();
        return answer_;
    }

private:
    /// In the order of their codes, so that two desks wait for each other in one order.
    void LockRows()
    {
        for (const Key key : std::set<Key>{plan_.kept, plan_.other})
            FindByKey<LockedCustomer>(database_, key);
        KeepReferencesOff(database_, CustomerRow::Table, plan_.other);
        for (const AlikeAnimals& pair : joined_) {
            FindByKey<LockedAnimal>(database_, pair.kept);
            KeepReferencesOff(database_, AnimalRow::Table, pair.other);
        }
    }

    std::string ChangesSince(const CustomerMerge& now)
    {
        std::string changes = ChangesOf(plan_.kept, plan_.shown, now.shown)
            + ChangesOf(plan_.other, plan_.shownOfOther, now.shownOfOther);
        for (const AlikeAnimals& pair : joined_) {
            if (!IsStillAlike(pair))
                changes += "Animal " + pair.name + ": não tem mais o mesmo nome, espécie ou cliente.\r\n";
        }
        return changes;
    }

    std::string ChangesOf(Key customer, const Texts& shown, const Texts& stored)
    {
        if (shown == stored)
            return {};
        const std::vector<FieldInfo>& fields = CustomerRegister().Fields();
        const std::vector<AuditLine> lines =
            FindAuditLines(database_, CustomerRow::Table, customer, LinesToLookAt);
        std::string changes;
        for (std::size_t at = 0; at < fields.size(); ++at) {
            if (shown[at] == stored[at])
                continue;
            const Clash clash{{std::string(fields[at].label), stored[at], ""}, LastChange(lines, fields[at])};
            changes += "Cliente " + std::to_string(customer) + ", " + clash.field.caption + ": "
                + WriteOf(clash) + ".\r\n";
        }
        return changes;
    }

    bool IsStillAlike(const AlikeAnimals& pair)
    {
        const auto kept = FindByKey<AnimalRow>(database_, pair.kept);
        const auto other = FindByKey<AnimalRow>(database_, pair.other);
        return kept && other && kept->codigoDoCliente == plan_.kept && other->codigoDoCliente == plan_.other
            && AreAlike(database_, *kept, *other);
    }

    void MoveAnimals()
    {
        for (const AlikeAnimals& pair : joined_)
            replaced_[pair.other] = pair.kept;
        for (const AnimalRow& animal : AnimalsOf(database_, plan_.other)) {
            ++answer_.animals;
            AnimalRow moved = animal;
            moved.codigoDoCliente = plan_.kept;
            if (!replaced_.contains(animal.codigo))
                WriteAnimal(animal, moved);
        }
    }

    void MoveAppointments()
    {
        Booked booked;
        booked.Find<BookedByCustomer>(database_, {plan_.other});
        std::set<Key> animals;
        for (const auto& [other, kept] : replaced_)
            animals.insert(other);
        booked.Find<BookedForAnimal>(database_, animals);
        for (const Key number : booked.numbers) {
            const auto stored = FindByKey<LockedAppointmentRow>(database_, number);
            if (stored)
                MoveAppointment(*stored);
        }
    }

    void MoveAppointment(const AppointmentRow& stored)
    {
        AppointmentRow moved = stored;
        if (stored.codigoDoCliente.ValueOr(0) == plan_.other)
            moved.codigoDoCliente = plan_.kept;
        if (const auto kept = replaced_.find(stored.codigoDoAnimal.ValueOr(0)); kept != replaced_.end())
            moved.codigoDoAnimal = kept->second;
        ReplaceAppointment(database_, stored, moved, author_);
        ++answer_.appointments;
    }

    void MoveWaiting()
    {
        std::set<Key> codes, animals;
        for (const auto& [other, kept] : replaced_)
            animals.insert(other);
        for (const WaitingRow& row : FindWaitingOf(database_, plan_.other))
            codes.insert(row.codigo);
        for (const WaitingRow& row : FindWaitingFor(database_, animals))
            codes.insert(row.codigo);
        for (const Key code : codes) {
            const auto stored = LockWaiting(database_, code);
            if (!stored)
                continue;
            WaitingRow moved = stored->row;
            if (moved.codigoDoCliente == plan_.other)
                moved.codigoDoCliente = plan_.kept;
            if (const auto kept = replaced_.find(moved.codigoDoAnimal); kept != replaced_.end())
                moved.codigoDoAnimal = kept->second;
            ReplaceWaiting(database_, stored->row, std::move(moved), author_);
        }
    }

    void RemoveJoinedAnimals()
    {
        for (const auto& [other, kept] : replaced_) {
            const AnimalRow gone = FindByKey<AnimalRow>(database_, other).value();
            const AnimalRow before = FindByKey<AnimalRow>(database_, kept).value();
            AnimalRow filled = before;
            if (filled.cor.empty())
                filled.cor = gone.cor;
            if (filled.microchip.ValueOr("").empty())
                filled.microchip = gone.microchip;
            if (filled.observacao.ValueOr("").empty())
                filled.observacao = gone.observacao;
            DeleteWhere(database_, AnimalRow::Table, "codigo", other);
            WriteAnimal(before, filled);
            AuditMerging(database_, author_, AnimalRow::Table, kept, other);
            AuditRemoval(database_, author_, AnimalRow::Table, other, ValuesOf(gone));
        }
    }

    void WriteAnimal(const AnimalRow& before, const AnimalRow& after)
    {
        const AuditValues was = ValuesOf(before), is = ValuesOf(after);
        if (was.Line() == is.Line())
            return;
        Update(database_, after);
        AuditChange(database_, author_, AnimalRow::Table, after.codigo, was, is);
    }

    void MoveFields(const CustomerMerge& now)
    {
        if (now.filled.empty())
            return;
        const CustomerRecord before = FindCustomer(database_, plan_.kept).value();
        CustomerRecord after = before;
        FillFields(now, FindCustomer(database_, plan_.other).value(), after);
        for (std::size_t at = before.channels.size(); at < after.channels.size(); ++at) {
            after.channels[at].codigoDoCliente = plan_.kept;
            InsertNew(database_, after.channels[at]);
        }
        Update<CustomerRow>(database_, after);
        AuditChange(database_, author_, CustomerRow::Table, plan_.kept, ValuesOf<CustomerRow>(before),
                    ValuesOf<CustomerRow>(after));
    }

    void RemoveOther()
    {
        const CustomerRow gone = FindByKey<CustomerRow>(database_, plan_.other).value();
        DeleteWhere(database_, ChannelRow::Table, ChannelOfCustomer::FoundBy, plan_.other);
        DeleteWhere(database_, CustomerRow::Table, "codigo", plan_.other);
        AuditRemoval(database_, author_, CustomerRow::Table, plan_.other, ValuesOf(gone));
    }

    Database& database_;
    const CustomerMerge& plan_;
    const std::span<const AlikeAnimals> joined_;
    const Author& author_;
    /// Animals that go, with those that stay in their place.
    std::map<Key, Key> replaced_;
    MergeAnswer answer_;
};

} // namespace

std::optional<CustomerMerge> PlanCustomerMerge(Database& database, Key kept, Key other)
{
    const auto shown = CustomerRegister().Read(database, kept);
    const auto shownOfOther = CustomerRegister().Read(database, other);
    if (!shown || !shownOfOther || kept == other)
        return std::nullopt;
    CustomerMerge merge{.kept = kept, .other = other, .shown = *shown, .shownOfOther = *shownOfOther};
    CompareFields(merge);
    const std::vector<AnimalRow> animals = AnimalsOf(database, other);
    merge.animals = static_cast<long long>(animals.size());
    merge.alike = FindAlike(database, kept, animals);
    Booked booked;
    booked.Find<BookedByCustomer>(database, {other});
    merge.appointments = static_cast<long long>(booked.numbers.size());
    merge.packages = static_cast<long long>(booked.packages.size());
    return merge;
}

std::string WhatBecameOfEither(Database& database, Key kept, Key other)
{
    const bool isKeptThere = CustomerRegister().Read(database, kept).has_value();
    return CustomerRegister().WhatBecameOf(database, isKeptThere ? other : kept);
}

MergeAnswer MergeCustomers(Database& database, const CustomerMerge& plan,
                           std::span<const AlikeAnimals> joined, const Author& author)
{
    MergeAnswer answer;
    TellingDenials(database, author, [&] {
        WriteSafely(database, [&] {
            RequireRight(database, author, Right::ChangeRegisters);
            answer = Merging(database, plan, joined, author).Run();
            return answer.IsDone();
        });
    });
    return answer;
}

} // namespace kova::family::registers
