#include "system/user_folders.hpp"
#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include <string>

namespace kova::data::test {

namespace {

using TheHelp = ImportTest;

} // namespace

TEST_F(TheHelp, NamesTheFileOfPasswordsAsThisSystemCallsIt)
{
    EXPECT_EQ(Run({"--help"}), 0);
    const std::string named =
        "senhas (" + std::string(system::ShownPasswordsFile()) + "), nunca no endereço.\n";
    EXPECT_NE(Output().find(named), std::string::npos) << Output();
}

} // namespace kova::data::test
