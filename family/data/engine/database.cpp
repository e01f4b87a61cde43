#include "family/data/engine/database.hpp"

#include "family/data/engine/server_connection.hpp"

#include <chrono>
#include <thread>

namespace kova::family {

namespace {

/// The waits before another attempt to connect, while the server cannot be reached.
constexpr std::chrono::milliseconds Waits[] = {std::chrono::milliseconds(50), std::chrono::milliseconds(150),
                                               std::chrono::milliseconds(400),
                                               std::chrono::milliseconds(900)};

/// An attempt that took as long as this has waited enough.
constexpr std::chrono::seconds LongAttempt(1);

} // namespace

Database::Database(const Dialect& dialect, std::string connection, std::string path)
    : dialect_(dialect), connection_(std::move(connection)), path_(std::move(path))
{
    Connect();
}

void Database::Connect()
{
    const auto start = std::chrono::steady_clock::now();
    try {
        session_.open(dialect_.backEnd(), connection_);
    } catch (const soci::soci_error& cause) {
        const bool soon = std::chrono::steady_clock::now() - start < LongAttempt;
        throw soon && dialect_.IsServer() ? RefusalOfServer(path_, connection_, cause)
                                          : TranslatedFailure(path_, cause);
    }
    try {
        for (const std::string& setting : dialect_.settings)
            session_ << setting;
    } catch (const soci::soci_error& cause) {
        session_.close();
        throw TranslatedFailure(path_, cause);
    }
    connected_ = true;
}

void Database::Reconnect()
{
    kept_.clear();
    connected_ = false;
    session_.close();
    for (const std::chrono::milliseconds wait : Waits) {
        const auto start = std::chrono::steady_clock::now();
        try {
            return Connect();
        } catch (const DatabaseFailure& failure) {
            const bool soon = std::chrono::steady_clock::now() - start < LongAttempt;
            if (failure.GetFault() != Fault::ConnectionLost || !soon)
                throw;
        }
        std::this_thread::sleep_for(wait);
    }
    Connect();
}

void Database::RequireConnection() const
{
    if (!connected_)
        throw LostConnection(path_);
}

bool Database::MayRunAgainAfter(const DatabaseFailure& failure) const
{
    return failure.GetFault() == Fault::ConnectionLost && !inTransaction_;
}

} // namespace kova::family
