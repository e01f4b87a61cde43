#pragma once

#include <QWidget>

#include "toolkits/qt/screen/toolkit.hpp"

#include <functional>
#include <memory>
#include <string>

namespace kova::host {

/// The screen toolkit of the application. Where it draws into memory nobody sits in front of it: messages
/// go to the standard error output then, and are answered as if their box had been closed.
class HostToolkit : public qt::QtToolkit {
public:
    /// `drawnWidth` is the width in pixels of the window that is drawn into memory, which stands for the
    /// screen's; 0 is a real screen. The clock must outlive the toolkit.
    HostToolkit(const kova::Clock& clock, int drawnWidth) : QtToolkit(clock), drawnWidth_(drawnWidth) { }

    /// A document that was printed, or saved into that file ("" for a printer). Answers "" or, for the user,
    /// why it could not be noted.
    using Note =
        std::function<std::string(const std::string& title, long long pages, const std::string& file)>;
    /// From now on each is noted.
    void NotePrints(Note note) { note_ = std::move(note); }

    Twips ScreenWidth() const override;
    void UnhandledFailure(const Failure& failure) override;

protected:
    Reply AskUser(MessageKind kind, const Text& text, const Text& title) override;
    void RunPreview(const toolkit::ReportModel& report) override;
    std::unique_ptr<qt::ReportDesk> MakeReportDesk() const override;

private:
    bool DrawsIntoMemory() const { return drawnWidth_ > 0; }

    int drawnWidth_;
    Note note_;
};

} // namespace kova::host
