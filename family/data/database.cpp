#include "family/data/database.hpp"

namespace kova::family {

Database::Database(const Dialect& dialect, const std::string& connection, std::string path)
    : dialect_(dialect), path_(std::move(path))
{
    try {
        session_.open(dialect.backend, connection);
        for (const std::string& setting : dialect.settings)
            session_ << setting;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(path_, cause);
    }
}

} // namespace kova::family
