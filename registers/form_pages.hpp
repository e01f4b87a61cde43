#pragma once

#include "family/registers/description/register.hpp"
#include "registers/desk.hpp"

#include <QWidget>

#include <vector>

class QStackedWidget;

namespace kova::screens {
class Tabs;
}

namespace kova::registers {

class RelatedPanel;

/// The form of a register's row, and on further pages, with tabs above them, what belongs to the row. Where
/// nothing does there is the form alone, without tabs.
class FormPages : public QWidget {
public:
    FormPages(const family::registers::Register& of, const Desk& desk, QWidget& form, QWidget* parent);

    void ShowForm();
    /// What belongs to that row; 0 is a new one.
    void ShowRow(family::Key key);
    /// Turns to the next page and gives it the keyboard, or from the last to the form, which is left to the
    /// caller: false then.
    bool TurnToNext();
    void ShowPrices(bool areShown);

private:
    screens::Tabs* tabs_;
    QStackedWidget* pages_;
    std::vector<RelatedPanel*> panels_;
};

} // namespace kova::registers
