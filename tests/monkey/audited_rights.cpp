#include "tests/monkey/audited_rights.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audit_lines.hpp"
#include "family/data/sources/data_source.hpp"

#include <cstdlib>
#include <map>
#include <set>

namespace kova::monkey {

namespace {

using family::AuditedColumns;
using family::Key;
namespace operation = family::audit_operation;

struct Line {
    std::string code, user, table, operation;
    Key key = 0, author = 0;
    AuditedColumns before, after;
};

using Rights = std::set<std::string>;

std::string TextIn(const AuditedColumns& columns, const char* name)
{
    const auto found = columns.find(name);
    return found == columns.end() ? std::string() : found->second.value_or("");
}

Key KeyIn(const AuditedColumns& columns, const char* name)
{
    return std::strtoll(TextIn(columns, name).c_str(), nullptr, 10);
}

bool Has(const Line& line, const char* column)
{
    return line.before.contains(column) || line.after.contains(column);
}

Rights OfAppointment(const Line& line)
{
    if (line.operation == operation::Removal)
        return {"agendamento.excluir"};
    if (line.operation != operation::Change)
        return {"agendamento.incluir"};
    const std::string from = TextIn(line.before, "situacao"), to = TextIn(line.after, "situacao");
    Rights needed;
    for (const auto& [column, value] : line.after) {
        if (column != "situacao" && column != "versao")
            needed.insert("agendamento.alterar");
    }
    if (!to.empty())
        needed.insert(to == "3" ? "agendamento.cancelar" : "agendamento.alterar");
    if (from == "4" && to != "4")
        needed.insert("agendamento.desfazer_pre_venda");
    return needed;
}

bool IsOwnSecret(const Line& line)
{
    return line.table == "usuario" && line.operation == operation::Change && line.key == line.author
        && (Has(line, "senha") || Has(line, "pin"));
}

Rights OfRegister(const Line& line)
{
    Rights needed{"cadastro.alterar"};
    if (line.operation == operation::Change
        && (Has(line, "preco_em_centavos") || Has(line, "custo_em_centavos")))
        needed.insert("cadastro.precos");
    return needed;
}

/// Whoever books takes in hand, books and puts back; who only changes what is waited for, or takes somebody
/// off the list, does not.
Rights OfWaiting(const Line& line)
{
    if (line.operation != operation::Change)
        return {"agendamento.incluir"};
    const std::string to = TextIn(line.after, "situacao");
    return {to.empty() || to == "4" ? "agendamento.alterar" : "agendamento.incluir"};
}

/// What follows from another write is told by that one's line.
Rights NeededFor(const Line& line)
{
    static const std::set<std::string> acts{operation::SigningIn, operation::SigningInRefused,
                                            operation::Denial, operation::Print};
    if (acts.contains(line.operation) || line.table == "pre_venda" || line.table == "pacote"
        || line.table == "espera_servico" || line.table == "espera_funcionario" || IsOwnSecret(line))
        return {};
    if (line.operation == operation::Export)
        return {"dados.exportar"};
    if (line.operation == operation::Anonymisation)
        return {"dados.anonimizar"};
    if (line.table == "agendamento")
        return OfAppointment(line);
    if (line.table == "lista_de_espera")
        return OfWaiting(line);
    if (line.table == "usuario" || line.table == "papel" || line.table == "papel_direito")
        return {"usuarios.administrar"};
    return OfRegister(line);
}

/// Who may do what, as the lines so far tell it.
class Shop {
public:
    std::string Judge(const Line& line) const
    {
        constexpr Key Owner = 0;
        const bool isOwner = line.author == Owner && line.user == "0 - Dono";
        if (isOwner || !HasUsers())
            return {};
        for (const std::string& right : NeededFor(line)) {
            if (!May(line.author, right))
                return line.user + " has no right to " + right + ", and there is line " + line.code + ": "
                    + line.operation + " of " + line.table + " " + std::to_string(line.key);
        }
        return {};
    }

    void Follow(const Line& line)
    {
        const bool isGone = line.operation == operation::Removal;
        if (line.table == "papel_direito") {
            const AuditedColumns& told = isGone ? line.before : line.after;
            Rights& rights = rights_[KeyIn(told, "codigo_do_papel")];
            if (isGone)
                rights.erase(TextIn(told, "direito"));
            else
                rights.insert(TextIn(told, "direito"));
        } else if (line.table == "papel" && isGone) {
            rights_.erase(line.key);
        } else if (line.table == "usuario" && isGone) {
            users_.erase(line.key);
        } else if (line.table == "usuario" && line.operation != operation::Denial) {
            User& user = users_[line.key];
            if (line.after.contains("codigo_do_papel"))
                user.role = KeyIn(line.after, "codigo_do_papel");
            if (line.after.contains("situacao"))
                user.isActive = TextIn(line.after, "situacao") == "1";
        }
    }

private:
    struct User {
        Key role = 0;
        bool isActive = true;
        bool Enters() const { return role != 0 && isActive; }
    };

    bool HasUsers() const
    {
        for (const auto& [code, user] : users_) {
            if (user.Enters())
                return true;
        }
        return false;
    }

    bool May(Key author, const std::string& right) const
    {
        const auto user = users_.find(author);
        if (user == users_.end() || !user->second.Enters())
            return false;
        const auto rights = rights_.find(user->second.role);
        return rights != rights_.end() && rights->second.contains(right);
    }

    std::map<Key, User> users_;
    std::map<Key, Rights> rights_{
        {1,
         {"agendamento.incluir", "agendamento.alterar", "agendamento.cancelar", "agendamento.excluir",
          "agendamento.desfazer_pre_venda", "cadastro.alterar", "cadastro.precos", "dados.exportar",
          "dados.anonimizar", "historico.ver", "usuarios.administrar"}},
        {2,
         {"agendamento.incluir", "agendamento.alterar", "agendamento.cancelar", "agendamento.excluir",
          "agendamento.desfazer_pre_venda", "cadastro.alterar", "cadastro.precos", "dados.exportar",
          "historico.ver"}},
        {3, {"agendamento.incluir", "agendamento.alterar", "agendamento.cancelar", "cadastro.alterar"}}};
};

} // namespace

std::string WriteWithoutRight(const std::string& database)
{
    const auto data = family::OpenForReading(database);
    Line line;
    std::string key;
    family::Nullable<std::string> before, after;
    soci::statement lines =
        (data->Session().prepare
             << "select cast(codigo as text), usuario, tabela, cast(chave as text), operacao,"
                " antes, depois from auditoria order by codigo",
         soci::into(line.code), soci::into(line.user), soci::into(line.table), soci::into(key),
         soci::into(line.operation), soci::into(before.value, before.state),
         soci::into(after.value, after.state));
    lines.execute();
    Shop shop;
    while (lines.fetch()) {
        line.key = std::strtoll(key.c_str(), nullptr, 10);
        line.author = std::strtoll(line.user.c_str(), nullptr, 10);
        line.before = family::ReadAuditedColumns(before);
        line.after = family::ReadAuditedColumns(after);
        if (std::string found = shop.Judge(line); !found.empty())
            return found;
        shop.Follow(line);
    }
    return {};
}

} // namespace kova::monkey
