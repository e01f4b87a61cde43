#include "family/data/migrations/migrations.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion4(const Dialect&)
{
    return {
        // A desk whose connection broke while it was writing finds its mark here where the write was done.
        "create table gravacao (identificador text not null primary key, momento text not null)",
    };
}

} // namespace kova::family
