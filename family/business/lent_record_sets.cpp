#include "family/business/lent_record_sets.hpp"

#include <atomic>

namespace kova::family {

namespace {

std::atomic<long> lent = 0;

} // namespace

RecordSetRef Lend(RecordSetRef records)
{
    RecordSet* const held = records.get();
    ++lent;
    return RecordSetRef(held, [owner = std::move(records)](RecordSet*) mutable {
        owner.reset();
        --lent;
    });
}

long LentRecordSets() { return lent; }

} // namespace kova::family
