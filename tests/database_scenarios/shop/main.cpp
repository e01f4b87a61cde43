// known-shop SOURCE: makes the shop of the database scripts there, to try a script or to lay down its
// transcript.

#include "tests/database_scenarios/shop/known_shop.hpp"

#include <cstdio>
#include <cstdlib>
#include <exception>

int main(int count, char** words)
{
    if (count != 2) {
        std::fprintf(stderr, "known-shop SOURCE\n");
        return EXIT_FAILURE;
    }
    try {
        kova::database_scenarios::MakeKnownShop(words[1]);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
