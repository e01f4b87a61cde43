#pragma once

#include "family/data/archive/archive_file.hpp"
#include "family/data/engine/nullable.hpp"

#include <memory>
#include <string>
#include <vector>

namespace kova::family::privacy {

/// What is written of a line of the audit.
struct AuditTexts {
    static constexpr const char* Table = "auditoria";
    Key codigo = 0;
    Nullable<std::string> antes, depois;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("antes", antes);
        visit("depois", depois);
    }
};

/// Gives the lines of the archive, which will have those texts, further links in the shop's chain, in the
/// shop's transaction that is open. Fails with soci::soci_error.
void LinkCleaned(Database& shop, Database& archive, const std::vector<AuditTexts>& lines);

/// Writes the texts into the archive, once the shop has kept the links: what is cut off between is found
/// again when the customer is made anonymous once more. Answers why they are not written, a sentence; else
/// empty.
std::string CleanArchive(ArchiveFile& archive, const std::vector<AuditTexts>& lines);

} // namespace kova::family::privacy
