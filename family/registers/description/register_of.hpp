#pragma once

#include "agenda/contracts/failure.hpp"
#include "family/business/merged_row_text.hpp"
#include "family/data/audit/add_row.hpp"
#include "family/data/audit/audited_row.hpp"
#include "family/data/audit/import_audit.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/data/rows/update_row.hpp"
#include "family/data/selections/register_texts.hpp"
#include "family/registers/description/among.hpp"
#include "family/registers/description/field_merge.hpp"
#include "family/registers/description/list_search.hpp"
#include "family/registers/description/list_texts.hpp"
#include "family/registers/description/record_texts.hpp"
#include "family/registers/description/references.hpp"
#include "family/registers/description/taken_back.hpp"
#include "family/users/user_rights.hpp"

#include <algorithm>
#include <unordered_map>

namespace kova::family::registers {

/// A row that is locked where it is read.
template <class Record> struct Locked : Record {
    static constexpr bool LocksRow = true;
};

/// All rows of a table of few. Fails with a DatabaseFailure.
template <class Row> std::vector<Row> AllOf(Database& database)
{
    std::vector<Row> rows;
    SelectRows<Row>(database, [&](const Row& row) { rows.push_back(row); });
    return rows;
}

/// A register whose rows are Records: rows of one table with what belongs to them. What is of its own lies in
/// the hooks. The first of the columns is the code.
///
/// All saves wait for each other, and for imports: what may be there only once is looked for in peace.
template <class Record> class RegisterOf : public Register {
public:
    const RegisterName& Name() const override { return name_; }
    const char* Table() const override { return Record::Table; }
    const std::vector<FieldInfo>& Fields() const override { return form_.Fields(); }

    Texts New() const override { return form_.New(); }

    std::optional<Texts> Read(Database& database, Key key) const override
    {
        const auto record = FindRow<Record>(database, key);
        return record ? std::optional(TextsOf(*record)) : std::nullopt;
    }

    std::string WhatBecameOf(Database& database, Key key) const override
    {
        const std::string merged = MergedText<Record>(database, key);
        return merged.empty() ? "Este registro não existe mais: alguém o excluiu." : merged;
    }

    TidyText Tidy(std::size_t field, const std::string& before, const std::string& typed) const override
    {
        return form_.Tidy(field, before, typed);
    }

    SaveAnswer SaveAmong(Database& database, const RowsToBe& rows, Key key, const Texts& before,
                         const Texts& typed, const Author& author) const override
    {
        RequireRight(database, author, RightToWrite());
        LockImports(database);
        return Answer<Locked<Record>>({database, rows}, key, before, typed, &author);
    }

    SaveAnswer CheckAmong(Database& database, const RowsToBe& rows, Key key, const Texts& before,
                          const Texts& typed) const override
    {
        return Answer<Record>({database, rows}, key, before, typed, nullptr);
    }

    RemoveAnswer RemoveWithin(Database& database, Key key, const Author& author) const override
    {
        RequireRight(database, author, RightToWrite());
        LockImports(database);
        const auto stored = FindRow<Locked<Record>>(database, key);
        if (!stored)
            return {RemoveAnswer::Outcome::Gone, {}};
        if (std::string why = WhyKept(database, *stored); !why.empty())
            return {RemoveAnswer::Outcome::Kept, std::move(why)};
        if (const std::string users = UsersOf(database, Record::Table, key, OwnTable()); !users.empty())
            return {RemoveAnswer::Outcome::Kept, InUse(users)};
        RemoveOwn(database, std::span(&key, 1));
        DeleteWhere(database, Record::Table, KeyColumn(), key);
        AuditRemoval(database, author, Record::Table, key, ValuesOf<Record>(*stored));
        return {};
    }

    RemoveAnswer TakeBackWithin(Database& database, const RowsToBe& rows, Key key,
                                const AuditedColumns& before, const AuditedColumns& after,
                                const Author& author) const override
    {
        RequireRight(database, author, RightToWrite());
        LockImports(database);
        const auto stored = FindRow<Locked<Record>>(database, key);
        if (!stored)
            return {RemoveAnswer::Outcome::Gone, {}};
        const bool isAsItWas =
            before.empty() ? StandsAsAdded<Record>(*stored, after) : StandsAs<Record>(*stored, after);
        if (!isAsItWas)
            return {RemoveAnswer::Outcome::Kept, StandsOtherwise};
        if (before.empty())
            return RemoveWithin(database, key, author);
        if (std::string missing = MissingTarget(database, Record::Table, before, after); !missing.empty())
            return {RemoveAnswer::Outcome::Kept, std::move(missing)};
        return PutBack({database, rows}, *stored, before, author);
    }

    std::vector<RemoveAnswer> TakeBackAdded(Database& database, std::span<const AddedRow> rows,
                                            const Author& author) const override
    {
        if (AreRemovedTogether())
            return TakeBackTogether(database, rows, author);
        std::vector<RemoveAnswer> answers;
        for (const AddedRow& row : rows)
            answers.push_back(TakeBackWithin(database, {}, row.key, {}, *row.columns, author));
        return answers;
    }

    std::optional<Texts> Former(Database& database, Key key, const AuditedColumns& columns) const override
    {
        auto record = FindRow<Record>(database, key);
        if (!record || !TakeColumns(columns, *record))
            return std::nullopt;
        LoadFormer(database, *record);
        return TextsOf(*record);
    }

    Texts Told(Database& database, const AuditedColumns& columns) const override
    {
        Record record;
        TakeColumns(columns, record);
        LoadFormer(database, record);
        return TextsOf(record);
    }

    RemoveAnswer RestoreWithin(Database& database, Key key, const AuditedColumns& columns,
                               const Author& author) const override
    {
        RequireRight(database, author, RightToWrite());
        LockImports(database);
        if (FindByKey<Locked<Record>>(database, key))
            return {RemoveAnswer::Outcome::Kept, "Já existe de novo."};
        Record record;
        // A line that cannot be read has no key.
        if (!TakeRow(columns, record) || KeyIn(record) != key)
            return {RemoveAnswer::Outcome::Kept, "Não há registro de tudo que havia nele."};
        if (std::string missing = MissingTarget(database, Record::Table, columns, {}); !missing.empty())
            return {RemoveAnswer::Outcome::Kept, std::move(missing)};
        LoadFormer(database, record);
        Refusals refusals(Fields());
        CheckRecord({database}, nullptr, record, refusals);
        if (std::string why = NoLongerFits(refusals); !why.empty())
            return {RemoveAnswer::Outcome::Kept, std::move(why)};
        Author restoring = author;
        restoring.isRestoring = true;
        WriteRecord(database, nullptr, record, restoring);
        return {};
    }

    void Judge(Database& database, const std::function<void(const JudgedField&)>& tell) const override
    {
        SelectPages<Record>(database, [&](std::vector<Record>& page) {
            for (std::size_t first = 0; first < page.size(); first += LoadedAtOnce)
                Load(database, std::span(page).subspan(first, std::min(LoadedAtOnce, page.size() - first)));
            for (const Record& record : page)
                JudgeFields(record, tell);
        });
    }

    std::span<const ListColumn> ListColumns() const override { return list_.Columns(); }

    bool HasInactive() const override { return HasSituation; }

    std::vector<ListRow> Rows(Database& database, std::span<const Key> keys) const override
    {
        std::vector<Record> records;
        SelectWhere<Record>(database, std::set<Key>(keys.begin(), keys.end()),
                            [&](const Record& record) { records.push_back(record); });
        LoadShown(database, records);
        std::unordered_map<Key, ListRow> found;
        for (const Record& record : records)
            found[KeyIn(record)] = {KeyIn(record), list_.CellsOf(record), IsActive(record)};
        std::vector<ListRow> rows;
        for (const Key key : keys) {
            if (const auto row = found.find(key); row != found.end())
                rows.push_back(row->second);
        }
        return rows;
    }

protected:
    RegisterOf(const RegisterName& name, const Columns<Record>& columns,
               std::vector<ShownColumn<Record>> shown)
        : name_(name), form_(columns), list_(std::move(shown))
    {
    }

    /// Reads what belongs to the records beside their rows.
    virtual void Load(Database&, std::span<Record>) const { }
    /// The same, as far as a list shows it.
    virtual void LoadShown(Database& database, std::span<Record> records) const { Load(database, records); }
    /// The same of a record that was put back to the values of an earlier row.
    virtual void LoadFormer(Database& database, Record& record) const
    {
        Load(database, std::span(&record, 1));
    }
    /// What speaks against a record beyond its single fields; `stored` is missing for a new one. Fills in
    /// what follows from the fields. A field that could not be read is refused already.
    virtual void CheckRecord(const Among&, const Record* stored, Record& record, Refusals&) const = 0;
    /// Whether the record stands there already as it is.
    virtual bool IsUnchanged(const Record& stored, const Record& record) const
    {
        return ValuesOf<Record>(stored).Line() == ValuesOf<Record>(record).Line();
    }
    /// Writes a record that is good, with its line in the audit. Answers its key.
    virtual Key WriteRecord(Database& database, const Record* stored, Record& record,
                            const Author& author) const
    {
        if (!stored)
            return AddRow<Record>(database, record, author);
        const Key key = KeyIn(record);
        Update<Record>(database, record);
        AuditChange(database, author, Record::Table, key, ValuesOf<Record>(*stored),
                    ValuesOf<Record>(record));
        return key;
    }
    /// What speaks against a record by itself, beyond its single fields.
    virtual void JudgeRecord(const Record&, Refusals&) const { }
    /// Why a row may not go although nothing refers to it.
    virtual std::string WhyKept(Database&, const Record&) const { return {}; }
    /// The table whose rows belong to the register's own and go with them.
    virtual const char* OwnTable() const { return ""; }
    virtual void RemoveOwn(Database&, std::span<const Key>) const { }
    /// Whether rows may be removed with a few statements for many: no row's removal speaks against another's,
    /// and WhyKept has nothing to say.
    virtual bool AreRemovedTogether() const { return false; }
    /// The column of an appointment that refers to the register.
    virtual const char* BookedBy() const { return ""; }
    /// What the list is ordered by, before the code.
    virtual std::string OrderOf(const Record& record) const { return FoldText(list_.FirstOf(record)); }

    /// What a form's texts make; nothing where one cannot be read, or is missing.
    std::optional<Record> RecordOf(const Texts& typed) const { return form_.RecordOf(typed); }

    /// As a form shows them.
    Texts TextsOf(const Record& record) const { return form_.Of(record); }

    static Key KeyIn(Record record) { return KeyOfRow(record); }
    static bool IsActive(const Record& record)
    {
        if constexpr (HasSituation)
            return record.situacao == Active;
        return true;
    }

    std::vector<Key> FindRows(Database& database, const std::string& text, Listed listed) const override
    {
        const ListSearch sought(text);
        std::vector<std::pair<std::string, Key>> found;
        for (const Record& record : AllRows(database)) {
            const Key key = KeyIn(record);
            const bool isSought = sought.IsIn(list_.SearchedText(record)) || sought.Code().ValueOr(0) == key;
            const bool isLeftOut = listed == Listed::Active && IsHidden(record);
            if (!isLeftOut && (sought.IsEmpty() || isSought))
                found.emplace_back(OrderOf(record), key);
        }
        std::ranges::sort(found);
        std::vector<Key> keys;
        for (const auto& [order, key] : found)
            keys.push_back(key);
        return keys;
    }

    /// Inactive or deleted; who is blocked is not.
    static bool IsHidden(const Record& record)
    {
        if constexpr (HasSituation)
            return IsHiddenSituation(record.situacao);
        return false;
    }

    /// Those that are written together as they will be, as far as their fields tell.
    std::vector<Record> AllRows(const Among& among) const
    {
        std::vector<Record> records;
        SelectRows<Record>(among, [&](const Record& record) { records.push_back(record); });
        LoadShown(among, records);
        for (Record& record : records) {
            if (const auto toBe = among.rows.find(KeyIn(record)); toBe != among.rows.end())
                form_.Fill(toBe->second, record);
        }
        return records;
    }

    /// Whether a row other than the record has the same `trait` although the record, as it is stored, has
    /// not.
    template <class Trait>
    bool IsTaken(const Among& among, const Record* stored, const Record& record, Trait trait) const
    {
        const auto sought = trait(record);
        if (stored && trait(*stored) == sought)
            return false;
        return std::ranges::any_of(AllRows(among), [&](const Record& other) {
            return KeyIn(other) != KeyIn(record) && trait(other) == sought;
        });
    }

    /// Whether the record is the last active one, as it is stored.
    bool IsLastActive(const Among& among, const Record& record) const
    {
        return IsActive(record) && std::ranges::none_of(AllRows(among), [&](const Record& other) {
                   return IsActive(other) && KeyIn(other) != KeyIn(record);
               });
    }

private:
    static constexpr bool HasSituation = requires(Record record) { record.situacao; };
    static constexpr int Active = 1;
    static constexpr Key LinesToLookAt = 100;
    /// Rows whose own are read together: several of them belong to one.
    static constexpr std::size_t LoadedAtOnce = 200;

    /// By their keys, with what belongs to them.
    std::unordered_map<Key, Record> LockRows(Database& database, std::span<const AddedRow> rows) const
    {
        std::set<Key> keys;
        for (const AddedRow& row : rows)
            keys.insert(row.key);
        std::vector<Record> records;
        SelectWhere<Locked<Record>>(database, keys,
                                    [&](const Locked<Record>& record) { records.push_back(record); });
        Load(database, records);
        std::unordered_map<Key, Record> found;
        for (Record& record : records)
            found.emplace(KeyIn(record), std::move(record));
        return found;
    }

    std::vector<RemoveAnswer> TakeBackTogether(Database& database, std::span<const AddedRow> rows,
                                               const Author& author) const
    {
        RequireRight(database, author, RightToWrite());
        LockImports(database);
        const std::unordered_map<Key, Record> stored = LockRows(database, rows);
        std::vector<Key> going;
        for (const AddedRow& row : rows) {
            const auto found = stored.find(row.key);
            if (found != stored.end() && StandsAsAdded<Record>(found->second, *row.columns))
                going.push_back(row.key);
        }
        const std::set<Key> used = UsedAmong(database, Record::Table, going, OwnTable());
        std::erase_if(going, [&](Key key) { return used.contains(key); });
        RemoveOwn(database, going);
        DeleteWhere(database, Record::Table, KeyColumn(), going);
        std::vector<std::pair<Key, AuditValues>> before;
        for (const Key key : going)
            before.emplace_back(key, ValuesOf<Record>(stored.at(key)));
        AuditRemovals(database, author, Record::Table, before);
        return AnswersFor(database, rows, stored, std::set<Key>(going.begin(), going.end()));
    }

    /// Of rows that were there; those of `gone` are no more.
    std::vector<RemoveAnswer> AnswersFor(Database& database, std::span<const AddedRow> rows,
                                         const std::unordered_map<Key, Record>& stored,
                                         const std::set<Key>& gone) const
    {
        std::vector<RemoveAnswer> answers;
        for (const AddedRow& row : rows) {
            const auto found = stored.find(row.key);
            if (found == stored.end())
                answers.push_back({RemoveAnswer::Outcome::Gone, {}});
            else if (gone.contains(row.key))
                answers.push_back({});
            else if (!StandsAsAdded<Record>(found->second, *row.columns))
                answers.push_back({RemoveAnswer::Outcome::Kept, StandsOtherwise});
            else
                answers.push_back({RemoveAnswer::Outcome::Kept,
                                   InUse(UsersOf(database, Record::Table, row.key, OwnTable()))});
        }
        return answers;
    }

    template <class Row> std::optional<Record> FindRow(Database& database, Key key) const
    {
        std::optional<Record> record = FindByKey<Row>(database, key);
        if (record)
            Load(database, std::span(&*record, 1));
        return record;
    }

    static std::string KeyColumn()
    {
        std::string name;
        Record().Columns([&](const char* column, auto&) {
            if (name.empty())
                name = column;
        });
        return name;
    }

    /// Without an author nothing is written.
    template <class Row>
    SaveAnswer Answer(const Among& among, Key key, const Texts& before, const Texts& typed,
                      const Author* author) const
    {
        if (typed.size() != Fields().size() || (key != 0 && before.size() != Fields().size()))
            throw Failure(FailureNumber::InvalidArgument);
        if (key == 0)
            return Write(among, nullptr, form_.Comparable(New()), form_.Comparable(typed), author);
        const auto stored = FindRow<Row>(among, key);
        if (!stored)
            return {.outcome = SaveAnswer::Outcome::Gone, .key = key};
        const Texts now = form_.Comparable(TextsOf(*stored));
        const MergedTexts merged =
            MergeTexts(Fields(), {form_.Comparable(before), now, form_.Comparable(typed)},
                       [&] { return FindAuditLines(among, Record::Table, key, LinesToLookAt); });
        if (!merged.clashes.empty())
            return {.outcome = SaveAnswer::Outcome::Refused,
                    .key = key,
                    .refused = merged.clashes,
                    .clash = merged.text};
        return Write(among, &*stored, now, merged.wanted, author);
    }

    SaveAnswer Write(const Among& among, const Record* stored, const Texts& now, const Texts& wanted,
                     const Author* author) const
    {
        Record record = stored ? *stored : Record();
        Refusals refusals(Fields());
        SaveAnswer answer;
        answer.key = KeyIn(record);
        for (std::size_t at = 0; at < wanted.size(); ++at) {
            if (!stored || wanted[at] != now[at])
                form_.Take(at, wanted[at], record, refusals);
            if (wanted[at] != now[at])
                answer.changed.push_back({at, now[at], wanted[at]});
        }
        CheckRecord(among, stored, record, refusals);
        if (!refusals.IsEmpty())
            return {
                .outcome = SaveAnswer::Outcome::Refused, .key = answer.key, .refused = refusals.InOrder()};
        if (author && std::ranges::any_of(answer.changed, [this](const ChangedField& one) {
                return Fields()[one.field].kind == FieldKind::Money;
            }))
            RequireRight(among, *author, Right::SeePrices);
        if (author && !(stored && IsUnchanged(*stored, record)))
            answer.key = WriteRecord(among, stored, record, *author);
        if (author && stored && IsActive(*stored) && !IsActive(record) && *BookedBy())
            answer.booked = BookedSince(among, BookedBy(), answer.key, author->moment);
        return answer;
    }

    void JudgeFields(const Record& record, const std::function<void(const JudgedField&)>& tell) const
    {
        Refusals refusals(Fields());
        form_.Judge(record, refusals);
        JudgeRecord(record, refusals);
        for (RefusedField& refused : refusals.InOrder())
            tell(
                {KeyIn(record), refused.field, form_.Written(refused.field, record), std::move(refused.why)});
    }

    RemoveAnswer PutBack(const Among& among, const Record& stored, const AuditedColumns& before,
                         const Author& author) const
    {
        Record record = stored;
        if (!TakeColumns(before, record))
            return {RemoveAnswer::Outcome::Kept, StandsOtherwise};
        LoadFormer(among, record);
        Refusals refusals(Fields());
        CheckRecord(among, &stored, record, refusals);
        if (std::string why = NoLongerFits(refusals); !why.empty())
            return {RemoveAnswer::Outcome::Kept, std::move(why)};
        WriteRecord(among, &stored, record, author);
        return {};
    }

    /// Why former values are refused; empty where they are not.
    std::string NoLongerFits(const Refusals& refusals) const
    {
        std::string why;
        for (const RefusedField& refused : refusals.InOrder())
            why.append(why.empty() ? "O que havia antes não cabe mais. " : " ")
                .append(Fields()[refused.field].label)
                .append(": ")
                .append(refused.why);
        return why;
    }

    std::string InUse(const std::string& users) const
    {
        std::string text = "Está em uso (" + users + ") e não pode ser excluíd" + name_.ending + ".";
        if (HasSituation)
            text += " Marque a situação como Inativo.";
        return text;
    }

    const RegisterName name_;
    RecordTexts<Record> form_;
    ListTexts<Record> list_;
};

/// The one object of its kind, which stays as long as the process.
template <class Kind> const Kind& Only()
{
    static const Kind only;
    return only;
}

} // namespace kova::family::registers
