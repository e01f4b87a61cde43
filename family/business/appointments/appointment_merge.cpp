#include "family/business/appointments/appointment_merge.hpp"

#include "family/business/appointments/appointment_fields.hpp"
#include "family/business/clash_text.hpp"
#include "family/business/three_ways.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/stores/appointment_steps.hpp"

namespace kova::family {

namespace {

/// The version that this session has read, where the stored one is another.
std::optional<Key> FormerVersion(Database& database, Key number, Key stored)
{
    const std::optional<Key> read = database.Versions().Of(number);
    return read == stored ? std::nullopt : read;
}

using Ways = ThreeWays<AppointmentInput>;

FieldStates StatesOf(Database& database, const AppointmentField& field, const Ways& ways)
{
    return {field.caption, field.show(database, ways.stored), field.show(database, ways.typed)};
}

/// The last write that changed the field.
const AuditLine& LastChange(const std::vector<AppointmentStep>& steps, const AppointmentField& field)
{
    for (const AppointmentStep& step : steps) {
        if (!field.same(Comparable(InputOf(step.before)), Comparable(InputOf(step.after))))
            return step.line;
    }
    return steps.front().line;
}

Refusal RefuseClashes(Database& database, const Ways& ways, const std::vector<AppointmentStep>& steps)
{
    std::vector<Clash> clashes;
    std::vector<FieldStates> others;
    for (const AppointmentField& field : AppointmentFields()) {
        if (ways.Clashes(field))
            clashes.push_back({StatesOf(database, field, ways), LastChange(steps, field)});
        else if (!ways.IsLeftAlone(field))
            others.push_back(StatesOf(database, field, ways));
    }
    if (clashes.empty())
        return std::nullopt;
    return WriteAnswer::Refusal(ClashText(clashes, others));
}

/// Captions of the fields in which two states of an appointment differ.
std::vector<std::string> ChangedFields(const AppointmentRow& before, const AppointmentRow& after)
{
    std::vector<std::string> captions;
    const AppointmentInput one = Comparable(InputOf(before)), other = Comparable(InputOf(after));
    for (const AppointmentField& field : AppointmentFields()) {
        if (!field.same(one, other))
            captions.push_back(field.caption);
    }
    return captions;
}

} // namespace

Refusal MergeIntoInput(Database& database, const AppointmentRow& stored, AppointmentInput& input)
{
    const std::optional<Key> read = FormerVersion(database, stored.numero, stored.versao);
    if (!read)
        return std::nullopt;
    const auto steps = StepsSince(database, stored, *read);
    if (!steps || steps->empty())
        return WriteAnswer::Refusal(UnknownClashText());
    const AppointmentInput latest = InputOf(stored);
    const Ways ways{Comparable(InputOf(steps->back().before)), Comparable(latest), Comparable(input)};
    if (const Refusal refusal = RefuseClashes(database, ways, *steps))
        return refusal;
    for (const AppointmentField& field : AppointmentFields()) {
        if (ways.IsLeftAlone(field) && ways.IsChangedByOthers(field))
            field.take(input, latest);
    }
    return std::nullopt;
}

Refusal CheckUnchanged(Database& database, const AppointmentRow& stored)
{
    const std::optional<Key> read = FormerVersion(database, stored.numero, stored.versao);
    if (!read)
        return std::nullopt;
    const auto steps = StepsSince(database, stored, *read);
    if (!steps || steps->empty())
        return WriteAnswer::Refusal(UnknownClashText());
    if (ChangedFields(steps->back().before, stored).empty())
        return std::nullopt;
    std::vector<OthersWrite> writes;
    for (const AppointmentStep& step : *steps)
        writes.push_back({step.line, ChangedFields(step.before, step.after)});
    return WriteAnswer::Refusal(DeletionClashText(writes));
}

std::optional<WriteAnswer> AnswerToChangedStatus(Database& database, const AppointmentState& state,
                                                 int status)
{
    const std::optional<Key> read = FormerVersion(database, state.number, state.version);
    if (!read)
        return std::nullopt;
    if (state.status == status)
        return WriteAnswer();
    const auto stored = FindByKey<AppointmentRow>(database, state.number);
    const auto steps = stored ? StepsSince(database, *stored, *read) : std::nullopt;
    if (!steps || steps->empty())
        return WriteAnswer::Refusal(UnknownClashText());
    if (steps->back().before.situacao == state.status)
        return std::nullopt;
    for (const AppointmentStep& step : *steps) {
        if (step.before.situacao != step.after.situacao)
            return WriteAnswer::Refusal(StatusClashText(step.line, step.after.situacao));
    }
    return std::nullopt;
}

} // namespace kova::family
