#pragma once

#include <QWidget>

#include <initializer_list>

class QBoxLayout;
class QComboBox;
class QListWidget;
class QPushButton;

namespace kova::registers {

/// The names of the registers and the buttons of their files: a column beside the screens or, where a window
/// is narrow, one row above them, in which the list of names opens from the one that is chosen.
class NamesPanel : public QWidget {
public:
    /// Takes the list and the buttons over. Rows of the list that are hidden are offered nowhere.
    NamesPanel(QListWidget& names, std::initializer_list<QPushButton*> buttons, QWidget* parent);

    void SetNarrow(bool isNarrow);
    /// To be told when rows of the list were hidden or shown.
    void Follow();

private:
    QListWidget& names_;
    QComboBox* chosen_;
    QBoxLayout* layout_;
};

} // namespace kova::registers
