#include "toolkits/qt/navigation_bar.hpp"

#include "toolkits/qt/input_gate.hpp"
#include "toolkits/qt/theme.hpp"

#include <QKeyEvent>

#include <algorithm>

namespace kova::qt {

namespace {

constexpr int ButtonSize = 34;
constexpr int Gap = 4;

struct ButtonRole {
    const char* icon;
    const char* name;
};
constexpr std::array<ButtonRole, 4> Roles{{{"primeira", "Primeira página"},
                                           {"anterior", "Página anterior"},
                                           {"posterior", "Próxima página"},
                                           {"ultima", "Última página"}}};

} // namespace

NavigationWindow::NavigationWindow(QWidget* parent) : PlainPanel(parent), numbers_(new QLabel(this))
{
    setFocusPolicy(Qt::TabFocus);
    numbers_->setAlignment(Qt::AlignCenter);
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        auto* button = new FlatButton(this);
        const QString name = QString::fromUtf8(Roles.at(i).name);
        button->setToolTip(name);
        button->setAccessibleName(name);
        button->setFocusPolicy(Qt::TabFocus);
        button->SetIconName(Roles.at(i).icon);
        button->SetBordered(true);
        KeepEnter(*button);
        connect(button, &QAbstractButton::clicked, this, [this, i] {
            if (pressed)
                pressed(static_cast<int>(i) + 1);
        });
        buttons_.at(i) = button;
    }
}

void NavigationWindow::Show(const QString& text, const std::array<bool, 4>& offered)
{
    numbers_->setFont(font());
    numbers_->setText(text);
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const bool hadFocus = buttons_.at(i)->hasFocus();
        if (hadFocus && !offered.at(i))
            setFocus(Qt::OtherFocusReason);
        buttons_.at(i)->setEnabled(offered.at(i));
    }
    if (hasFocus())
        FocusButton();
}

// The bar's focus stands on the first button on offer, or on the bar itself where none is.
void NavigationWindow::FocusButton()
{
    for (FlatButton* button : buttons_) {
        if (button->hasFocus())
            return;
    }
    const auto offered = std::find_if(buttons_.begin(), buttons_.end(),
                                      [](const FlatButton* button) { return button->isEnabled(); });
    if (offered != buttons_.end())
        (*offered)->setFocus(Qt::OtherFocusReason);
}

void NavigationWindow::focusInEvent(QFocusEvent*) { FocusButton(); }

void NavigationWindow::keyPressEvent(QKeyEvent* event)
{
    const auto focused = std::find_if(buttons_.begin(), buttons_.end(),
                                      [](const FlatButton* button) { return button->hasFocus(); });
    const auto at = static_cast<int>(focused - buttons_.begin());
    switch (event->key()) {
    case Qt::Key_Left: return Walk(at, -1);
    case Qt::Key_Right: return Walk(at, 1);
    default: event->ignore();
    }
}

void NavigationWindow::Walk(int from, int step)
{
    const auto count = static_cast<int>(buttons_.size());
    for (int at = from + step; at >= 0 && at < count; at += step) {
        FlatButton* button = buttons_.at(static_cast<std::size_t>(at));
        if (button->isEnabled()) {
            button->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

void NavigationWindow::resizeEvent(QResizeEvent*)
{
    const int size = std::min(ButtonSize, height());
    const int top = (height() - size) / 2;
    const int step = size + Gap;
    buttons_[0]->setGeometry(0, top, size, size);
    buttons_[1]->setGeometry(step, top, size, size);
    buttons_[2]->setGeometry(width() - step - size, top, size, size);
    buttons_[3]->setGeometry(width() - size, top, size, size);
    numbers_->setGeometry(2 * step, top, std::max(0, width() - 4 * step), size);
}

NavigationBarView::NavigationBarView(QtToolkit& toolkit, toolkit::NavigationBarModel& model, QWidget* parent)
    : ViewOf(toolkit, model, new NavigationWindow(parent))
{
    if (Shown().accessibleName().isEmpty())
        Shown().setAccessibleName(QStringLiteral("Páginas da lista"));
    Shown().pressed = [this](int button) { GetModel().UserPresses(button); };
    WatchFocus(&Shown());
}

void NavigationBarView::TakeFocus()
{
    if (!Window())
        return;
    const QWidget* focus = Shown().focusWidget();
    if (!focus || !focus->hasFocus())
        Shown().setFocus(Qt::OtherFocusReason);
}

void NavigationBarView::ShowContent()
{
    std::array<bool, 4> offered{};
    for (int button = 1; button <= 4; ++button)
        offered.at(static_cast<std::size_t>(button - 1)) = GetModel().Offers(button);
    const QString text = FromText(GetModel().ShownText());
    Shown().Show(text, offered);
    Shown().setAccessibleDescription(text);
}

} // namespace kova::qt
