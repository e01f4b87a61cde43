#include "family/privacy/audited_values.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/select_rows.hpp"

#include <algorithm>

namespace kova::family::privacy {

namespace {

constexpr std::string_view CustomerColumn = "\"codigo_do_cliente\":";
/// Stands in the values of an appointment without a registered customer.
constexpr std::string_view Simplified = "\"tipo_do_agendamento\":1";

/// Looked for in the text itself: most lines are of other customers, and reading their values takes much
/// longer. A code that begins with this one is named, too.
bool MayName(std::string_view text, Key code)
{
    return text.find(std::string(CustomerColumn) + std::to_string(code)) != std::string_view::npos;
}

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
        return MayName(text, code) && ValueOf(ReadValues(text), "codigo_do_cliente") == std::to_string(code);
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

std::string ValueOf(const AuditedValues& values, const char* column)
{
    const auto found = values.find(column);
    if (found == values.end() || found->is_null())
        return {};
    return found->is_string() ? found->get<std::string>() : found->dump();
}

LinesOfPerson::LinesOfPerson(const Person& person, const std::set<Key>& appointments,
                             const std::set<Key>& animals)
    : person_(person)
{
    for (const Key number : appointments)
        rows_[{AppointmentRow::Table, number}] = Likeness::Contact;
    for (const Key code : animals)
        rows_[{AnimalRow::Table, code}] = Likeness::Contact;
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
    const bool isSimplified =
        line.tabela == AppointmentRow::Table && text.find(Simplified) != std::string::npos;
    if (!isSimplified && text.find(CustomerColumn) == std::string::npos)
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
