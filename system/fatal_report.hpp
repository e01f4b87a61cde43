#pragma once

#include <filesystem>
#include <string>

namespace kova::system {

/// What is written when a fault ends this process: an access to memory that is not its own, an exception that
/// nobody catches, a call of abort. From then on the process ends as it would have.
struct FatalReport {
    /// Made when it is needed, for this user alone where its folder does not say for whom; the folder has to
    /// be there.
    std::filesystem::path file;
    /// Stands above the kind of fault and the calls that led to it, which name functions and places of the
    /// program, never what it worked on.
    std::string heading;
};

/// Holds for the rest of the process; a later one takes the place of a former one. Nothing is written where
/// something watches the process from within already.
void WriteOnFatalFailure(const FatalReport& report);

} // namespace kova::system
