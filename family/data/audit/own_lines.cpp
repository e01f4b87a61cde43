#include "family/data/audit/own_lines.hpp"

#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace kova::family {

namespace {

/// More than are written until the desk hears of them.
constexpr std::size_t Most = 10'000;

class OwnLines {
public:
    void Note(const std::string& source, OwnLine line)
    {
        const std::lock_guard lock(mutex_);
        std::map<Key, OwnLine>& lines = lines_[source];
        lines[line.code] = std::move(line);
        if (lines.size() > Most)
            lines.erase(lines.begin());
    }

    bool Has(const std::string& source, const OwnLine& line)
    {
        const std::lock_guard lock(mutex_);
        const std::map<Key, OwnLine>& lines = lines_[source];
        const auto found = lines.find(line.code);
        return found != lines.end() && found->second == line;
    }

private:
    std::mutex mutex_;
    /// By data source, since a program turns from one shop to another.
    std::map<std::string, std::map<Key, OwnLine>> lines_;
};

OwnLines& TheOwnLines()
{
    static OwnLines lines;
    return lines;
}

} // namespace

void NoteOwnLine(const std::string& source, OwnLine line) { TheOwnLines().Note(source, std::move(line)); }

bool IsOwnLine(const std::string& source, const OwnLine& line) { return TheOwnLines().Has(source, line); }

} // namespace kova::family
