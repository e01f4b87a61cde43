#include "family/privacy/audited_values.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/audit/short_names.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/waiting_rows.hpp"

#include <algorithm>

namespace kova::family::privacy {

namespace {

/// Looked for in the text itself: most lines are of other customers, and reading their values takes much
/// longer. A value that begins with this one is found, too.
bool MayHave(std::string_view text, std::string_view column, const std::string& value)
{
    return std::ranges::any_of(BeginningsOf(column), [&](const std::string& beginning) {
        return text.find(beginning + value) != std::string_view::npos;
    });
}

constexpr const char* CustomerColumn = "codigo_do_cliente";
bool MayName(std::string_view text, Key code) { return MayHave(text, CustomerColumn, std::to_string(code)); }
bool MayNameSomebody(std::string_view text) { return MayHave(text, CustomerColumn, ""); }
/// Such an appointment has no registered customer.
bool MayBeSimplified(std::string_view text) { return MayHave(text, "tipo_do_agendamento", "1"); }

class LastLine : public KeptStatement {
public:
    explicit LastLine(Database& database)
        : statement_((database.Session().prepare << "select coalesce(max(codigo), 0) from auditoria",
                      soci::into(last_)))
    {
    }

    Key Run()
    {
        Key last = 0;
        statement_.execute();
        while (statement_.fetch())
            last = last_;
        return last;
    }

private:
    Key last_ = 0;
    soci::statement statement_;
};

/// The values decide.
bool IsOfCustomer(const std::string& text, const std::set<Key>& codes)
{
    return std::ranges::any_of(codes, [&](Key code) {
        return MayName(text, code) && ValueOf(ReadValues(text), CustomerColumn) == std::to_string(code);
    });
}

} // namespace

Key LastAuditLine(Database& database)
{
    return database.With<LastLine>([](LastLine& statement) { return statement.Run(); });
}

void VisitAudit(Database& database, Key behind, const LongWork& work,
                const std::function<void(const StoredAuditLine&)>& visit)
{
    constexpr int LinesAtOnce = 1000;
    const Key last = LastAuditLine(database);
    int lines = 0;
    SelectRowsBehind<StoredAuditLine>(database, behind, [&](const StoredAuditLine& line) {
        if (lines++ % LinesAtOnce == 0) {
            work.RequireGoingOn();
            work.Reach(std::min(line.codigo, last) - behind, last - behind);
        }
        visit(line);
    });
    work.Reach(last - behind, last - behind);
}

AuditedValues ReadValues(const std::string& text)
{
    AuditedValues values = AuditedValues::parse(utf8::WellFormed(text), nullptr, false);
    return values.is_object() ? values : AuditedValues::object();
}

std::string TextOf(const AuditedValues& value)
{
    if (value.is_null())
        return {};
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string ValueOf(const AuditedValues& values, std::string_view column)
{
    for (const auto& [name, value] : values.items()) {
        if (ColumnOfName(name) == column)
            return TextOf(value);
    }
    return {};
}

LinesOfPerson::LinesOfPerson(const Person& person, const Rows& rows) : person_(person)
{
    for (const Key number : rows.appointments)
        rows_[{AppointmentRow::Table, number}] = Likeness::Contact;
    for (const Key code : rows.animals)
        rows_[{AnimalRow::Table, code}] = Likeness::Contact;
    for (const Key code : rows.waiting)
        rows_[{WaitingRow::Table, code}] = Likeness::Contact;
}

Likeness LinesOfPerson::Of(const StoredAuditLine& line, const Nullable<std::string>& text)
{
    if (text.IsNull())
        return Likeness::None;
    if (line.tabela == CustomerRow::Table)
        return person_.codes.contains(line.chave) ? Likeness::Contact : Likeness::None;
    const std::optional<Likeness> told = ToldBy(line, text.value);
    if (!told)
        return Former(line);
    if (*told == Likeness::None)
        rows_.erase({line.tabela, line.chave});
    else
        rows_[{line.tabela, line.chave}] = *told;
    return *told;
}

std::optional<Likeness> LinesOfPerson::ToldBy(const StoredAuditLine& line, const std::string& text) const
{
    const bool isSimplified = line.tabela == AppointmentRow::Table && MayBeSimplified(text);
    if (!isSimplified && !MayNameSomebody(text))
        return std::nullopt;
    if (IsOfCustomer(text, person_.codes))
        return Likeness::Contact;
    if (!isSimplified)
        return Likeness::None;
    const AuditedValues values = ReadValues(text);
    return person_.identity.LikenessTo(ValueOf(values, "nome_do_cliente"),
                                       ValueOf(values, "canais_do_cliente"),
                                       ValueOf(values, "nome_do_animal"));
}

Likeness LinesOfPerson::Former(const StoredAuditLine& line) const
{
    const auto found = rows_.find({line.tabela, line.chave});
    return found == rows_.end() ? Likeness::None : found->second;
}

bool LinesOfPerson::IsAboutHis(const StoredAuditLine& line) const
{
    return (line.tabela == CustomerRow::Table && person_.codes.contains(line.chave)) || IsHis(Former(line));
}

} // namespace kova::family::privacy
