#pragma once

#include "family/data/audit/audit_chain.hpp"

#include <map>
#include <optional>

namespace kova::family {

/// A link with the line that it holds; nothing where that was taken out.
struct StoredLink {
    LinkRow link;
    std::optional<ChainedLine> line;
};

/// What is wrong at a place of the chain.
struct ChainFault {
    enum class What {
        /// The line does not go with its link, behind the one before it.
        Changed,
        /// The line of a link is gone.
        LineGone,
        /// Links before the one there are gone, `links` of them, with or without their lines.
        LinksGone,
    };

    What what = What::Changed;
    Key order = 0, line = 0, links = 0;
};

/// Looks at the links, one after another in their order, whether each goes with its line and the link before
/// it.
class ChainWalk {
public:
    void Take(const StoredLink& stored);
    /// A link whose line lies elsewhere, rightly.
    void TakeWithoutLine(const LinkRow& link);
    /// The chain begins behind that one, rightly.
    void BeginBehind(const LinkRow& link) { former_ = link; }
    /// A link that stands in two places, and not alike.
    void TakeOther(const LinkRow& link) { Keep({ChainFault::What::Changed, link.ordem, link.codigoDaLinha}); }

    /// To be asked at the end.
    std::optional<ChainFault> First() const;
    long long Faults() const;

private:
    /// A line that does not go with one of its links.
    struct Doubt {
        Key order = 0;
        /// It goes with a later one.
        bool isLinkedAnew = false;
    };

    /// A place at which nothing else is wrong so far.
    void TakeLine(const LinkRow& link, const ChainedLine& line);
    void Keep(const ChainFault& fault);
    /// The line of an anonymisation says which lines before it were changed rightly.
    void Excuse(const ChainedLine& line);

    LinkRow former_;
    std::optional<ChainFault> first_;
    long long faults_ = 0;
    /// By the codes of the lines.
    std::map<Key, Doubt> doubts_;
};

} // namespace kova::family
