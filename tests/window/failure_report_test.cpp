// What a program says of the failure that ended it the last time.

#include "tests/window/shop.hpp"

#include "host/folders.hpp"
#include "host/session/session.hpp"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace kova::window_test {

namespace {

class AFailureOfTheLastTime : public Shop {
protected:
    int Run()
    {
        host::Options options;
        options.database = Database();
        options.size = host::WindowSize{1366, 768};
        return host::RunSession(options, host::Outlet::Window).status;
    }
};

} // namespace

TEST_F(AFailureOfTheLastTime, IsToldOnceBehindTheDay)
{
    std::filesystem::create_directories(host::FatalReportsFolder());
    std::ofstream(host::FatalReportsFolder() / "20261120-080000-000.novo.txt") << "SIGSEGV";
    receptionist->Answers("Escape").WaitsFor("frmLista").Leaves();
    EXPECT_EQ(Run(), EXIT_SUCCESS);
    ASSERT_EQ(receptionist->Boxes().size(), 1U);
    EXPECT_EQ(receptionist->Boxes()[0],
              "Da última vez o programa terminou por uma falha. O que estava gravado continua gravado.\n\nUm "
              "relato para quem cuida do sistema ficou em uma pasta deste computador; ele não tem dados da "
              "loja. Abrir essa pasta?");
    EXPECT_TRUE(std::filesystem::exists(host::FatalReportsFolder() / "20261120-080000-000.txt"));

    receptionist->WaitsFor("frmLista").Leaves();
    EXPECT_EQ(Run(), EXIT_SUCCESS);
    EXPECT_EQ(receptionist->Boxes().size(), 1U);
}

} // namespace kova::window_test
