#include "tests/window/shop.hpp"

#include "host/session/session.hpp"
#include "tests/support/qt_application.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>

#include <cstdlib>

namespace kova::window_test {

namespace {

/// A pause of a second takes a tenth of one.
constexpr double Pace = 10;

void MakeDemonstration(const std::string& dataSource)
{
    const std::string make =
        std::string(AGENDA_DATA) + " demo '" + dataSource + "' --date 20/11/2026 >/dev/null";
    if (std::system(make.c_str()) != 0)
        throw std::runtime_error("the demonstration shop was not made");
}

} // namespace

Place UsualPlace() { return std::getenv("KOVARIS_TEST_SERVER") != nullptr ? Place::Server : Place::File; }

Shop::Shop(Place place)
{
    std::string pattern = (std::filesystem::temp_directory_path() / "salão-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    setenv("HOME", folder_.c_str(), 1);
    std::filesystem::create_directories(Documents());
    setenv("XDG_DATA_HOME", (folder_ / "dados").c_str(), 1);
    setenv("XDG_CONFIG_HOME", (folder_ / "ajustes").c_str(), 1);
    if (place == Place::Server) {
        test::PostgresServer& server = test::PostgresServer::Shared();
        onServer_.emplace(server, server.Model("demonstration", MakeDemonstration));
    } else {
        MakeDemonstration(File());
    }
    test::NeedApplication();
    QApplication::setQuitOnLastWindowClosed(true);
    qt::ApplyLook(*qApp);
    receptionist = new Receptionist;
}

Shop::~Shop()
{
    delete receptionist;
    std::filesystem::remove_all(folder_);
}

void Shop::Run()
{
    host::Options options;
    options.database = Database();
    options.user = "Antônia";
    options.date = Date{2026, 11, 20};
    options.time = TimeOfDay{9, 0, 0};
    options.pace = Pace;
    options.size = host::WindowSize{1366, 768};
    EXPECT_EQ(host::RunSession(options, host::Outlet::Window).status, EXIT_SUCCESS);
}

std::vector<std::string> Shop::Query(const std::string& statement) const
{
    return onServer_ ? onServer_->Run(statement) : test::SqliteFile(File()).Run(statement);
}

void Shop::Execute(const std::string& statement) const { Query(statement); }

std::unique_ptr<test::SqliteFile> Shop::OpenedByAnotherProgram() const
{
    return std::make_unique<test::SqliteFile>(File());
}

std::string Shop::Value(const std::string& statement) const
{
    const auto rows = Query(statement);
    return rows.empty() ? "" : rows.front();
}

} // namespace kova::window_test
