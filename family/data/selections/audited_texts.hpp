#pragma once

#include "family/data/selections/folded_texts.hpp"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kova::family {

/// Texts that follow a few changes without being read anew: the audit tells which rows were written, and
/// where it names as many writes as were counted those rows alone are read. Whatever was written past the
/// audit, or is too much to look for, has all read.
class AuditedTexts : public FoldedTexts {
protected:
    /// `selection` gives key and text of every row; for each of the `tables`, the first of which has the keys
    /// themselves, an element of `ofRow` ends it so that it gives those that follow from the row of the table
    /// with the key ":chave".
    AuditedTexts(Database& database, std::vector<std::string> tables, const std::string& selection,
                 const std::vector<std::string>& ofRow, Order order);

private:
    /// The newest line of the audit that counts as read.
    void BeginReading() override;
    bool TakeChanges(TextRows& rows, long long counted) override;
    /// Reads on in the audit. False where there is more of it than a few changes leave.
    bool FindWrites();

    std::vector<std::string> tables_;
    long long line_ = 0, lastLine_ = 0;
    std::string table_;
    Key written_ = 0;
    /// Tables by their places, and keys in them, once for each write.
    std::vector<std::pair<std::size_t, Key>> writes_;
    TextOfRow changed_;
    soci::statement readLastLine_, readLines_;
    std::vector<std::unique_ptr<soci::statement>> readRow_;
};

} // namespace kova::family
