#include "family/registers/description/field_merge.hpp"

#include "family/business/clash_text.hpp"
#include "family/business/three_ways.hpp"

#include <algorithm>

namespace kova::family::registers {

namespace {

/// Fields that are changed together, one after another.
struct Group {
    std::size_t first, behind;

    bool same(const Texts& one, const Texts& other) const
    {
        const auto at = [](const Texts& texts, std::size_t place) {
            return texts.begin() + static_cast<std::ptrdiff_t>(place);
        };
        return std::equal(at(one, first), at(one, behind), at(other, first));
    }
};

std::vector<Group> GroupsOf(const std::vector<FieldInfo>& fields)
{
    std::vector<Group> groups;
    for (std::size_t at = 0; at < fields.size(); ++at) {
        if (fields[at].withFormer && !groups.empty())
            groups.back().behind = at + 1;
        else
            groups.push_back({at, at + 1});
    }
    return groups;
}

class Merge {
public:
    Merge(const std::vector<FieldInfo>& fields, const FormTexts& texts)
        : fields_(fields), ways_{texts.before, texts.stored, texts.typed}
    {
    }

    MergedTexts Run(const std::function<std::vector<AuditLine>()>& lines) const
    {
        MergedTexts merged{ways_.stored, {}, {}};
        const std::vector<Group> groups = GroupsOf(fields_);
        if (std::ranges::any_of(groups, [this](const Group& group) { return ways_.Clashes(group); })) {
            Refuse(groups, lines(), merged);
            return merged;
        }
        for (const Group& group : groups) {
            for (std::size_t at = group.first; at < group.behind && !ways_.IsLeftAlone(group); ++at)
                merged.wanted[at] = ways_.typed[at];
        }
        return merged;
    }

private:
    FieldStates StatesOf(std::size_t at) const
    {
        return {std::string(FormLabel(fields_[at])), ways_.stored[at], ways_.typed[at]};
    }

    void Refuse(const std::vector<Group>& groups, const std::vector<AuditLine>& lines,
                MergedTexts& merged) const
    {
        std::vector<Clash> clashes;
        std::vector<FieldStates> others;
        for (const Group& group : groups) {
            for (std::size_t at = group.first; at < group.behind; ++at) {
                if (ways_.Clashes(group) && ways_.stored[at] != ways_.typed[at]) {
                    clashes.push_back({StatesOf(at), LastChange(lines, fields_[at])});
                    merged.clashes.push_back({at, ClashOf(clashes.back())});
                } else if (ways_.typed[at] != ways_.base[at])
                    others.push_back(StatesOf(at));
            }
        }
        merged.text = ClashText(clashes, others, OfRegister);
    }

    const std::vector<FieldInfo>& fields_;
    const ThreeWays<Texts> ways_;
};

} // namespace

std::optional<AuditLine> LastChange(const std::vector<AuditLine>& lines, const FieldInfo& field)
{
    const auto changes = [&](const AuditLine& line) {
        return std::ranges::any_of(field.stored, [&](const std::string& column) {
            const auto before = line.before.find(column), after = line.after.find(column);
            return before != line.before.end() && after != line.after.end()
                && before->second != after->second;
        });
    };
    const auto found = std::ranges::find_if(lines, changes);
    return found == lines.end() ? std::nullopt : std::optional(*found);
}

MergedTexts MergeTexts(const std::vector<FieldInfo>& fields, const FormTexts& texts,
                       const std::function<std::vector<AuditLine>()>& lines)
{
    return Merge(fields, texts).Run(lines);
}

} // namespace kova::family::registers
