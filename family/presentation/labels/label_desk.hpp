#pragma once

#include "reports/qt/paper_desk.hpp"

#include <functional>

namespace kova::family {

/// What the label window asks of the desktop. Its messages are the toolkit's own.
class LabelDesk : public paper::PaperDesk {
public:
    /// `toolkit` shows the messages, under `title`; it must outlive the desk.
    LabelDesk(Toolkit& toolkit, Text title) : toolkit_(toolkit), title_(std::move(title)) { }

    /// In front of whatever window is in front.
    void Tell(QWidget* over, MessageKind kind, const QString& text) override;
    /// A question whose default is No.
    bool Ask(const QString& text);

    /// Notes labels that were printed, or saved into that file ("" for a printer). Answers "" or, for the
    /// user, why it could not.
    using Note = std::function<QString(const reports::Document& labels, const QString& file)>;
    void NotePrints(Note note) { note_ = std::move(note); }
    void Gone(QWidget* over, const reports::Document& labels, const QString& file) override;

private:
    Toolkit& toolkit_;
    Text title_;
    Note note_;
};

} // namespace kova::family
