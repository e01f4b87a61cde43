#pragma once

#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/qt/plain_panel.hpp"
#include "toolkits/qt/widget_view.hpp"

#include <array>
#include <functional>

class QLabel;

namespace kova::qt {

class FlatButton;

/// Four buttons around the text "1 - 15 de 42". The arrow keys walk along the buttons on offer; Enter
/// and the space bar press.
class NavigationWindow : public PlainPanel {
public:
    explicit NavigationWindow(QWidget* parent);

    /// `current` is the button that has the bar's focus, 0 is none.
    void Show(const QString& text, const std::array<bool, 4>& offered, int current);
    FlatButton& Button(int number) const { return *buttons_.at(static_cast<std::size_t>(number - 1)); }
    QLabel& Numbers() const { return *numbers_; }
    void Reach(int current);
    bool HoldsFocus() const;

    /// The user pressed a button, 1 to 4.
    std::function<void(int button)> pressed;
    std::function<void(bool right)> walked;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FocusCurrent();

    std::array<FlatButton*, 4> buttons_{};
    int current_ = 0;
    QLabel* numbers_;
};

class NavigationBarView : public ViewOf<toolkit::NavigationBarModel, NavigationWindow> {
public:
    NavigationBarView(toolkit::NavigationBarModel& model, QWidget* parent);
    void TakeFocus() override;

protected:
    void ShowContent() override;
    void ShowSelection() override;
};

} // namespace kova::qt
