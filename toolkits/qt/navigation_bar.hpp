#pragma once

#include "toolkits/common/navigation_bar.hpp"
#include "toolkits/qt/flat_button.hpp"
#include "toolkits/qt/plain_panel.hpp"
#include "toolkits/qt/widget_view.hpp"

#include <QLabel>

#include <array>
#include <functional>

namespace kova::qt {

/// Four buttons around the text "1 - 15 de 42". The arrow keys walk along the buttons on offer; Enter
/// and the space bar press.
class NavigationWindow : public PlainPanel {
public:
    explicit NavigationWindow(QWidget* parent);

    void Show(const QString& text, const std::array<bool, 4>& offered);
    FlatButton& Button(int number) const { return *buttons_.at(static_cast<std::size_t>(number - 1)); }
    QLabel& Numbers() const { return *numbers_; }
    void FocusButton();

    /// The user pressed a button, 1 to 4.
    std::function<void(int button)> pressed;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Walk(int from, int step);

    std::array<FlatButton*, 4> buttons_{};
    QLabel* numbers_;
};

class NavigationBarView : public ViewOf<toolkit::NavigationBarModel, NavigationWindow> {
public:
    NavigationBarView(QtToolkit& toolkit, toolkit::NavigationBarModel& model, QWidget* parent);
    void TakeFocus() override;

protected:
    void ShowContent() override;
};

} // namespace kova::qt
