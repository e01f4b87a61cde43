#include "tools/agenda-data/commands.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace kova::family::test {

TEST(UncheckedServer, IsWarnedOf)
{
    const std::string address = "postgresql://carla@servidor.da.loja:1/loja?hostaddr=127.0.0.1";
    const auto complaint = [](const std::string& place) {
        std::ostringstream output, error;
        EXPECT_EQ(
            data::Run(std::vector<std::string>{"check", place}, {{2026, 11, 20}, {9, 0, 0}}, output, error),
            1);
        return error.str();
    };
    const std::string warning =
        "Aviso: A conexão com o servidor \"servidor.da.loja\" não é conferida por inteiro";
    EXPECT_NE(complaint(address + "&sslmode=require").find(warning), std::string::npos)
        << complaint(address + "&sslmode=require");
    EXPECT_EQ(complaint(address).find("Aviso:"), std::string::npos) << complaint(address);
}

} // namespace kova::family::test
