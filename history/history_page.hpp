#pragma once

#include "family/history/filter.hpp"
#include "history/desk.hpp"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QLabel;
class QSplitter;
class QStackedWidget;
class QTableView;

namespace kova::history {

class FilterBar;
class LineModel;
class LinePanel;

/// "Histórico": who has done what, when and at which desk, narrowed and searched, with the fields before and
/// after, and what can be undone. Whoever may not see it is told so.
class HistoryPage : public QWidget {
public:
    HistoryPage(Desk desk, QWidget* parent);
    ~HistoryPage() override;

    /// Shows the history of a row of the table, and nothing else; `called` is what people call it.
    void ShowRow(const std::string& table, family::Key key, const QString& called);
    /// Reads everything anew: others may have written, and somebody else may look at it now.
    void Refresh();

    /// Asks for the file of the archive where it is not where the shop says; empty where none is given.
    std::function<QString()> onChooseArchive;

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void LayOut();
    QWidget* MakeContent();
    void MakeSides();
    void AddShortcuts();
    void Find();
    void FindLines(const family::history::Filter& filter);
    void Mark(family::Key code);
    void ShowLine(int row);
    void IncludeArchive(bool isWanted);
    std::shared_ptr<family::Database> OpenArchive();
    void Undo();
    void Tell(const QString& text);
    void TellFound();
    /// Runs what reads; whatever it reports takes the place of what is on show.
    void Try(const std::function<void()>& read);

    const Desk desk_;
    /// While it is looked in.
    std::shared_ptr<family::Database> archive_;
    LineModel* lines_;
    FilterBar* filter_;
    QTableView* list_;
    QLabel *found_, *told_, *refusal_;
    LinePanel* panel_;
    QSplitter* sides_;
    QStackedWidget* pages_;
};

} // namespace kova::history
