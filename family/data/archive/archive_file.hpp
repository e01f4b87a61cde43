#pragma once

#include "family/data/audit/audit_chain.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/long_work.hpp"

#include <string>

namespace kova::family {

/// Whether a file that can be read is an archive, of whichever shop. Both fail with soci::soci_error.
bool IsArchive(Database& file);
/// Whether its lines are found as those of a shop; former programs have made archives without what that
/// takes.
bool IsSearchable(Database& archive);
/// The sentence that it is none.
std::string NoArchive(const std::string& path);

/// The file of an archive while it is written to. All of its members fail with soci::soci_error or a
/// DatabaseFailure.
class ArchiveFile {
public:
    /// Makes the file where it is not there, and what its lines are found by. Fails where it is another kind
    /// of file. What is taken out of it is overwritten.
    explicit ArchiveFile(std::string path);

    const std::string& Path() const { return path_; }
    /// Fails where the archive's last link is not one of the shop's.
    void RequireGoesOnIn(Database& shop);
    /// Takes from the shop the links up to that place that it has not yet, and their lines, in one
    /// transaction; they are on the disk afterwards.
    void TakeUntil(Key place, Database& shop, const LongWork& work);
    bool Has(const LinkRow& link);
    /// The codes of its lines up to that place, as ranges.
    std::string LinesUntil(Key place);
    /// The highest number of an import; 0 where it has none.
    Key LastImport();

    /// For whoever cleans lines.
    Database& Lines() { return database_; }
    /// Fails where nothing can be written.
    void RequireWritable();
    /// Takes away what the engine keeps of values that were overwritten.
    void DropRemains();

private:
    void Complete(bool isEmpty);
    Key LastPlace();

    std::string path_;
    Database database_;
};

} // namespace kova::family
