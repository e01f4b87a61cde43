#pragma once

#include "family/data/engine/long_work.hpp"
#include "family/data/engine/nullable.hpp"
#include "family/privacy/person.hpp"

#include <nlohmann/json.hpp>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace kova::family::privacy {

/// A line of the audit as it is stored, of a table that holds something about customers.
struct StoredAuditLine {
    static constexpr const char* Table = "auditoria";
    /// Written so that the lines are gone through in their order.
    static constexpr const char* Condition =
        "tabela || '' in ('cliente', 'canal_de_comunicacao', 'animal', 'agendamento', 'lista_de_espera')";
    Key codigo = 0;
    std::string momento, usuario, tabela;
    Key chave = 0;
    std::string operacao;
    Nullable<std::string> antes, depois;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("momento", momento);
        visit("usuario", usuario);
        visit("tabela", tabela);
        visit("chave", chave);
        visit("operacao", operacao);
        visit("antes", antes);
        visit("depois", depois);
    }
};

/// The number of the last line; 0 where there is none. Fails as Database::With.
Key LastAuditLine(Database& database);

/// Goes through the lines behind that number. Fails as Database::With, and with Interrupted where a stop is
/// asked for.
void VisitAudit(Database& database, Key behind, const LongWork& work,
                const std::function<void(const StoredAuditLine&)>& visit);

/// In the order in which they were written.
using AuditedValues = nlohmann::ordered_json;

/// The values of a row that a line keeps, under the names that they have in it (short_names.hpp); an empty
/// object where they cannot be read.
AuditedValues ReadValues(const std::string& text);
/// A value as a text; "" where it is Null. Numbers in digits.
std::string TextOf(const AuditedValues& value);
/// That of a column; "" where it is not there.
std::string ValueOf(const AuditedValues& values, std::string_view column);

/// Tells the lines of a person from those of others. To be asked in the order of the lines, before and then
/// after: a row of which a line does not say whose it is, since that has not changed, is whose it was before.
class LinesOfPerson {
public:
    /// The keys of the rows that are his today.
    struct Rows {
        std::set<Key> appointments, animals, waiting;
    };

    LinesOfPerson(const Person& person, const Rows& rows);

    /// What speaks for it that the values which a line keeps, before or after, are of the person's rows:
    /// Contact where they are of his registered ones.
    Likeness Of(const StoredAuditLine& line, const Nullable<std::string>& text);
    /// Whether the line is about a row of his, whatever values it keeps.
    bool IsAboutHis(const StoredAuditLine& line) const;

private:
    /// Nothing where the text does not say whose the row is.
    std::optional<Likeness> ToldBy(const StoredAuditLine& line, const std::string& text) const;
    Likeness Former(const StoredAuditLine& line) const;

    const Person& person_;
    /// By table and key: what spoke last for rows that were his.
    std::map<std::pair<std::string, Key>, Likeness> rows_;
};

} // namespace kova::family::privacy
