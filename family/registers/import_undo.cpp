#include "family/registers/import_undo.hpp"

#include "family/business/clash_text.hpp"
#include "family/data/audit/import_audit.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/pre_sales.hpp"
#include "family/registers/description/references.hpp"
#include "family/registers/description/taken_back.hpp"
#include "family/registers/registers.hpp"
#include "family/users/denials.hpp"

#include <algorithm>
#include <limits>
#include <map>

namespace kova::family::registers {

namespace {

/// Rows between two looks whether to go on.
constexpr long long RowsAtOnce = 100;
/// Rows that are taken back with a few statements.
constexpr std::size_t MostTogether = 500;

RemoveAnswer Kept(std::string why) { return {RemoveAnswer::Outcome::Kept, std::move(why)}; }

/// A row of a table that is no register's.
template <class Row> struct LockedRow : Row {
    static constexpr bool LocksRow = true;
};

/// Why it has to stay beside what refers to it; empty where nothing does.
std::string HeldBy(Database& database, const AppointmentRow& row)
{
    return FindPreSales(database, row.numero).empty() ? "" : "Tem pré-venda e não pode ser excluído.";
}
std::string HeldBy(Database&, const PreSaleRow&) { return {}; }
std::string HeldBy(Database& database, const PackageRow& row)
{
    const std::string users = UsersOf(database, PackageRow::Table, row.codigo);
    return users.empty() ? "" : "Está em uso (" + users + ") e não pode ser excluído.";
}

/// An import only adds such rows.
template <class Row>
RemoveAnswer TakeRowBack(Database& database, const ImportedRow& written, const Author& author)
{
    const std::optional<Row> stored = FindByKey<LockedRow<Row>>(database, written.key);
    if (!stored)
        return {RemoveAnswer::Outcome::Gone, {}};
    if (!StandsAsAdded<Row>(*stored, written.after))
        return Kept(StandsOtherwise);
    if (std::string why = HeldBy(database, *stored); !why.empty())
        return Kept(std::move(why));
    const auto tables = StoredTables();
    const auto table = std::ranges::find(tables, std::string_view(Row::Table), &StoredTable::name);
    DeleteWhere(database, Row::Table, table->key, written.key);
    AuditRemoval(database, author, Row::Table, written.key, ValuesOf<Row>(*stored));
    return {};
}

/// A kind of row that imports bring beside those of the registers.
struct OtherRows {
    const char* table;
    std::string_view one;
    RemoveAnswer (*takeBack)(Database&, const ImportedRow&, const Author&);
};
constexpr OtherRows Others[] = {
    {AppointmentRow::Table, "agendamento", TakeRowBack<AppointmentRow>},
    {PackageRow::Table, "pacote", TakeRowBack<PackageRow>},
    {PreSaleRow::Table, "pré-venda", TakeRowBack<PreSaleRow>},
};

const OtherRows* OthersOfTable(std::string_view table)
{
    const auto found = std::ranges::find(Others, table, &OtherRows::table);
    return found == std::end(Others) ? nullptr : found;
}

std::string NameOf(Database& database, const ImportedRow& row)
{
    const std::string key = std::to_string(row.key);
    const Register* of = RegisterOfTable(row.table);
    if (of == nullptr) {
        const OtherRows* other = OthersOfTable(row.table);
        return std::string(other == nullptr ? row.table : other->one).append(" ").append(key);
    }
    std::string name = std::string(of->Name().one).append(" ").append(key);
    const std::vector<ListRow> rows = of->Rows(database, std::span(&row.key, 1));
    if (!rows.empty() && !rows.front().cells.empty())
        name.append(" (").append(rows.front().cells.front()).append(")");
    return name;
}

std::string ToldChange(const AuditLine& line)
{
    const std::string who = PersonOf(line) + " em " + MomentOf(line);
    if (line.operation == audit_operation::Removal)
        return "Foi excluído por " + who + ".";
    const auto number = line.after.find(ImportColumn);
    if (number != line.after.end() && number->second)
        return "Foi mudado pela importação " + *number->second + " de " + who + ". Desfaça-a antes.";
    return "Foi mudado por " + who + ". Para o desfazer, mude-o de volta à mão.";
}

/// An import on its way back.
class Undoing {
public:
    Undoing(Database& database, UndoneImport& undone, const Author& author)
        : database_(database), undone_(undone), author_(author)
    {
    }

    /// Notes what a row that was changed gets back, where others are judged by it. To be told of all rows
    /// before the first is taken back.
    void Expect(const ImportedRow& row)
    {
        const Register* of = row.isNew ? nullptr : RegisterOfTable(row.table);
        if (of == nullptr || !ChangesOthers(*of, row))
            return;
        if (auto former = of->Former(database_, row.key, row.before))
            toBe_[of].insert_or_assign(row.key, *std::move(former));
    }

    void TakeBack(const ImportedRow& row)
    {
        const Register* of = row.isNew ? RegisterOfTable(row.table) : nullptr;
        if (of != addedTo_ || added_.size() == MostTogether)
            TakeAddedBack();
        addedTo_ = of;
        if (of != nullptr)
            added_.push_back(row);
        else
            Note(Answer(row), row);
    }

    /// Those of which TakeBack was told last; to be called behind the last of all.
    void TakeAddedBack()
    {
        std::vector<AddedRow> rows;
        for (const ImportedRow& row : added_)
            rows.push_back({row.key, &row.after});
        if (rows.empty())
            return;
        const std::vector<RemoveAnswer> answers = addedTo_->TakeBackAdded(database_, rows, author_);
        for (std::size_t at = 0; at < added_.size(); ++at)
            Note(answers.at(at), added_[at]);
        added_.clear();
    }

private:
    void Note(const RemoveAnswer& answer, const ImportedRow& row)
    {
        if (answer.IsDone())
            ++(row.isNew ? undone_.removed : undone_.restored);
        else if (answer.outcome == RemoveAnswer::Outcome::Kept || !row.isNew)
            undone_.kept.push_back({NameOf(database_, row), WhyKept(answer, row)});
    }

    /// What the row has to be now: as the import left it, and as it was then in what others have changed.
    AuditedColumns Standing(const ImportedRow& row) const
    {
        AuditedColumns standing = row.after, since;
        if (row.isNew)
            return standing;
        constexpr Key All = std::numeric_limits<Key>::max();
        for (const AuditLine& line : FindAuditLines(database_, row.table.c_str(), row.key, All)) {
            if (line.code <= row.line)
                break;
            for (const auto& [column, value] : line.before)
                since.insert_or_assign(column, value);
        }
        standing.merge(since);
        return standing;
    }

    RemoveAnswer Answer(const ImportedRow& row)
    {
        if (const Register* of = RegisterOfTable(row.table))
            return of->TakeBackWithin(database_, toBe_[of], row.key, row.before, Standing(row), author_);
        const OtherRows* other = OthersOfTable(row.table);
        return other == nullptr || !row.isNew
            ? Kept("Este programa não sabe desfazer o que foi gravado nele.")
            : other->takeBack(database_, row, author_);
    }

    /// Whether a field has changed by which other rows are judged.
    static bool ChangesOthers(const Register& of, const ImportedRow& row)
    {
        const std::vector<FieldInfo>& fields = of.Fields();
        for (std::size_t at = 0; at < fields.size(); ++at) {
            const bool hasChanged = std::ranges::any_of(fields[at].stored, [&](const std::string& column) {
                const auto before = row.before.find(column), after = row.after.find(column);
                return before != row.before.end()
                    && (after == row.after.end() || before->second != after->second);
            });
            if (hasChanged && of.IsJudgedAmong(at))
                return true;
        }
        return false;
    }

    /// Who has made it stand otherwise, where the audit tells.
    std::string WhyKept(const RemoveAnswer& answer, const ImportedRow& row) const
    {
        const bool isGone = answer.outcome == RemoveAnswer::Outcome::Gone;
        if (!isGone && answer.text != StandsOtherwise)
            return answer.text;
        const auto lines = FindAuditLines(database_, row.table.c_str(), row.key, 1);
        if (!lines.empty() && lines.front().code > row.line)
            return ToldChange(lines.front());
        return isGone ? "Não existe mais: outro programa o excluiu." : StandsOtherwise;
    }

    Database& database_;
    UndoneImport& undone_;
    const Author& author_;
    std::map<const Register*, RowsToBe> toBe_;
    /// New rows, one behind the other, of one register.
    std::vector<ImportedRow> added_;
    const Register* addedTo_ = nullptr;
};

UndoneImport Find(Database& database, std::optional<Key> number)
{
    const std::vector<ImportLine> imports = FindImports(database);
    const auto found = number ? std::ranges::find(imports, *number, &ImportLine::number) : imports.begin();
    if (found == imports.end())
        return {.outcome = UndoneImport::Outcome::Unknown};
    const auto outcome = found->undone ? UndoneImport::Outcome::UndoneBefore : UndoneImport::Outcome::Done;
    return {.outcome = outcome, .import = *found};
}

void TakeAllBack(Database& database, UndoneImport& undone, const Author& author, const LongWork& work)
{
    Undoing undoing(database, undone, author);
    if (undone.import.changed.value_or(1) > 0)
        ForEachRowOf(undone.import, database, [&](const ImportedRow& row) {
            work.RequireGoingOn();
            undoing.Expect(row);
        });
    long long done = 0;
    const long long total = undone.import.records;
    ForEachRowOf(undone.import, database, [&](const ImportedRow& row) {
        undoing.TakeBack(row);
        if (++done % RowsAtOnce != 0)
            return;
        work.Reach(std::min(done, total), total);
        work.RequireGoingOn();
    });
    undoing.TakeAddedBack();
    work.Reach(total, total);
}

/// What an import has brought goes, and what it has changed comes back, by the rights that its rows are
/// otherwise removed and changed with.
void RequireRights(Database& database, const ImportLine& import, const Author& author)
{
    const Register* of = RegisterNamed(import.registerName);
    RequireRight(database, author, of == nullptr ? Right::DeleteAppointments : of->RightToWrite());
    if (of != nullptr && HasPrices(*of))
        RequireRight(database, author, Right::SeePrices);
}

UndoneImport UndoInTransaction(Database& database, std::optional<Key> number, ChangedRows changed,
                               const Author& author, const LongWork& work)
{
    try {
        WriteTransaction transaction(database);
        RequireRight(database, author, Right::ChangeRegisters);
        LockImports(database);
        UndoneImport undone = Find(database, number);
        if (!undone.IsDone())
            return undone;
        RequireRights(database, undone.import, author);
        TakeAllBack(database, undone, author, work);
        if (!undone.kept.empty() && changed == ChangedRows::Refuse) {
            undone.outcome = UndoneImport::Outcome::Refused;
            return undone;
        }
        AuditUndoneImport(database, author, undone.import.number,
                          AuditValues()
                              .Add("excluidos", undone.removed)
                              .Add("restaurados", undone.restored)
                              .Add("mantidos", static_cast<long long>(undone.kept.size())));
        transaction.Commit();
        return undone;
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

} // namespace

UndoneImport UndoImport(Database& database, std::optional<Key> number, ChangedRows changed,
                        const Author& author, const LongWork& work)
{
    return TellingDenials(database, author,
                          [&] { return UndoInTransaction(database, number, changed, author, work); });
}

} // namespace kova::family::registers
