#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/engine/audit_link.hpp"

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kova::family {

class Database;

/// Values of a row by their columns, in the order in which they are added, as one line of JSON in UTF-8.
class AuditValues {
public:
    AuditValues& Add(std::string_view column, long long value);
    AuditValues& Add(std::string_view column, const std::string& value);
    AuditValues& Add(std::string_view column, const Nullable<std::string>& value);
    AuditValues& Add(std::string_view column, const Nullable<Key>& value);
    AuditValues& Add(std::string_view column, const Nullable<int>& value);

    /// As a line about a row of the table keeps them (short_names.hpp).
    std::string Line(std::string_view table = {}) const;

    /// Takes a column away; nothing where it is not there.
    void Drop(std::string_view column);
    /// Takes away what is empty: Null, and no letters in a text that is never Null.
    void DropEmpty();
    /// Takes away the columns that both have alike. Of those that belong together all stay where one differs;
    /// where none differs at all the first stays.
    static void DropAlike(AuditValues& one, AuditValues& other, std::span<const std::string_view> together);
    bool Tells(std::string_view column, const std::string& value) const;

private:
    using Kept = std::variant<std::nullptr_t, long long, std::string>;
    struct Value {
        std::string column;
        Kept kept;
        bool isEmpty = false;
    };

    AuditValues& Keep(std::string_view column, Kept value, bool isEmpty = false);
    bool HasAlike(const Value& value) const;

    std::vector<Value> columns_;
};

/// The values of `operacao`.
namespace audit_operation {
inline constexpr const char* Insertion = "inclusao";
inline constexpr const char* Change = "alteracao";
inline constexpr const char* Removal = "exclusao";
/// A row that was gone is there again.
inline constexpr const char* Restoration = "restauracao";
/// A file was brought in.
inline constexpr const char* Import = "importacao";
/// What it had brought was taken back.
inline constexpr const char* ImportUndone = "importacao_desfeita";
/// What tells who somebody is was taken out of all tables.
inline constexpr const char* Anonymisation = "anonimizacao";
/// Two rows have become one.
inline constexpr const char* Merging = "uniao";
/// Somebody has signed in.
inline constexpr const char* SigningIn = "entrada";
/// Somebody has tried to, and may not.
inline constexpr const char* SigningInRefused = "entrada_recusada";
/// Somebody wanted what he has no right to.
inline constexpr const char* Denial = "direito_negado";
/// Data have gone into a file.
inline constexpr const char* Export = "exportacao";
/// Data of customers have gone onto paper, or into a file instead.
inline constexpr const char* Print = "impressao";
/// The shop has become what a copy of it was.
inline constexpr const char* CopyRestored = "restauracao_de_copia";
/// Lines have gone into an archive.
inline constexpr const char* Archiving = "arquivamento";
/// The schema has become another.
inline constexpr const char* Migration = "atualizacao";
} // namespace audit_operation

/// Stands among the values of a row that has come in an import: the import's number.
inline constexpr std::string_view ImportColumn = "importacao";
/// Stands among the values of a row by whose write a line of the audit was undone: the code of that line.
inline constexpr std::string_view UndoneLineColumn = "desfaz";
/// In the place of a table where a line is about an import itself; its key is the import's number.
inline constexpr const char* ImportsTable = "importacao";

/// Stands in the line of an anonymisation: the codes of the lines that it has cleaned (code_ranges.hpp).
inline constexpr std::string_view CleanedLinesColumn = "linhas_limpas";

/// A row of the audit; the engine numbers it. `usuario` is "CODE - NAME", `posto` the computer's name,
/// `operacao` one of audit_operation. `antes` is Null for a new or restored row, `depois` for one that is
/// gone. A change keeps the columns that differ, everything else a whole row without what is empty; who wrote
/// it and when (AuthorColumns) stand among them only where they are others than the line's own. Lines of
/// former programs keep all columns of a row.
struct AuditRow : ChainedLine {
    static constexpr const char* Table = "auditoria";
    /// It is written with its link alone (audit_chain.hpp).
    static constexpr bool IsChained = true;
};

/// All columns of a row.
template <class Row> AuditValues ValuesOf(Row row)
{
    AuditValues values;
    row.Columns([&](const char* column, const auto& field) { values.Add(column, field); });
    return values;
}

/// The columns of a row that say when it was written and by whom; a line that has nothing of them says so
/// itself.
inline constexpr std::string_view AuthorColumns[] = {"incluido_em", "incluido_por", "alterado_em",
                                                     "alterado_por"};

/// Write a line for a new row, for a changed one, for one that is gone and for one that is back, in the
/// transaction that is open. Columns of a changed row that belong `together` are all kept where one of them
/// differs.
void AuditInsertion(Database& database, const Author& author, const char* table, Key key, AuditValues after);
void AuditChange(Database& database, const Author& author, const char* table, Key key, AuditValues before,
                 AuditValues after, std::span<const std::string_view> together = {});
void AuditRemoval(Database& database, const Author& author, const char* table, Key key, AuditValues before);
void AuditRestoration(Database& database, const Author& author, const char* table, Key key,
                      AuditValues after);
/// Many rows of a table that are gone, by their keys.
void AuditRemovals(Database& database, const Author& author, const char* table,
                   std::span<const std::pair<Key, AuditValues>> before);

/// Writes a line for a row that goes on in the place of `gone`, with what there is to say of it, and one for
/// that one, with the key that it goes on under in `unido_a`; in the transaction that is open.
void AuditMerging(Database& database, const Author& author, const char* table, Key kept, Key gone,
                  AuditValues what = {});

/// Writes the line of the import that bears the author's number, with what there is to say of it.
void AuditImport(Database& database, const Author& author, const AuditValues& what);
/// The same of an import that was taken back.
void AuditUndoneImport(Database& database, const Author& author, Key number, const AuditValues& what);

/// Writes the line of one who has signed in, or was refused, or has wanted what he has no right to: one of
/// the three operations. `user` is his code, 0 where he has none; in the transaction that is open.
void AuditAccess(Database& database, const Author& author, const char* operation, Key user,
                 const AuditValues& what);

/// Writes the line of a person who was made anonymous, with figures of what it was done to.
void AuditAnonymisation(Database& database, const Author& author, const char* table, Key key,
                        const AuditValues& what);

} // namespace kova::family
