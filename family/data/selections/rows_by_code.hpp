#pragma once

#include "family/data/rows/kept_rows.hpp"
#include "family/data/rows/rows.hpp"

#include <algorithm>
#include <array>
#include <span>

namespace kova::family {

/// The most rows that are fetched by their codes at once, with one statement.
inline constexpr std::size_t MostRowsAtOnce = 100;

/// A prepared selection of rows by their codes. `RowOf` has its code in `codigo`. The derived class takes the
/// Database.
template <template <class> class RowOf> class RowsByCode : public RowSelection<RowOf> {
public:
    /// Adds the rows with those codes, MostRowsAtOnce and at least one, in no particular order.
    void Run(std::span<const Key> codes, KeptRows<RowOf>& kept)
    {
        // The last one fills up what is left: a code that stands there twice finds nothing more.
        for (std::size_t at = 0; at < codes_.size(); ++at)
            codes_[at] = codes[std::min(at, codes.size() - 1)];
        this->Fetch(kept);
    }

protected:
    /// `selection` ends before its conditions; `code` is the column of the code.
    RowsByCode(Database& database, const std::string& selection, const std::string& code)
        : RowSelection<RowOf>(database)
    {
        std::string marks;
        for (std::size_t at = 0; at < codes_.size(); ++at) {
            const std::string name = "codigo" + std::to_string(at);
            this->Use(codes_[at], name.c_str());
            marks += (at == 0 ? ":" : ", :") + name;
        }
        this->Prepare(selection + " where " + code + " in (" + marks + ")");
    }

private:
    std::array<Key, MostRowsAtOnce> codes_{};
};

/// Fetches with `Statement`, a RowsByCode, and adds one row for each of the codes, in their order; `gone`
/// makes the row of a code that nobody has any more. Fails as Database::With.
template <class Statement, template <class> class RowOf, class Gone>
void FetchInOrder(Database& database, std::span<const Key> codes, KeptRows<RowOf>& kept, Gone gone)
{
    using Row = RowOf<std::string_view>;
    const std::size_t before = kept.rows.size();
    database.With<Statement>([&](Statement& statement) {
        // What a lost connection has brought so far comes again.
        kept.rows.resize(before);
        statement.Run(codes, kept);
    });
    std::vector<Row> found(kept.rows.begin() + static_cast<std::ptrdiff_t>(before), kept.rows.end());
    std::ranges::sort(found, {}, &Row::codigo);
    kept.rows.resize(before);
    for (const Key code : codes) {
        const auto row = std::ranges::lower_bound(found, code, {}, &Row::codigo);
        const bool isThere = row != found.end() && row->codigo == code;
        kept.rows.push_back(isThere ? *row : gone(code));
    }
}

} // namespace kova::family
