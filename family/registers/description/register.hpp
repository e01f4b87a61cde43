#pragma once

#include "family/data/audit/audit_lines.hpp"
#include "family/data/audit/author.hpp"
#include "family/data/engine/key.hpp"
#include "family/registers/description/field.hpp"
#include "family/users/rights.hpp"

#include <functional>
#include <optional>
#include <span>
#include <unordered_map>

namespace kova::family {
class Database;
}

namespace kova::family::registers {

/// A field that cannot be written.
struct RefusedField {
    /// Its place among the fields.
    std::size_t field = 0;
    /// Why, in lower case and with a full stop; see Sentence.
    std::string why;
};

/// What a save changes in a field.
struct ChangedField {
    std::size_t field = 0;
    std::string before, after;
};

/// What a save answers, technical failures aside.
struct SaveAnswer {
    enum class Outcome {
        Done,
        /// Nothing was written; `refused` tells every field that stands in the way.
        Refused,
        /// The row is not there any more.
        Gone,
    };

    bool IsDone() const { return outcome == Outcome::Done; }

    Outcome outcome = Outcome::Done;
    /// Of the row that was written.
    Key key = 0;
    std::vector<RefusedField> refused{};
    /// On Done, the fields that stand otherwise than before; of a new row, those that hold something.
    std::vector<ChangedField> changed{};
    /// Where others have changed the same fields meanwhile: who, when, and what stands there now, for a
    /// message; else empty.
    std::string clash{};
    /// Where the row became inactive by this: the appointments still to come that are booked with it.
    long long booked = 0;
};

/// What becomes of a text that was typed into a field.
struct TidyText {
    /// In the way in which a form shows the stored one; as it was typed where it cannot be read.
    std::string text;
    /// Why it cannot be read, in lower case and with a full stop; else empty.
    std::string why{};
};

/// A field of a stored row that a form would not take.
struct JudgedField {
    Key key = 0;
    std::size_t field = 0;
    /// As a file has it, and why it cannot stand, in lower case and with a full stop.
    std::string text, why;
};

/// A row that was added, with the columns that the audit has kept of it.
struct AddedRow {
    Key key = 0;
    const AuditedColumns* columns = nullptr;
};

/// What a removal answers.
struct RemoveAnswer {
    enum class Outcome { Done, Kept, Gone };

    bool IsDone() const { return outcome == Outcome::Done; }

    Outcome outcome = Outcome::Done;
    /// Why the row is kept, and what can be done instead; sentences for a message.
    std::string text{};
};

/// A row that may be about the same as another.
struct LikelyDouble {
    Key key = 0;
    /// "José Antônio Peçanha (código 1)"
    std::string shown;
    /// What they have in common: "o mesmo telefone, (11) 91234-5678".
    std::vector<std::string> reasons{};
    /// Both cannot be there: a save is refused.
    bool bars = false;
};

/// A column of a register's list.
struct ListColumn {
    std::string_view label;
    /// A number, to be aligned at the right.
    bool number = false;
    /// A price or a cost, which not everybody may see.
    bool money = false;
};

/// A row of a register's list.
struct ListRow {
    Key key = 0;
    /// One for each column.
    Texts cells;
    /// False for one that new appointments cannot be booked with.
    bool active = true;
};

/// Which rows a list has.
enum class Listed {
    All,
    /// Those that are inactive, or deleted, are left out; who is blocked is there.
    Active,
};

/// A part of a list.
struct ListPage {
    /// Rows of the whole list.
    std::size_t found = 0;
    std::vector<ListRow> rows;
};

/// What can be chosen in a field that refers to another register: the field's text, and what a form shows.
struct Offer {
    std::string text, shown;
};

/// A row that many shops have, for the user to choose.
struct Suggestion {
    /// What is typed for it into a new row.
    Texts texts;
    /// As a list shows it.
    std::string shown;
    /// Whether such a row is there already.
    bool isStored = false;
};

/// Rows of a register that are written together, as they will be, by their keys: what stands in one of them
/// is judged by the others as they will be.
using RowsToBe = std::unordered_map<Key, Texts>;

/// How people speak of a register.
struct RegisterName {
    /// In the command line: "clientes".
    std::string_view name;
    /// "Clientes"
    std::string_view title;
    /// "cliente", "o cliente"
    std::string_view one;
    /// Ends what is said of one: 'o' or 'a'.
    char ending = 'o';
};

/// Rows that a list shows, by their keys.
class RowSource {
public:
    virtual ~RowSource() = default;

    virtual std::span<const ListColumn> ListColumns() const = 0;
    /// The rows with those keys in their order; one that is gone is left out. Fails with a DatabaseFailure.
    virtual std::vector<ListRow> Rows(Database& database, std::span<const Key> keys) const = 0;

protected:
    RowSource() = default;
    RowSource(const RowSource&) = delete;
    RowSource& operator=(const RowSource&) = delete;
};

class RelatedList;

/// A register of the shop, whatever its rows are: its fields, its rows as texts, and its rules. Knows no
/// screen and no file. Everything fails with a DatabaseFailure; with 5 where there is not one text for each
/// field.
class Register : public RowSource {
public:
    virtual const RegisterName& Name() const = 0;
    /// The table whose rows it has.
    virtual const char* Table() const = 0;
    /// The first is the code. They stay where they are as long as the process.
    virtual const std::vector<FieldInfo>& Fields() const = 0;

    /// What its rows are written with: without it every write fails with RightDenied, which stands in the
    /// audit.
    virtual Right RightToWrite() const { return Right::ChangeRegisters; }

    /// What the form of a new row shows.
    virtual Texts New() const = 0;
    /// The stored row; nothing where there is none.
    virtual std::optional<Texts> Read(Database& database, Key key) const = 0;
    /// What has become of a row that is gone, in sentences: which one goes on in its place, or that somebody
    /// has removed it.
    virtual std::string WhatBecameOf(Database& database, Key key) const = 0;

    /// Writes a row, a new one where `key` is 0, in a transaction of its own, as WriteSafely does. `before`
    /// is what the form showed when it was opened (not looked at for a new row), `typed` what it shows now.
    /// Field by field: what the user has left alone stays as it is stored, what only he has changed is as
    /// typed, and what others have changed too, in another way, is refused. Then the fields are read and the
    /// rules looked at, and all that is wrong is answered at once. The row is written with its line in the
    /// audit, unless nothing has changed.
    SaveAnswer Save(Database& database, Key key, const Texts& before, const Texts& typed,
                    const Author& author) const;
    /// The same in the transaction that is open; whatever it answers, nothing was written unless it is Done.
    SaveAnswer SaveWithin(Database& database, Key key, const Texts& before, const Texts& typed,
                          const Author& author) const
    {
        return SaveAmong(database, {}, key, before, typed, author);
    }
    /// The same of one of several rows, all of which are written in that transaction, one after the other.
    virtual SaveAnswer SaveAmong(Database& database, const RowsToBe& rows, Key key, const Texts& before,
                                 const Texts& typed, const Author& author) const = 0;

    /// What SaveWithin would answer now. Writes and locks nothing.
    SaveAnswer Check(Database& database, Key key, const Texts& before, const Texts& typed) const
    {
        return CheckAmong(database, {}, key, before, typed);
    }
    /// What SaveAmong would answer now.
    virtual SaveAnswer CheckAmong(Database& database, const RowsToBe& rows, Key key, const Texts& before,
                                  const Texts& typed) const = 0;
    /// Whether what stands in that field of one row can speak against another row.
    virtual bool IsJudgedAmong(std::size_t) const { return true; }

    /// Stored rows that may be about the same as what is typed into the form of a row, by something that the
    /// row did not have in common with them before; by code. Empty for registers that know no such thing.
    virtual std::vector<LikelyDouble> LikelyDoubles(Database& database, Key key, const Texts& before,
                                                    const Texts& typed) const;

    /// Takes a row away that nothing refers to, in a transaction of its own.
    RemoveAnswer Remove(Database& database, Key key, const Author& author) const;

    /// What a save would leave behind that its user may not have thought of, as sentences before a question;
    /// empty where there is nothing to ask, or what is typed would be refused.
    virtual std::string ConcernAbout(Database& database, Key key, const Texts& typed) const;

    /// Tells of each stored field that could not be typed so today.
    virtual void Judge(Database& database, const std::function<void(const JudgedField&)>& tell) const = 0;

    /// What a button calls the suggestions; empty where a register has none.
    virtual std::string_view SuggestionsTitle() const { return {}; }
    /// Rows that many shops have in that year.
    virtual std::vector<Suggestion> Suggestions(Database& database, int year) const;
    /// Adds new rows, all of them or none, in a transaction of its own. Answers as the save of the first that
    /// is refused.
    SaveAnswer AddAll(Database& database, std::span<const Texts> rows, const Author& author) const;
    virtual RemoveAnswer RemoveWithin(Database& database, Key key, const Author& author) const = 0;

    /// Takes back, in the transaction that is open, a write of which the audit has kept these columns: a row
    /// that was new (`before` is empty then) goes, one that was changed gets its former values, both by the
    /// rules of the register. It is kept, with the reason, where it stands otherwise than that write left it.
    /// `rows` are those that get former values together with it.
    virtual RemoveAnswer TakeBackWithin(Database& database, const RowsToBe& rows, Key key,
                                        const AuditedColumns& before, const AuditedColumns& after,
                                        const Author& author) const = 0;
    /// The same of several rows that were new, one after the other. An answer for each.
    virtual std::vector<RemoveAnswer> TakeBackAdded(Database& database, std::span<const AddedRow> rows,
                                                    const Author& author) const = 0;
    /// The row as it is, but for those columns; nothing where there is none, or they are not such columns.
    virtual std::optional<Texts> Former(Database& database, Key key, const AuditedColumns& columns) const = 0;

    /// What a form would show of a row of which those columns alone are known.
    virtual Texts Told(Database& database, const AuditedColumns& columns) const = 0;
    /// Puts a row back that was removed, under its key and with what the audit has kept of it, by the rules
    /// of the register; in a transaction of its own. It stays away, with the reason, where there is such a
    /// row, where a column is missing, and where what it was does not fit any more.
    RemoveAnswer Restore(Database& database, Key key, const AuditedColumns& columns,
                         const Author& author) const;
    virtual RemoveAnswer RestoreWithin(Database& database, Key key, const AuditedColumns& columns,
                                       const Author& author) const = 0;

    /// Whether its rows can be inactive.
    virtual bool HasInactive() const = 0;
    /// Keys of the rows that hold the text, case, accents and the punctuation of numbers aside, in the order
    /// of the list; all rows where it is empty.
    std::vector<Key> Find(Database& database, const std::string& text, Listed listed = Listed::All) const
    {
        return FindRows(database, text, listed);
    }
    /// Find and Rows at once: `most` rows from the row `first` on.
    ListPage Search(Database& database, const std::string& text, std::size_t first, std::size_t most,
                    Listed listed = Listed::All) const;

    /// What a typed text becomes, other fields and rows aside. `before` is what the form showed there. An
    /// empty text is never wrong here.
    virtual TidyText Tidy(std::size_t field, const std::string& before, const std::string& typed) const = 0;

    /// What can be chosen in a field that refers to another register of few rows, by its name; `typed` tells
    /// what the choice depends on. Empty for all other fields.
    virtual std::vector<Offer> Offers(Database& database, std::size_t field, const Texts& typed) const;

    /// What is looked at beside the form of a row; none for most registers.
    virtual std::span<const RelatedList* const> Related() const { return {}; }

protected:
    virtual std::vector<Key> FindRows(Database& database, const std::string& text, Listed listed) const = 0;
};

/// Whether its rows have prices or costs, which not everybody may see.
bool HasPrices(const Register& of);
/// Whether no row can do without one, so that none is added by who may not.
bool NeedsPrice(const Register& of);

/// The place of the field that is called so. Fails with 5 where there is none.
std::size_t FieldNamed(const std::vector<FieldInfo>& fields, std::string_view label);

} // namespace kova::family::registers
