#include "family/data/write_transaction.hpp"

namespace kova::family {

WriteTransaction::WriteTransaction(Database& database) : database_(database)
{
    try {
        database_.Session() << database_.GetDialect().beginOfWrite;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database_.Path(), cause);
    }
}

WriteTransaction::~WriteTransaction()
{
    if (!open_)
        return;
    try {
        database_.Session().rollback();
    } catch (const soci::soci_error&) {
        // On some failures, a full disk among them, the engine has already undone everything itself.
        return;
    }
}

void WriteTransaction::Commit()
{
    try {
        database_.Session().commit();
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database_.Path(), cause);
    }
    open_ = false;
}

} // namespace kova::family
