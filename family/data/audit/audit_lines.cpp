#include "family/data/audit/audit_lines.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/audit/short_names.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/nullable.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <limits>

namespace kova::family {

namespace {

Failure Unreadable(const std::string& values)
{
    return DatabaseFailure("Uma linha da auditoria não pode ser lida. O banco de dados foi alterado por outro"
                           " programa ou está danificado.\r\n"
                           + values);
}

std::optional<std::string> TextOf(const nlohmann::json& value, const std::string& values)
{
    if (value.is_null())
        return std::nullopt;
    if (value.is_string())
        return value.get<std::string>();
    if (value.is_number_integer())
        return value.dump();
    throw Unreadable(values);
}

} // namespace

AuditedColumns ReadAuditedColumns(const Nullable<std::string>& written)
{
    AuditedColumns columns;
    if (written.IsNull())
        return columns;
    const auto object = nlohmann::json::parse(utf8::WellFormed(written.value), nullptr, false);
    if (!object.is_object())
        throw Unreadable(written.value);
    for (const auto& [column, value] : object.items())
        columns[std::string(ColumnOfName(column))] = TextOf(value, written.value);
    return columns;
}

namespace {

/// Lines of former programs keep all columns of a changed row.
void DropWhatStayed(AuditedColumns& before, AuditedColumns& after)
{
    std::erase_if(before, [&](const auto& column) {
        const auto same = after.find(column.first);
        if (same == after.end() || same->second != column.second)
            return false;
        after.erase(same);
        return true;
    });
}

class AuditSelection : public KeptStatement {
public:
    explicit AuditSelection(Database& database)
        : statement_((database.Session().prepare
                          << "select codigo, momento, usuario, posto, operacao, antes, depois from auditoria"
                             " where tabela = :tabela and chave = :chave order by codigo desc limit :quantas",
                      soci::into(line_.code), soci::into(line_.moment), soci::into(line_.user),
                      soci::into(line_.desk), soci::into(line_.operation),
                      soci::into(before_.value, before_.state), soci::into(after_.value, after_.state),
                      soci::use(table_, "tabela"), soci::use(key_, "chave"), soci::use(most_, "quantas")))
    {
    }

    std::vector<AuditLine> Run(const char* table, Key key, Key most)
    {
        table_ = table;
        key_ = key;
        most_ = most;
        std::vector<AuditLine> lines;
        statement_.execute();
        while (statement_.fetch())
            lines.push_back(Line());
        return lines;
    }

private:
    /// A file can hold texts with bytes that are no characters; the line is told all the same.
    AuditLine Line() const
    {
        AuditLine line = line_;
        for (std::string* text : {&line.moment, &line.user, &line.desk, &line.operation})
            *text = utf8::WellFormed(*text);
        line.before = ReadAuditedColumns(before_);
        line.after = ReadAuditedColumns(after_);
        DropWhatStayed(line.before, line.after);
        return line;
    }

    std::string table_;
    Key key_ = 0, most_ = 0;
    AuditLine line_;
    Nullable<std::string> before_, after_;
    soci::statement statement_;
};

} // namespace

std::vector<AuditLine> FindAuditLines(Database& database, const char* table, Key key, Key most)
{
    return database.With<AuditSelection>(
        [&](AuditSelection& selection) { return selection.Run(table, key, most); });
}

std::vector<AuditLine> FindAllAuditLines(Database& database, Database* archive, const char* table, Key key)
{
    constexpr Key All = std::numeric_limits<Key>::max();
    std::vector<AuditLine> lines = FindAuditLines(database, table, key, All);
    if (!archive)
        return lines;
    const std::size_t own = lines.size();
    for (AuditLine& line : FindAuditLines(*archive, table, key, All)) {
        // An archiving that was cut off has left it in both.
        const auto isSame = [&](const AuditLine& other) { return other.code == line.code; };
        if (std::none_of(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(own), isSame))
            lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace kova::family
