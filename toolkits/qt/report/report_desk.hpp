#pragma once

#include "reports/qt/paper_desk.hpp"

namespace kova::qt {

/// What a preview asks of the desktop. Its messages look like the toolkit's others and have its window's
/// title.
class ReportDesk : public paper::PaperDesk {
public:
    void Tell(QWidget* over, MessageKind kind, const QString& text) override;
};

} // namespace kova::qt
