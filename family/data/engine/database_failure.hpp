#pragma once

#include "agenda/contracts/failure.hpp"
#include "family/data/engine/secrets_in_text.hpp"

#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace kova::family {

/// The number under which every failure of the database reaches the error screen.
inline constexpr std::int32_t DatabaseFailureNumber = -2147467259;

/// What can be done about a failure of the database.
enum class Fault {
    /// Nothing; the same would fail again.
    Lasting,
    /// There is no connection to the server; another one may be had.
    ConnectionLost,
    /// Two transactions were in each other's way and this one has been undone; the same may succeed now.
    Collision,
    /// Somebody else kept what this one needed for too long.
    Locked,
    /// A full disk, or a server that has no room or no time for now.
    Shortage,
    /// The connection was lost during a commit: nobody can tell whether the write was kept.
    InDoubt,
};

/// Whether the same may succeed later although nobody changes it. Of a write that fails so, nothing remains.
bool IsPassing(Fault fault);

/// A failure of the database; the text is Portuguese, names the path, and says what to do. A password in it
/// is hidden.
class DatabaseFailure : public Failure {
public:
    /// A lasting one.
    explicit DatabaseFailure(const std::string& text) : DatabaseFailure(text, Fault::Lasting) { }
    /// `cause` is the part of the text that is for everybody: without the path and the engine's own words.
    DatabaseFailure(const std::string& text, Fault fault, const std::string& cause = {})
        : Failure(DatabaseFailureNumber, WithoutSecrets(text)), fault_(fault), cause_(WithoutSecrets(cause))
    {
    }

    Fault GetFault() const { return fault_; }
    /// What has happened and what to do, for everybody; the whole text where nothing shorter is known.
    const std::string& Cause() const { return cause_.empty() ? Description() : cause_; }

private:
    Fault fault_;
    std::string cause_;
};

/// What the database library, the file system or interrupted work reports, told by the state or the code that
/// came with it and never by its words.
DatabaseFailure TranslatedFailure(const std::string& path, const std::runtime_error& cause);

/// What a server reports under a state of five characters (SQLSTATE); `reported` is its detail.
DatabaseFailure ServerFailure(const std::string& path, std::string_view state, const std::string& reported);

/// What the file engine reports under a result code of its own; `reported` is its detail.
DatabaseFailure FileFailure(const std::string& path, int code, const std::string& reported);

/// Why a file cannot be made or written.
DatabaseFailure UnwritableFile(const std::string& path, const std::error_code& cause);

/// A connection that was lost before and could not be made again.
DatabaseFailure LostConnection(const std::string& path);

} // namespace kova::family
