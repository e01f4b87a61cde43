// A server that is reached by the network: the connection is protected by TLS, the user by a password.

#include "family/data/engine/database.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/server_protection.hpp"
#include "family/data/sources/data_source.hpp"
#include "system/path_text.hpp"
#include "tests/support/environment_variable.hpp"
#include "tests/support/postgres_server.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include <memory>

namespace kova::family::test {

namespace {

using kova::test::EnvironmentVariable;

/// Makes a key, and a certificate of its own for that name, with the usual tool.
void MakeCertificate(const std::string& certificate, const std::string& key,
                     const std::string& name = "localhost")
{
    const std::string command = "openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes"
                                " -subj /CN="
        + name + " -addext subjectAltName=DNS:" + name + " -days 2 -keyout '" + key + "' -out '" + certificate
        + "' 2>/dev/null";
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
        std::filesystem::remove(system::PathOf(Passwords()));
        WriteContent(Passwords(), "*:*:*:carla:" + password + "\n");
        std::filesystem::permissions(system::PathOf(Passwords()), std::filesystem::perms::owner_read);
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
    ExpectRefused(
        AddressAt("localhost", Trusting("outro.crt")),
        "A conexão protegida (TLS) não foi possível. O certificado do servidor \"localhost\" não foi"
        " feito por uma autoridade conhecida deste computador, ou não vale mais. Peça");
}

TEST_F(PostgresqlProtection, ByTheCertificateOfAnotherNameIsRefused)
{
    ExpectRefused(AddressAt("127.0.0.1", Trusting("servidor.crt")),
                  "A conexão protegida (TLS) não foi possível. O certificado do servidor não é do nome"
                  " \"127.0.0.1\". Informe");
}

TEST_F(PostgresqlProtection, WithoutTheFileOfTheTrustedCertificateIsRefused)
{
    ExpectRefused(AddressAt("localhost", Trusting("nenhum.crt")),
                  "Falta o arquivo com o certificado da autoridade, \"" + (*folder / "nenhum.crt") + "\"");
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
    std::filesystem::remove(system::PathOf(Passwords()));
    ExpectRefused(AddressAt("localhost", Trusting("servidor.crt")), "O servidor pede uma senha");
}

/// A server that is taken for one of another computer by its name, and reached at an address of this one.
class ProtectionFromAfar : public PostgresqlProtection {
protected:
    static constexpr const char* Name = "servidor.da.loja";

    static std::string Address(const std::string& more = {})
    {
        return "postgresql://carla@" + std::string(Name) + ":" + Port() + "/" + database
            + "?hostaddr=127.0.0.1" + more;
    }
    /// The server goes on with a certificate for that name.
    static void SetUpTestSuite()
    {
        PostgresqlProtection::SetUpTestSuite();
        MakeCertificate(*folder / "loja.crt", *folder / "loja.key", Name);
        server->AnswerOnPort(*folder / "loja.crt", *folder / "loja.key");
    }
    static std::string TrustingByFile(const std::string& certificate)
    {
        return "&sslrootcert=" + (*folder / certificate);
    }

    /// No certificates of a user's own.
    EnvironmentVariable home_{"HOME", system::TextOf(folder->Path())};
};

TEST_F(ProtectionFromAfar, IsDemandedWithoutAWordOfItAndHadByAGoodCertificate)
{
    const std::string address = Address(TrustingByFile("loja.crt"));
    EXPECT_EQ(CheckDataSource(address), std::nullopt);
    EXPECT_EQ(IsProtected(*OpenDatabase(address)), "true");
    EXPECT_EQ(WarningOfAddress(address), std::nullopt);
}

TEST_F(ProtectionFromAfar, TakesTheCertificateOfTheUsersUsualPlace)
{
    std::filesystem::create_directories(system::PathOf(*folder / ".postgresql"));
    std::filesystem::copy_file(system::PathOf(*folder / "loja.crt"),
                               system::PathOf(*folder / ".postgresql/root.crt"));
    EXPECT_EQ(CheckDataSource(Address()), std::nullopt);
    std::filesystem::remove_all(*folder / ".postgresql");
}

TEST_F(ProtectionFromAfar, RefusesAnAuthorityThatTheComputerDoesNotKnow)
{
    const std::string unknown = "não foi feito por uma autoridade conhecida deste computador";
    ExpectRefused(Address(), unknown);
    ExpectRefused(Address(TrustingByFile("outro.crt")), unknown);
}

TEST_F(ProtectionFromAfar, RefusesTheCertificateOfAnotherName)
{
    const std::string address = "postgresql://carla@outro.nome:" + Port() + "/" + database
        + "?hostaddr=127.0.0.1" + TrustingByFile("loja.crt");
    ExpectRefused(address, "O certificado do servidor não é do nome \"outro.nome\"");
}

TEST_F(ProtectionFromAfar, IsNotMadeUpForByAVariableOfTheEnvironment)
{
    const EnvironmentVariable mode("PGSSLMODE", "require");
    ExpectRefused(Address(), "A conexão protegida (TLS) não foi possível");
}

TEST_F(ProtectionFromAfar, IsWeakerWhereTheOwnerSaysSoAndThatIsWarnedOf)
{
    const std::string address = Address("&sslmode=require");
    EXPECT_EQ(IsProtected(*OpenDatabase(address)), "true");
    const std::string warning = WarningOfAddress(address).value_or("nothing");
    EXPECT_NE(warning.find("\"servidor.da.loja\""), std::string::npos) << warning;
    EXPECT_NE(warning.find("sslmode=require"), std::string::npos) << warning;
}

TEST_F(ProtectionFromAfar, IsAsTheServiceFileSaysThatTheAddressNames)
{
    const std::string service = "[loja]\nhost=servidor.da.loja\nhostaddr=127.0.0.1\nport=" + Port()
        + "\nuser=carla\ndbname=" + database + "\n";
    const EnvironmentVariable services("PGSERVICEFILE", *folder / "servicos");
    const std::string address = "postgresql:///?service=loja";
    WriteContent(*folder / "servicos", service);
    ExpectRefused(address, "A conexão protegida (TLS) não foi possível");
    EXPECT_EQ(WarningOfAddress(address), std::nullopt);
    WriteContent(*folder / "servicos", service + "sslrootcert=" + (*folder / "loja.crt") + "\n");
    EXPECT_EQ(CheckDataSource(address), std::nullopt);
    WriteContent(*folder / "servicos", service + "sslmode=require\n");
    EXPECT_EQ(CheckDataSource(address), std::nullopt);
    EXPECT_TRUE(WarningOfAddress(address).has_value());
}

TEST_F(ProtectionFromAfar, IsNotLeftOutWhereTheServerHasNone)
{
    server->AnswerUnprotected();
    ExpectRefused(Address(TrustingByFile("loja.crt")),
                  "O servidor \"servidor.da.loja\" não oferece uma conexão protegida (TLS)");
    EXPECT_EQ(CheckDataSource(Address("&sslmode=disable")), std::nullopt);
    EXPECT_EQ(CheckDataSource("postgresql://carla@127.0.0.1:" + Port() + "/" + database), std::nullopt)
        << "on this computer nothing is demanded";
    server->AnswerOnPort(*folder / "loja.crt", *folder / "loja.key");
}

/// Hosts, and whether a connection to them leaves the computer.
class Hosts : public testing::TestWithParam<std::pair<const char*, bool>> { };

TEST_P(Hosts, LeaveTheComputerUnlessTheyAreLiterallyIt)
{
    const auto& [host, leaves] = GetParam();
    EXPECT_EQ(LeavesTheComputer({{"host", host}}), leaves) << host;
    EXPECT_EQ(LeavesTheComputer({{"host", "localhost"}, {"hostaddr", host}}), leaves) << host;
}

INSTANTIATE_TEST_SUITE_P(
    OfAddresses, Hosts,
    testing::Values(std::pair("", false), std::pair("/run/postgresql", false), std::pair("@abstract", false),
                    std::pair("localhost", false), std::pair("LocalHost", false),
                    std::pair("127.0.0.1", false), std::pair("127.255.3.4", false), std::pair("::1", false),
                    std::pair("localhost,127.0.0.1", false), std::pair("localhost,servidor", true),
                    std::pair("servidor", true), std::pair("localhost.loja", true),
                    std::pair("localhos", true), std::pair("127.0.0.1.loja.com", true),
                    std::pair("127.0.0", true), std::pair("127.0.0.256", true), std::pair("127.0.0.1.", true),
                    std::pair("127.0.0.x", true), std::pair("127..0.1", true), std::pair("128.0.0.1", true),
                    std::pair("192.168.0.5", true), std::pair("::2", true), std::pair(" localhost", true)));

TEST(ProtectionOfAddress, IsDemandedOfThoseThatLeaveTheComputerAlone)
{
    const auto says = [](const std::string& address, const char* words) {
        return ConnectionTo(address).find(words) != std::string::npos;
    };
    EXPECT_TRUE(says("postgresql://carla@servidor/loja", "sslmode=verify-full"));
    EXPECT_TRUE(says("postgresql://carla@servidor/loja", "gssencmode=disable"));
    EXPECT_FALSE(says("postgresql://carla@localhost/loja", "sslmode"));
    EXPECT_FALSE(says("postgresql:///loja", "sslmode"));
    EXPECT_FALSE(says("postgresql://carla@servidor/loja?sslmode=disable", "verify-full"));
    const EnvironmentVariable host("PGHOST", "servidor");
    EXPECT_TRUE(says("postgresql:///loja", "sslmode=verify-full"));
    EXPECT_EQ(WarningOfAddress("loja.db"), std::nullopt);
}

} // namespace kova::family::test
