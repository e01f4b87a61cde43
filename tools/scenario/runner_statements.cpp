// One function for each statement of the language.

#include "tools/scenario/page_text.hpp"
#include "tools/scenario/runner.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <map>

namespace kova::scenario {

namespace {

bool IsDateAndTime(const DateTime& moment)
{
    return moment.date.month >= 1 && moment.date.month <= 12 && moment.date.day >= 1
        && moment.date.day <= DaysOfMonth(moment.date.year, moment.date.month) && moment.time.hour <= 23
        && moment.time.minute <= 59 && moment.time.second <= 59;
}

/// "CLASS.MEMBER": at least two dots, as classes are written whole.
void RequireClassMember(const std::string& word, const ScriptLine& line)
{
    if (std::count(word.begin(), word.end(), '.') < 2)
        throw ScriptError(line, "'" + word + "' não é CLASSE.MEMBRO com a classe por inteiro");
}

/// A whole number as the result of a call is a status, and statuses are 16-bit.
Value StatusOrValue(const Value& value)
{
    const bool isStatus =
        value.GetType() == ValueType::Long && value.ToLong() >= INT16_MIN && value.ToLong() <= INT16_MAX;
    return isStatus ? Value(value.ToInteger()) : value;
}

} // namespace

const Runner::Verb* Runner::Find(const std::string& verb)
{
    using When = Verb::When;
    static const std::map<std::string, Verb> verbs{
        {"clock", {&Runner::SetClock, When::SetUp}},
        {"screen", {&Runner::SetScreen, When::SetUp}},
        {"container", {&Runner::SetContainer, When::SetUp}},
        {"application", {&Runner::SetApplication, When::SetUp}},
        {"user", {&Runner::SetUser, When::SetUp}},
        {"settings", {&Runner::SetSetting, When::SetUp}},
        {"system", {&Runner::SetSystem, When::SetUp}},
        {"open", {&Runner::Open, When::Opens}},
        {"answer", {&Runner::QueueAnswer, When::Answers}},
        {"always", {&Runner::StandingAnswer, When::Answers}},
        {"fail", {&Runner::QueueFailure, When::Answers}},
        {"note", {&Runner::Note, When::Always}},
        {"advance", {&Runner::Advance, When::Always}},
        {"during-pause", {&Runner::QueueDuringPause, When::Always}},
        {"click", {&Runner::Click, When::After}},
        {"choose", {&Runner::Choose, When::After}},
        {"type", {&Runner::Type, When::After}},
        {"press", {&Runner::Press, When::After}},
        {"focus", {&Runner::Focus, When::After}},
        {"hover", {&Runner::Hover, When::After}},
        {"rest", {&Runner::Rest, When::After}},
        {"key", {&Runner::Key, When::After}},
        {"select", {&Runner::Select, When::After}},
        {"bar", {&Runner::Bar, When::After}},
        {"menu", {&Runner::MenuOutsideMenu, When::After}},
        {"reply", {&Runner::ReplyOutsideBox, When::After}},
        {"pages", {&Runner::ShowPreviewPages, When::After}},
        {"resize", {&Runner::Resize, When::After}},
        {"close", {&Runner::Close, When::After}},
        {"show", {&Runner::Show, When::After}},
    };
    const auto found = verbs.find(verb);
    return found == verbs.end() ? nullptr : &found->second;
}

void Runner::SetClock(const Statement& statement)
{
    statement.ExpectAtMost(2);
    const std::string text = statement.Word(0) + " " + statement.Word(1);
    DateTime moment;
    int end = 0;
    std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &moment.date.year, &moment.date.month,
                &moment.date.day, &moment.time.hour, &moment.time.minute, &moment.time.second, &end);
    if (end != static_cast<int>(text.size()) || !IsDateAndTime(moment))
        throw ScriptError(statement.line, "'" + text + "' não é AAAA-MM-DD hh:mm:ss");
    session_.screen->Clock().Set(moment);
}

void Runner::SetScreen(const Statement& statement)
{
    statement.ExpectAtMost(1);
    session_.screen->WidthInPixels(static_cast<int>(statement.Number(0)));
}

void Runner::SetContainer(const Statement& statement)
{
    statement.ExpectAtMost(2);
    session_.containerWidth = static_cast<Twips>(statement.Decimal(0));
    session_.containerHeight = static_cast<Twips>(statement.Decimal(1));
}

void Runner::SetApplication(const Statement& statement)
{
    statement.ExpectAtMost(1);
    session_.application = statement.QuotedText(0);
    session_.hasApplication = true;
}

void Runner::SetUser(const Statement& statement)
{
    statement.ExpectAtMost(0);
    session_.hasUser = true;
}

void Runner::SetSetting(const Statement& statement)
{
    statement.ExpectAtMost(3);
    session_.profile.Put(statement.QuotedText(0), statement.QuotedText(1), statement.QuotedText(2));
}

void Runner::SetSystem(const Statement& statement)
{
    statement.ExpectAtMost(1);
    session_.script.System(statement.QuotedText(0));
}

ScriptedAnswer Runner::AnswerOf(const Statement& statement) const
{
    RequireClassMember(statement.Word(0), statement.line);
    if (!statement.Has(1))
        throw ScriptError(statement.line, "'" + statement.verb + "' pede um valor");
    ScriptedAnswer answer{.result = StatusOrValue(ParseValue(statement.words[1], statement.line))};
    for (std::size_t at = 2; at < statement.words.size(); ++at) {
        const std::string& word = statement.Word(at);
        if (word == "records") {
            const auto table = script_.tables.find(statement.Word(++at));
            if (table == script_.tables.end())
                throw ScriptError(statement.line, "a tabela '" + statement.Word(at) + "' não existe");
            answer.records = table->second;
            continue;
        }
        NamedValue member = ParseNamedValue(statement.words[at], statement.line);
        answer.members[member.name] = std::move(member.value);
    }
    return answer;
}

void Runner::QueueAnswer(const Statement& statement)
{
    session_.script.Answer(statement.Word(0), AnswerOf(statement));
}

void Runner::StandingAnswer(const Statement& statement)
{
    session_.script.Always(statement.Word(0), AnswerOf(statement));
}

void Runner::QueueFailure(const Statement& statement)
{
    const bool ofCreation = statement.Word(0) == "create";
    const bool ofWidget = statement.Word(0) == "widget";
    const std::size_t name = ofCreation || ofWidget ? 1 : 0;
    statement.ExpectAtMost(name + 3);
    const Failure failure(static_cast<std::int32_t>(statement.Number(name + 1)),
                          statement.QuotedText(name + 2));
    if (ofCreation) {
        session_.script.FailCreate(statement.Word(name), failure);
    } else if (ofWidget) {
        session_.border.Fail(statement.Word(name), failure);
    } else {
        RequireClassMember(statement.Word(name), statement.line);
        session_.script.Fail(statement.Word(name), failure);
    }
}

void Runner::Open(const Statement& statement)
{
    statement.ExpectAtMost(0);
    session_.Open();
}

ControlName Runner::ControlOf(const Statement& statement) const
{
    Place place = ParsePlace(statement.Word(0), statement.line);
    if (place.control.empty() || !place.member.empty())
        throw ScriptError(statement.line, "'" + statement.Word(0) + "' não é FORMULÁRIO.CONTROLE");
    return {place.form, place.control, place.controlIndex};
}

void Runner::Click(const Statement& statement)
{
    statement.ExpectAtMost(1);
    RefuseIf(User().Click(ControlOf(statement)));
}

void Runner::Choose(const Statement& statement)
{
    statement.ExpectAtMost(2);
    const ControlName at = ControlOf(statement);
    if (statement.IsQuoted(1))
        RefuseIf(User().Choose(at, statement.QuotedText(1)));
    else
        RefuseIf(User().Choose(at, static_cast<int>(statement.Number(1))));
}

void Runner::Type(const Statement& statement)
{
    statement.ExpectAtMost(2);
    const ControlName at = ControlOf(statement);
    RefuseIf(User().Type(at, statement.QuotedText(1)));
}

void Runner::Press(const Statement& statement)
{
    statement.ExpectAtMost(1);
    RefuseIf(User().Press(ControlOf(statement)));
}

void Runner::Focus(const Statement& statement)
{
    statement.ExpectAtMost(1);
    RefuseIf(User().Focus(ControlOf(statement)));
}

void Runner::Hover(const Statement& statement)
{
    statement.ExpectAtMost(3);
    const ControlName at = ControlOf(statement);
    if (statement.Has(2))
        RefuseIf(User().HoverAt(at, static_cast<Twips>(statement.Decimal(1)),
                                static_cast<Twips>(statement.Decimal(2))));
    else
        RefuseIf(User().Hover(at, static_cast<Long>(statement.Number(1))));
}

void Runner::Rest(const Statement& statement)
{
    statement.ExpectAtMost(2);
    const ControlName at = ControlOf(statement);
    RefuseIf(User().Rest(at, static_cast<Long>(statement.Number(1))));
}

void Runner::Key(const Statement& statement)
{
    statement.ExpectAtMost(1);
    const std::string& name = statement.IsQuoted(0) ? statement.QuotedText(0) : statement.Word(0);
    const auto key = headless::ReadKey(name);
    if (!key)
        throw ScriptError(statement.line, "'" + name + "' não é uma tecla");
    RefuseIf(User().Key(*key));
}

void Runner::Select(const Statement& statement)
{
    statement.ExpectAtMost(2);
    const ControlName at = ControlOf(statement);
    RefuseIf(User().Select(at, static_cast<Long>(statement.Number(1))));
}

void Runner::Bar(const Statement& statement)
{
    statement.ExpectAtMost(2);
    const ControlName at = ControlOf(statement);
    RefuseIf(User().Bar(at, static_cast<int>(statement.Number(1))));
}

void Runner::Resize(const Statement& statement)
{
    statement.ExpectAtMost(2);
    session_.screen->ResizeContainer(static_cast<Twips>(statement.Decimal(0)),
                                     static_cast<Twips>(statement.Decimal(1)));
}

void Runner::Close(const Statement& statement)
{
    if (preview_)
        return ClosePreview(statement);
    if (!statement.Has(0))
        return RefuseIf("no report preview is open");
    statement.ExpectAtMost(1);
    RefuseIf(User().CloseForm(statement.Word(0)));
}

void Runner::Advance(const Statement& statement)
{
    statement.ExpectAtMost(1);
    session_.screen->Clock().Advance(statement.Decimal(0));
}

void Runner::QueueDuringPause(const Statement& statement) { duringPause_.push_back(statement.Behind()); }

void Runner::MenuOutsideMenu(const Statement&) { RefuseIf("no menu is open"); }

void Runner::ReplyOutsideBox(const Statement&) { RefuseIf("no message box is open"); }

void Runner::ShowPreviewPages(const Statement& statement)
{
    statement.ExpectAtMost(0);
    if (!preview_)
        return RefuseIf("no report preview is open");
    for (const std::string& line : ShowPages(*preview_->pages))
        line_(line);
}

void Runner::ClosePreview(const Statement& statement)
{
    statement.ExpectAtMost(1);
    if (statement.Has(0) && statement.Word(0) != preview_->report)
        return RefuseIf(statement.Word(0) + " is behind a report preview");
    preview_.reset();
}

void Runner::Show(const Statement& statement)
{
    statement.ExpectAtMost(2);
    const Place place = ParsePlace(statement.Word(0), statement.line);
    const auto lines = statement.Has(1) ? ShowGridRow(session_.screen->Toolkit(), place,
                                                      static_cast<Long>(statement.Number(1)), statement.line)
                                        : ShowPlace(session_.screen->Toolkit(), place, statement.line);
    for (const std::string& line : lines)
        line_(line);
}

void Runner::Note(const Statement& statement)
{
    statement.ExpectAtMost(1);
    line_(statement.QuotedText(0));
}

} // namespace kova::scenario
