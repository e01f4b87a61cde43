#pragma once

#include "family/registers/description/register.hpp"
#include "registers/desk.hpp"

#include <QWidget>

#include <functional>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableView;

namespace kova::screens {
class SearchBox;
}

namespace kova::registers {

class RowModel;

/// The left side of a register's screen: its rows, and the search above them that finds them as one types.
class SearchPane : public QWidget {
public:
    using Register = family::registers::Register;

    SearchPane(const Register& of, const Desk& desk, QWidget* parent);

    /// Gives the buttons their places that add a row, and many where there is such a one.
    void Put(QPushButton& add, QPushButton* addMany);

    /// Shows what is stored now of what is searched for; the row with that key is marked.
    void Find(family::Key marked);
    /// Marks that row, or none where it is not among those found, and tells nobody.
    void Mark(family::Key key);
    /// 0 where nothing was found.
    family::Key FirstFound() const;

    QSize minimumSizeHint() const override;

    void FocusSearch();
    /// Shows the inactive rows, too, or leaves them out again.
    void TurnInactive();
    void ShowPrices(bool areShown);

    /// The search, the inactive rows or both have changed: the screen is to find again.
    std::function<void()> onSought = [] {};
    /// The user has gone to another row of the list.
    std::function<void(family::Key)> onTurned = [](family::Key) {};
    /// Goes on to the form of the row that is marked.
    std::function<void()> onOpened = [] {};

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void LayOut();
    void Connect();
    family::registers::Listed WhichRows() const;
    /// How many were found, and what there is to do where none was.
    QString Found() const;
    /// Without a row that is marked it is the first.
    void OpenFound();

    const Register& register_;
    const Desk& desk_;
    RowModel* rows_;
    screens::SearchBox* search_;
    QCheckBox* inactive_;
    QTableView* list_;
    QLabel* found_;
    QHBoxLayout *aboveList_, *belowList_;
    /// The list follows the form and not the other way round.
    bool isMarking_ = false;
};

} // namespace kova::registers
