#include "tests/conformance/business/family_engine.hpp"

#include "family/data/sources/data_source.hpp"
#include "host/components/component_service.hpp"
#include "host/components/server_host.hpp"
#include "tests/conformance/business/shop_database.hpp"
#include "tests/support/postgres_server.hpp"
#include "tests/unit/host/components/host_fixture.hpp"

namespace kova::conformance {

namespace {

/// A database of the family with the shop in it. Another engine of the family is another one of these.
class ShopDatabase {
public:
    virtual ~ShopDatabase() = default;
    /// What the host hands to the components.
    virtual std::string DataSource() const = 0;
    /// A connection beside the one that the components use.
    virtual std::shared_ptr<family::Database> Connect() const = 0;
};

class SqliteFile : public ShopDatabase {
public:
    SqliteFile() { family::CreateDatabase(DataSource(), WriteShop); }

    std::string DataSource() const override { return folder_.File("loja.db"); }
    std::shared_ptr<family::Database> Connect() const override { return family::OpenDatabase(DataSource()); }

private:
    test::TemporaryFolder folder_;
};

class PostgresqlDatabase : public ShopDatabase {
public:
    std::string DataSource() const override { return database_.Address(); }
    std::shared_ptr<family::Database> Connect() const override { return family::OpenDatabase(DataSource()); }

private:
    static std::string Model()
    {
        return test::PostgresServer::Shared().Model(
            "shop", [](const std::string& address) { family::CreateDatabase(address, WriteShop); });
    }

    test::PostgresDatabase database_{test::PostgresServer::Shared(), Model()};
};

/// The moment of every write.
class DeskPlatform : public test::FolderPlatform, private kova::Clock {
public:
    kova::Clock& Clock() override { return *this; }

private:
    DateTime Now() const override { return RequireDateTime(MomentOfWrites); }
    Double Timer() const override { return 0; }
};

class FamilyEngine : public Engine {
public:
    explicit FamilyEngine(std::unique_ptr<ShopDatabase> database) : database_(std::move(database))
    {
        server_.RegisterLibrary(FAMILY_LIBRARY);
    }

    ComponentService& Components() override { return components_; }

    void BreakData() override { Rename("", "_escondido"); }
    void MendData() override { Rename("_escondido", ""); }

    void RefuseToCreate(const std::string& className) override
    {
        ClassRegistration registration = registry_.Find(className).value();
        registration.libraryPath = folder_.File("libNada.so");
        registry_.Write(registration);
    }

    bool Unload() override { return server_.Libraries().Unload(FAMILY_LIBRARY); }

private:
    /// Each selection needs one of these tables.
    void Rename(const std::string& oldEnding, const std::string& newEnding)
    {
        const auto database = database_->Connect();
        for (const std::string table : {"funcionario", "tipo_de_servico", "empresa", "especie", "raca",
                                        "servico", "cliente", "animal", "feriado"})
            database->Session() << "alter table " + table + oldEnding + " rename to " + table + newEnding;
    }

    std::unique_ptr<ShopDatabase> database_;
    test::TemporaryFolder folder_;
    DeskPlatform platform_;
    host::Registry registry_{folder_.File("registro.txt")};
    host::RegistryServerHost server_{registry_, platform_, database_->DataSource()};
    host::RegisteredComponents components_{registry_, server_.Libraries()};
};

} // namespace

std::unique_ptr<Engine> MakeSqliteEngine()
{
    return std::make_unique<FamilyEngine>(std::make_unique<SqliteFile>());
}

std::unique_ptr<Engine> MakePostgresqlEngine()
{
    return std::make_unique<FamilyEngine>(std::make_unique<PostgresqlDatabase>());
}

} // namespace kova::conformance
