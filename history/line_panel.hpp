#pragma once

#include "family/history/line.hpp"
#include "family/history/undo.hpp"
#include "history/desk.hpp"

#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QPushButton;
class QTableWidget;

namespace kova::history {

/// What one line tells: who, when and where, the fields before and after, and whether it can be undone.
class LinePanel : public QWidget {
public:
    LinePanel(const Desk& desk, QWidget* parent);

    /// Nothing clears the panel. Fails as Database::With.
    void Show(const std::optional<family::history::Line>& line);
    const std::optional<family::history::Line>& Shown() const { return line_; }
    /// What undoing it would do, as the panel tells it.
    const family::history::UndoPlan& Plan() const { return plan_; }

    std::function<void()> onUndo = [] {};

private:
    void LayOut();
    void ShowChanges();
    void ShowPlan();

    const Desk& desk_;
    std::optional<family::history::Line> line_;
    family::history::UndoPlan plan_;
    QLabel *title_, *who_, *why_;
    QTableWidget* changes_;
    QPushButton* undo_;
};

} // namespace kova::history
