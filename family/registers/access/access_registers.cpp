#include "family/registers/access/access_registers.hpp"

#include "family/registers/access/access_columns.hpp"
#include "family/registers/description/register_of.hpp"
#include "family/users/administrators.hpp"
#include "family/users/role_rights.hpp"
#include "family/users/user_names.hpp"

namespace kova::family::registers {

namespace {

namespace column = access_columns;

constexpr const char* NobodyWouldAdminister = "ninguém mais poderia administrar os usuários desta loja; "
                                              "antes dê a outro usuário ativo, com senha, um papel"
                                              " que administra os usuários.";
constexpr const char* FirstHasTo =
    "o primeiro usuário com um papel precisa poder administrar os usuários e ter uma senha.";

/// A name that stands there already stays.
template <class Record> void CheckCharacters(const Record* stored, const Record& record, Refusals& refusals)
{
    if (HasUnseenCharacters(record.nome) && (!stored || stored->nome != record.nome))
        refusals.Add(column::Name, "só pode ter caracteres que se veem.");
}

class Users : public RegisterOf<AccountRecord> {
public:
    Users()
        : RegisterOf({"usuarios", "Usuários", "usuário"}, AccountColumns(),
                     WithRole(ShownColumns(AccountColumns(), {column::Name, column::Situation, "Código"})))
    {
    }

    Right RightToWrite() const override { return Right::AdministerUsers; }

    std::vector<Offer> Offers(Database& database, std::size_t field, const Texts&) const override
    {
        std::vector<Offer> offers;
        if (field != FieldNamed(Fields(), column::RoleOfUser))
            return offers;
        for (const RoleRow& row : AllOf<RoleRow>(database)) {
            const std::string code = std::to_string(row.codigo);
            offers.push_back({code, code + " - " + row.nome});
        }
        return offers;
    }

private:
    static std::vector<ShownColumn<AccountRecord>> WithRole(std::vector<ShownColumn<AccountRecord>> shown)
    {
        const ShownColumn<AccountRecord> role{{"Papel", false},
                                              [](const AccountRecord& record) { return record.roleName; }};
        shown.insert(shown.begin() + 1, role);
        return shown;
    }

    void Load(Database& database, std::span<AccountRecord> records) const override
    {
        std::unordered_map<Key, std::string> names;
        for (const RoleRow& row : AllOf<RoleRow>(database))
            names[row.codigo] = row.nome;
        for (AccountRecord& record : records)
            record.roleName = names[record.codigoDoPapel.ValueOr(0)];
    }

    void CheckRecord(const Among& among, const AccountRecord* stored, AccountRecord& record,
                     Refusals& refusals) const override
    {
        if (!record.codigoDoPapel.IsNull() && !FindByKey<RoleRow>(among, record.codigoDoPapel.value))
            refusals.Add(column::RoleOfUser, "não há papel com este código.");
        if (IsNameOfAnother(among, stored, record))
            refusals.Add(column::Name, "já há um usuário com este nome.");
        CheckCharacters(stored, record, refusals);
        CheckAdministrators(among, stored, record, refusals);
    }

    /// Names without a role may be there twice: nobody signs in with them.
    bool IsNameOfAnother(const Among& among, const AccountRecord* stored, const AccountRecord& record) const
    {
        return !record.codigoDoPapel.IsNull() && IsTaken(among, stored, record, [](const AccountRecord& row) {
            return row.codigoDoPapel.IsNull() ? std::string() : FoldUserName(row.nome);
        });
    }

    static void CheckAdministrators(Database& database, const AccountRecord* stored,
                                    const AccountRecord& record, Refusals& refusals)
    {
        const Key role = record.codigoDoPapel.ValueOr(0);
        if (HasAdministratorBesideUser(database, record.codigo)
            || (IsActive(record) && CouldAdminister(database, record.codigo, role)))
            return;
        if (!HasAdministrator(database))
            return role == 0 ? void() : refusals.Add(column::RoleOfUser, FirstHasTo);
        const bool isLeaving = stored && IsActive(*stored) && !IsActive(record);
        refusals.Add(isLeaving ? column::Situation : column::RoleOfUser, NobodyWouldAdminister);
    }

    std::string WhyKept(Database& database, const AccountRecord& record) const override
    {
        return HasAdministrator(database) && !HasAdministratorBesideUser(database, record.codigo)
            ? LastAdministrator
            : "";
    }
};

class Roles : public RegisterOf<RoleRecord> {
public:
    Roles()
        : RegisterOf({"papeis", "Papéis", "papel"}, RoleColumns(),
                     ShownColumns(RoleColumns(), {column::Name, "Código"}))
    {
    }

    Right RightToWrite() const override { return Right::AdministerUsers; }

private:
    void Load(Database& database, std::span<RoleRecord> records) const override
    {
        std::map<Key, Rights> rights = RightsOfRoles(database);
        for (RoleRecord& record : records)
            record.rights = rights[record.codigo];
    }

    void CheckRecord(const Among& among, const RoleRecord* stored, RoleRecord& record,
                     Refusals& refusals) const override
    {
        if (IsTaken(among, stored, record, [](const RoleRecord& row) { return FoldUserName(row.nome); }))
            refusals.Add(column::Name, "já há um papel com este nome.");
        CheckCharacters(stored, record, refusals);
        if (!record.rights.contains(Right::AdministerUsers) && HasAdministrator(among)
            && !HasAdministratorBesideRole(among, record.codigo))
            refusals.Add(InfoOf(Right::AdministerUsers).label, NobodyWouldAdminister);
    }

    bool IsUnchanged(const RoleRecord& stored, const RoleRecord& record) const override
    {
        return RegisterOf::IsUnchanged(stored, record) && stored.rights == record.rights;
    }

    Key WriteRecord(Database& database, const RoleRecord* stored, RoleRecord& record,
                    const Author& author) const override
    {
        const bool isSameRow = stored && RegisterOf::IsUnchanged(*stored, record);
        const Key key = isSameRow ? record.codigo : RegisterOf::WriteRecord(database, stored, record, author);
        WriteRightsOf(database, key, record.rights, author);
        return key;
    }

    const char* OwnTable() const override { return RoleRightRow::Table; }
    void RemoveOwn(Database& database, std::span<const Key> roles) const override
    {
        DeleteWhere(database, RoleRightRow::Table, "codigo_do_papel", roles);
    }
};

} // namespace

const Register& UserRegister() { return Only<Users>(); }
const Register& RoleRegister() { return Only<Roles>(); }

} // namespace kova::family::registers
