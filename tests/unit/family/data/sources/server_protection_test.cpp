// A server that is reached by the network: the connection is protected by TLS, the user by a password.

#include "family/data/engine/database.hpp"
#include "family/data/sources/data_source.hpp"
#include "tests/support/environment_variable.hpp"
#include "tests/support/postgres_server.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include <memory>

namespace kova::family::test {

namespace {

using kova::test::EnvironmentVariable;

/// Makes a key, and a certificate of its own for "localhost", with the usual tool.
void MakeCertificate(const std::string& certificate, const std::string& key)
{
    const std::string command = "openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes"
                                " -subj /CN=localhost -addext subjectAltName=DNS:localhost -days 2"
                                " -keyout '"
        + key + "' -out '" + certificate + "' 2>/dev/null";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("the package openssl is missing");
}

} // namespace

/// The known shop on a server of the suite's own, whose user "carla" has the password "segredo".
class PostgresqlProtection : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        folder = std::make_unique<TemporaryFolder>();
        MakeCertificate(*folder / "servidor.crt", *folder / "servidor.key");
        MakeCertificate(*folder / "outro.crt", *folder / "outro.key");
        server = std::make_unique<kova::test::PostgresServer>();
        server->AnswerOnPort(*folder / "servidor.crt", *folder / "servidor.key");
        database = server->MakeDatabase();
        server->Run("postgres",
                    "create role carla login password 'segredo'"
                    " in role pg_read_all_data, pg_write_all_data");
        MakeShop(server->AddressOf(database));
    }
    static void TearDownTestSuite()
    {
        server.reset();
        folder.reset();
    }

    PostgresqlProtection() { WritePassword("segredo"); }

    static void WritePassword(const std::string& password)
    {
        std::filesystem::remove(Passwords());
        WriteContent(Passwords(), "*:*:*:carla:" + password + "\n");
        std::filesystem::permissions(Passwords(), std::filesystem::perms::owner_read);
    }
    static std::string Passwords() { return *folder / "senhas"; }
    static std::string Port() { return std::to_string(server->Port()); }
    static std::string AddressAt(const std::string& host, const std::string& mode)
    {
        return "postgresql://carla@" + host + ":" + Port() + "/" + database + "?sslmode=" + mode;
    }
    static std::string Trusting(const std::string& certificate)
    {
        return "verify-full&sslrootcert=" + (*folder / certificate);
    }

    /// Whether the server holds this connection for a protected one.
    static std::string IsProtected(Database& database)
    {
        std::string answer;
        database.Session() << "select ssl::text from pg_stat_ssl where pid = pg_backend_pid()",
            soci::into(answer);
        return answer;
    }

    static void ExpectRefused(const std::string& address, const std::string& words)
    {
        const std::string refusal = CheckDataSource(address).value_or("nothing");
        EXPECT_NE(refusal.find(words), std::string::npos) << refusal;
        EXPECT_EQ(refusal.find("segredo"), std::string::npos) << refusal;
    }

    inline static std::unique_ptr<TemporaryFolder> folder;
    inline static std::unique_ptr<kova::test::PostgresServer> server;
    inline static std::string database;

    EnvironmentVariable passwords_{"PGPASSFILE", Passwords()};
};

TEST_F(PostgresqlProtection, ByACertificateAndAPasswordFileOpensTheShop)
{
    const std::string address = AddressAt("localhost", Trusting("servidor.crt"));
    EXPECT_EQ(CheckDataSource(address), std::nullopt);
    EXPECT_EQ(IsProtected(*OpenDatabase(address)), "true");
}

TEST_F(PostgresqlProtection, IsToldInAServiceFile)
{
    WriteContent(*folder / "servicos",
                 "[loja]\nhost=localhost\nport=" + Port() + "\nuser=carla\ndbname=" + database
                     + "\nsslmode=verify-full\nsslrootcert=" + (*folder / "servidor.crt") + "\n");
    const EnvironmentVariable services("PGSERVICEFILE", *folder / "servicos");
    EXPECT_EQ(IsProtected(*OpenDatabase("postgresql:///?service=loja")), "true");
}

TEST_F(PostgresqlProtection, ByACertificateThatNobodyTrustsIsRefused)
{
    ExpectRefused(AddressAt("localhost", Trusting("outro.crt")), "A conexão protegida (TLS)");
}

TEST_F(PostgresqlProtection, ByTheCertificateOfAnotherNameIsRefused)
{
    ExpectRefused(AddressAt("127.0.0.1", Trusting("servidor.crt")), "A conexão protegida (TLS)");
}

TEST_F(PostgresqlProtection, WithoutTheFileOfTheTrustedCertificateIsRefused)
{
    ExpectRefused(AddressAt("localhost", Trusting("nenhum.crt")), "A conexão protegida (TLS)");
}

TEST_F(PostgresqlProtection, CannotBeLeftOutWhereTheServerRequiresIt)
{
    ExpectRefused(AddressAt("localhost", "disable"), "só com uma conexão protegida (TLS)");
}

TEST_F(PostgresqlProtection, WithAWrongPasswordIsRefusedWithoutRepeatingIt)
{
    WritePassword("segredo errado");
    ExpectRefused(AddressAt("localhost", Trusting("servidor.crt")), "não aceitou o usuário ou a senha");
}

TEST_F(PostgresqlProtection, WithoutAPasswordSaysWhereToKeepIt)
{
    std::filesystem::remove(Passwords());
    ExpectRefused(AddressAt("localhost", Trusting("servidor.crt")), "O servidor pede uma senha");
}

} // namespace kova::family::test
