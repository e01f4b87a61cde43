#pragma once

#include "reports/qt/paper_desk.hpp"

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

private:
    Toolkit& toolkit_;
    Text title_;
};

} // namespace kova::family
