#pragma once

#include "agenda/contracts/platform.hpp"

#include <functional>
#include <map>
#include <string>

namespace kova::scenario {

/// The settings file in memory, every access a line of the transcript. Names of sections and keys ignore
/// the case of ASCII letters.
class MemoryProfile : public Profile {
public:
    std::function<void(const std::string&)> line = [](const std::string&) {};

    void Put(const Text& section, const Text& key, const Text& value);
    /// The value on file; "" where there is none.
    Text ValueOf(const Text& section, const Text& key) const;
    /// The file that was last read or written.
    const Text& LastPath() const { return lastPath_; }

    Text Read(const Text& section, const Text& key, const Text& defaultValue, Integer size,
              const Text& path) const override;
    bool Write(const Text& section, const Text& key, const Text& value, const Text& path) override;

private:
    std::map<Text, Text> values_;
    mutable Text lastPath_;
};

} // namespace kova::scenario
