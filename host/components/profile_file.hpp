#pragma once

#include "agenda/contracts/platform.hpp"

namespace kova::host {

/// Settings files on disk. Values are UTF-8 and are cut by characters. Names given here lose their outer
/// blanks only: a tab at an end of one finds nothing. A default loses the blanks at its end.
class ProfileFile : public Profile {
public:
    /// A size of 0 or below reads "".
    Text Read(const Text& section, const Text& key, const Text& defaultValue, Integer size,
              const Text& path) const override;
    /// Makes the file where it is missing, not its folder. The file is replaced in one step, so that a
    /// crash leaves the old content or the new one. False, with the file untouched, also for a name or a
    /// value with a line break or a NUL in it: the file could not hold it.
    bool Write(const Text& section, const Text& key, const Text& value, const Text& path) override;
};

} // namespace kova::host
