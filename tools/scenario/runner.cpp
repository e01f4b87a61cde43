#include "tools/scenario/runner.hpp"

#include "tools/scenario/value_text.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace kova::scenario {

namespace {

constexpr int ScriptIsWrong = 2;

/// Ends the process from wherever the module is: no exception of the script's may pass through it.
[[noreturn]] void EndOver(const ScriptError& error)
{
    std::fflush(stdout);
    std::fprintf(stderr, "%s\n", error.what());
    std::fflush(stderr);
    std::_Exit(ScriptIsWrong);
}

} // namespace

Runner::Runner(Script script, const RunOptions& options, std::unique_ptr<Screen> screen,
               std::function<void(const std::string&)> line)
    : script_(std::move(script)),
      waiting_(script_.statements.begin(), script_.statements.end()),
      line_(line),
      wrong_(EndOver),
      session_(options, std::move(screen), line)
{
    session_.screen->SetPlayer(*this);
}

Runner::~Runner() = default;

bool Runner::Run()
{
    session_.screen->Play();
    return !session_.screen->HasFailed();
}

void Runner::PrintCount() const
{
    line_("count business " + std::to_string(BusinessCrossings()));
    line_("count widgets " + std::to_string(WidgetCrossings()));
}

const Statement* Runner::Next() const { return waiting_.empty() ? nullptr : &waiting_.front(); }

Statement Runner::Take()
{
    Statement statement = std::move(waiting_.front());
    waiting_.pop_front();
    return statement;
}

void Runner::Execute(const Statement& statement)
{
    try {
        const Verb* verb = Find(statement.verb);
        if (!verb)
            throw ScriptError(statement.line, "comando desconhecido: '" + statement.verb + "'");
        RequirePlace(statement, verb->when);
        (this->*verb->act)(statement);
    } catch (const ScriptError& error) {
        wrong_(error);
    }
}

void Runner::RequirePlace(const Statement& statement, Verb::When when) const
{
    using When = Verb::When;
    const bool setsUp = when == When::SetUp || when == When::Answers;
    if (!statement.line.file.empty() && !setsUp)
        throw ScriptError(statement.line, "'" + statement.verb + "' não cabe numa preparação");
    if ((when == When::SetUp || when == When::Opens) && session_.IsOpen())
        throw ScriptError(statement.line, "'" + statement.verb + "' vem antes de 'open'");
    if (when == When::After && !session_.IsOpen())
        throw ScriptError(statement.line, "'" + statement.verb + "' vem depois de 'open'");
}

void Runner::RefuseIf(const std::string& reason)
{
    if (!reason.empty())
        line_("refused: " + reason);
}

bool Runner::Step()
{
    if (!Next())
        return false;
    Execute(Take());
    return true;
}

bool Runner::StepInside(toolkit::FormModel& form)
{
    if (Step())
        return true;
    line_("end inside " + form.Design().name);
    return false;
}

Reply Runner::Answer(MessageKind kind)
{
    const Reply own = kind == MessageKind::Question ? Reply::No : Reply::Ok;
    if (!Next() || Next()->verb != "reply")
        return own;
    try {
        return ReplyOf(Take(), kind);
    } catch (const ScriptError& error) {
        wrong_(error);
        return own;
    }
}

Reply Runner::ReplyOf(const Statement& statement, MessageKind kind) const
{
    statement.ExpectAtMost(1);
    const std::string& word = statement.Word(0);
    const bool fits = kind == MessageKind::Question ? word == "yes" || word == "no" : word == "ok";
    if (!fits)
        throw ScriptError(statement.line, "a mensagem não oferece a resposta '" + word + "'");
    return word == "yes" ? Reply::Yes : word == "no" ? Reply::No : Reply::Ok;
}

toolkit::MenuModel* Runner::ChooseMenu(const std::vector<toolkit::MenuModel*>& entries)
{
    if (!Next() || Next()->verb != "menu")
        return nullptr;
    try {
        return EntryOf(Take(), entries);
    } catch (const ScriptError& error) {
        wrong_(error);
        return nullptr;
    }
}

toolkit::MenuModel* Runner::EntryOf(const Statement& statement,
                                    const std::vector<toolkit::MenuModel*>& entries)
{
    statement.ExpectAtMost(1);
    const std::string& name = statement.Word(0);
    if (name == "none")
        return nullptr;
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const auto* entry) { return entry->Design().name == name; });
    if (found == entries.end()) {
        RefuseIf(name + " is not in the menu");
        return nullptr;
    }
    if (!(*found)->State().enabled) {
        RefuseIf(name + " is disabled");
        return nullptr;
    }
    return *found;
}

void Runner::PreviewOpens(const toolkit::ReportModel& report, const reports::Document& pages)
{
    preview_ = {report.Current().name, &pages};
}

bool Runner::StepInPreview()
{
    if (preview_ && !Step()) {
        line_("end inside " + preview_->report);
        preview_.reset();
    }
    return preview_.has_value();
}

void Runner::DuringPause()
{
    while (!duringPause_.empty()) {
        const Statement statement = std::move(duringPause_.front());
        duringPause_.pop_front();
        Execute(statement);
    }
}

} // namespace kova::scenario
