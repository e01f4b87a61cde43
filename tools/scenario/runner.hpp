#pragma once

#include "tools/scenario/language/script.hpp"
#include "tools/scenario/session.hpp"
#include "tools/scenario/shown_members.hpp"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kova::scenario {

/// Runs one script: takes a statement after the other, in whichever loop the module is running.
class Runner : public Player {
public:
    /// Hears of a wrong statement, in whichever loop the module runs; nothing may be thrown from here. The
    /// statement is then left out.
    using WrongStatement = std::function<void(const ScriptError&)>;

    /// `line` takes the transcript. Throws host::ComponentError where the module cannot be loaded.
    Runner(Script script, const RunOptions& options, std::unique_ptr<Screen> screen,
           std::function<void(const std::string&)> line);
    ~Runner() override;
    /// Without one, a wrong statement ends the process with status 2, since it may come in the middle of
    /// the module.
    void OnWrongStatement(WrongStatement hear) { wrong_ = std::move(hear); }
    Runner(const Runner&) = delete;
    Runner& operator=(const Runner&) = delete;

    /// Runs the script to its end. False where the module broke a rule: a failure came out of a handler, or
    /// the screen complained of something.
    bool Run();
    /// Prints how many crossings of each kind the script has made.
    void PrintCount() const;
    int BusinessCrossings() const { return session_.crossings->count; }
    int WidgetCrossings() const { return session_.border.count; }

    bool Step() override;
    bool StepInside(toolkit::FormModel& form) override;
    Reply Answer(MessageKind kind) override;
    toolkit::MenuModel* ChooseMenu(const std::vector<toolkit::MenuModel*>& entries) override;
    void PreviewOpens(const toolkit::ReportModel& report, const reports::Document& pages) override;
    bool StepInPreview() override;
    void DuringPause() override;

private:
    using Act = void (Runner::*)(const Statement&);
    struct Verb {
        Act act;
        /// Set-up and `open` come first, what the user does after them, answers and the rest at any time.
        /// Set-up files hold set-up and answers only.
        enum class When { SetUp, Opens, After, Answers, Always } when;
    };
    static const Verb* Find(const std::string& verb);

    void Execute(const Statement& statement);
    const Statement* Next() const;
    Statement Take();
    /// Throws ScriptError where such a statement does not stand in its place.
    void RequirePlace(const Statement& statement, Verb::When when) const;
    void RefuseIf(const std::string& reason);
    Reply ReplyOf(const Statement& statement, MessageKind kind) const;
    toolkit::MenuModel* EntryOf(const Statement& statement, const std::vector<toolkit::MenuModel*>& entries);

    // Set-up.
    void SetClock(const Statement&);
    void SetScreen(const Statement&);
    void SetContainer(const Statement&);
    void SetApplication(const Statement&);
    void SetUser(const Statement&);
    void SetSetting(const Statement&);
    void SetSystem(const Statement&);

    // Answers.
    void QueueAnswer(const Statement&);
    void StandingAnswer(const Statement&);
    void QueueFailure(const Statement&);
    ScriptedAnswer AnswerOf(const Statement&) const;

    // The shell and the user.
    void Open(const Statement&);
    void Click(const Statement&);
    void Choose(const Statement&);
    void Type(const Statement&);
    void Press(const Statement&);
    void Focus(const Statement&);
    void Hover(const Statement&);
    void Rest(const Statement&);
    void Key(const Statement&);
    void Select(const Statement&);
    void Bar(const Statement&);
    void Resize(const Statement&);
    void Close(const Statement&);
    void Advance(const Statement&);
    void QueueDuringPause(const Statement&);
    void MenuOutsideMenu(const Statement&);
    void ReplyOutsideBox(const Statement&);
    void ShowPreviewPages(const Statement&);
    void ClosePreview(const Statement&);
    void Show(const Statement&);
    void Note(const Statement&);
    /// The control that a statement names.
    ControlName ControlOf(const Statement&) const;
    Person& User() { return session_.screen->Person(); }

    /// The preview that the user looks at.
    struct OpenPreview {
        std::string report;
        const reports::Document* pages = nullptr;
    };

    Script script_;
    std::deque<Statement> waiting_;
    std::optional<OpenPreview> preview_;
    std::deque<Statement> duringPause_;
    std::function<void(const std::string&)> line_;
    WrongStatement wrong_;
    Session session_;
};

} // namespace kova::scenario
