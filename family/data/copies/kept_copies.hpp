#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kova::family {

/// The copies of one kind that lie beside a database file: "PATH", what marks the kind, the stamp of when the
/// copy was made, ".bak". Everything fails with a std::filesystem::filesystem_error.
class KeptCopies {
public:
    /// `isStamp` tells whether a text is such a stamp; stamps order as the moments that they stand for.
    KeptCopies(std::string path, std::string_view mark, bool (*isStamp)(std::string_view text))
        : path_(std::move(path)), mark_(mark), isStamp_(isStamp)
    {
    }

    std::string NameOf(std::string_view stamp) const;
    /// What attempts that were killed have left.
    void RemoveRests() const;
    /// All but the newest `most`. The one that was just made is one of these, also where a wrong clock once
    /// made later ones.
    void RemoveOld(const std::string& justMade, std::size_t most) const;
    /// Earlier versions made copies that everybody could read.
    void KeepFromOthers() const;

private:
    bool IsCopy(std::string_view name, std::string_view base) const;
    /// Their names, spelt as the path is, of files whose names end in `ending` besides.
    std::vector<std::string> Files(const std::string& ending) const;

    std::string path_;
    std::string_view mark_;
    bool (*isStamp_)(std::string_view text);
};

} // namespace kova::family
