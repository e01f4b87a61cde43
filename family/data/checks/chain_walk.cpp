#include "family/data/checks/chain_walk.hpp"

#include "family/data/audit/audit_lines.hpp"
#include "family/data/audit/code_ranges.hpp"

#include <algorithm>

namespace kova::family {

namespace {

std::string CleanedLinesOf(const ChainedLine& line)
{
    const AuditedColumns told = ReadAuditedColumns(line.depois);
    const auto found = told.find(CleanedLinesColumn);
    return found == told.end() ? std::string() : found->second.value_or("");
}

} // namespace

void ChainWalk::Take(const StoredLink& stored)
{
    const LinkRow& link = stored.link;
    if (const Key gone = link.ordem - former_.ordem - 1; gone != 0)
        Keep({ChainFault::What::LinksGone, link.ordem, link.codigoDaLinha, gone});
    else if (stored.line)
        TakeLine(link, *stored.line);
    if (!stored.line)
        Keep({ChainFault::What::LineGone, link.ordem, link.codigoDaLinha});
    former_ = link;
}

void ChainWalk::TakeWithoutLine(const LinkRow& link)
{
    if (const Key gone = link.ordem - former_.ordem - 1; gone != 0)
        Keep({ChainFault::What::LinksGone, link.ordem, link.codigoDaLinha, gone});
    former_ = link;
}

void ChainWalk::TakeLine(const LinkRow& link, const ChainedLine& line)
{
    const auto doubt = doubts_.find(line.codigo);
    if (!IsLinkOf(link.elo, former_.elo, link.sal, line)) {
        if (doubt == doubts_.end())
            doubts_[line.codigo] = {link.ordem};
        else
            doubt->second.isLinkedAnew = false;
        return;
    }
    if (doubt != doubts_.end())
        doubt->second.isLinkedAnew = true;
    if (line.operacao == audit_operation::Anonymisation)
        Excuse(line);
}

void ChainWalk::Excuse(const ChainedLine& line)
{
    for (const CodeRange& range : ReadRanges(CleanedLinesOf(line))) {
        auto at = doubts_.lower_bound(range.first);
        while (at != doubts_.end() && at->first <= range.last)
            at = at->second.isLinkedAnew ? doubts_.erase(at) : std::next(at);
    }
}

void ChainWalk::Keep(const ChainFault& fault)
{
    if (!first_)
        first_ = fault;
    ++faults_;
}

std::optional<ChainFault> ChainWalk::First() const
{
    const auto earliest =
        std::ranges::min_element(doubts_, {}, [](const auto& doubt) { return doubt.second.order; });
    if (earliest == doubts_.end() || (first_ && first_->order <= earliest->second.order))
        return first_;
    return ChainFault{ChainFault::What::Changed, earliest->second.order, earliest->first};
}

long long ChainWalk::Faults() const { return faults_ + static_cast<long long>(doubts_.size()); }

} // namespace kova::family
