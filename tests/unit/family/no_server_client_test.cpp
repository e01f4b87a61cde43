#include "tools/agenda-data/commands.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace kova::family::test {

// Where nothing for servers is built.
TEST(NoServerClient, IsToldWhereAServerIsAskedFor)
{
    std::ostringstream output, error;
    EXPECT_EQ(data::Run(std::vector<std::string>{"check", "postgresql://servidor/loja"},
                        {{2026, 11, 20}, {9, 0, 0}}, output, error),
              1);
    EXPECT_NE(error.str().find("Esta instalação não tem a parte que fala com servidores: falta o arquivo \""),
              std::string::npos)
        << error.str();
}

} // namespace kova::family::test
