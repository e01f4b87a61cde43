#include "family/data/engine/row_versions.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// Selections beyond this number are dropped when nobody shows them.
constexpr std::size_t MostKept = 64;

using Kept = std::shared_ptr<RowVersions::Selection>;

/// Whether someone beside the memory holds it.
bool IsShown(const Kept& selection) { return selection.use_count() > 1; }

std::optional<Key> VersionIn(const RowVersions::Selection& selection, Key number)
{
    const auto found = std::ranges::find(selection, number, &RowVersions::Selection::value_type::first);
    return found == selection.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

std::shared_ptr<const RowVersions::Selection> RowVersions::Keep(Selection selection)
{
    selections_.push_back(std::make_shared<Selection>(std::move(selection)));
    const Kept kept = selections_.back();
    if (selections_.size() > MostKept)
        DropOldest();
    return kept;
}

void RowVersions::DropOldest()
{
    const auto unseen = std::ranges::find_if_not(selections_, IsShown);
    if (unseen != selections_.end())
        selections_.erase(unseen);
}

std::optional<Key> RowVersions::Of(Key number) const
{
    std::optional<Key> shown, read;
    for (const Kept& selection : selections_) {
        const std::optional<Key> version = VersionIn(*selection, number);
        if (!version)
            continue;
        read = version;
        if (IsShown(selection))
            shown = shown ? std::min(*shown, *version) : *version;
    }
    return shown ? shown : read;
}

void RowVersions::Follow(Key number, Key before, Key after)
{
    for (const Kept& selection : selections_) {
        for (auto& [key, version] : *selection) {
            if (key == number && version == before)
                version = after;
        }
    }
}

} // namespace kova::family
