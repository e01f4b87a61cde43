#pragma once

#include "family/csv/line.hpp"
#include "family/data/engine/long_work.hpp"

namespace kova::family::csv {

/// What an import is doing.
enum class ImportStep {
    Checking,
    /// Others may have written since the first time.
    CheckingAgain,
    Copying,
    Writing,
    /// Lines that bring no code of their own.
    WritingNew,
};

/// Who follows an import, in whose thread it calls.
struct ImportWatch {
    /// Is told each thing that is wrong.
    Problems::Tell problem;
    /// Is told from time to time how far the step is, in lines of the file; a copy's in pages. May be empty.
    std::function<void(ImportStep step, long long done, long long total)> progress{};
    /// Asks the import to end: it fails then and writes nothing.
    std::stop_token stop{};

    void Reach(ImportStep step, long long done, long long total) const
    {
        if (progress)
            progress(step, done, total);
        RequireGoingOn();
    }
    /// Fails with Interrupted where the import is asked to end.
    void RequireGoingOn() const
    {
        if (stop.stop_requested())
            throw Interrupted();
    }
};

} // namespace kova::family::csv
