#include "tools/scenario/memory_profile.hpp"

#include "agenda/contracts/text.hpp"
#include "tools/scenario/value_text.hpp"

#include <algorithm>

namespace kova::scenario {

namespace {

Text NameOf(const Text& section, const Text& key)
{
    Text name = section + "\n" + key;
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return name;
}

} // namespace

void MemoryProfile::Put(const Text& section, const Text& key, const Text& value)
{
    values_[NameOf(section, key)] = value;
}

Text MemoryProfile::ValueOf(const Text& section, const Text& key) const
{
    const auto found = values_.find(NameOf(section, key));
    return found == values_.end() ? Text() : found->second;
}

Text MemoryProfile::Read(const Text& section, const Text& key, const Text& defaultValue, Integer size,
                         const Text& path) const
{
    lastPath_ = path;
    const auto found = values_.find(NameOf(section, key));
    const Text whole = found == values_.end() ? defaultValue : found->second;
    const Text value = size < 1 ? Text() : Left(whole, static_cast<std::size_t>(size) - 1);
    line("settings read " + Quoted(section) + " " + Quoted(key) + " -> " + Quoted(value));
    return value;
}

bool MemoryProfile::Write(const Text& section, const Text& key, const Text& value, const Text& path)
{
    lastPath_ = path;
    Put(section, key, value);
    line("settings write " + Quoted(section) + " " + Quoted(key) + " " + Quoted(value));
    return true;
}

} // namespace kova::scenario
