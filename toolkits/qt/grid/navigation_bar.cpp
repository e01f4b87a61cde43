#include "toolkits/qt/grid/navigation_bar.hpp"

#include "toolkits/qt/enter_key.hpp"
#include "toolkits/qt/look/flat_button.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

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

void NavigationWindow::Show(const QString& text, const std::array<bool, 4>& offered, int current)
{
    numbers_->setFont(font());
    numbers_->setText(text);
    const bool holdsFocus = HoldsFocus();
    current_ = current;
    // A button that goes out of use must not hand the focus to a neighbour of Qt's choice.
    if (holdsFocus)
        setFocus(Qt::OtherFocusReason);
    for (std::size_t i = 0; i < buttons_.size(); ++i)
        buttons_.at(i)->setEnabled(offered.at(i));
    if (holdsFocus)
        FocusCurrent();
}

void NavigationWindow::Reach(int current)
{
    current_ = current;
    if (HoldsFocus())
        FocusCurrent();
}

bool NavigationWindow::HoldsFocus() const
{
    const auto hasFocus = [](const FlatButton* button) { return button->hasFocus(); };
    return QWidget::hasFocus() || std::any_of(buttons_.begin(), buttons_.end(), hasFocus);
}

// Where the button that was reached is not on offer, the focus waits on the bar itself for its return.
void NavigationWindow::FocusCurrent()
{
    QWidget* target = this;
    if (current_ > 0)
        target = &Button(current_);
    target->setFocus(Qt::OtherFocusReason);
    update();
}

void NavigationWindow::focusInEvent(QFocusEvent*)
{
    if (current_ > 0)
        Button(current_).setFocus(Qt::OtherFocusReason);
    update();
}

void NavigationWindow::keyPressEvent(QKeyEvent* event)
{
    const bool right = event->key() == Qt::Key_Right;
    if (!right && event->key() != Qt::Key_Left)
        event->ignore();
    else if (walked)
        walked(right);
}

void NavigationWindow::paintEvent(QPaintEvent*)
{
    if (!QWidget::hasFocus())
        return;
    QPainter painter(this);
    PaintFocusRing(painter, numbers_->geometry(), look::Paper);
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

NavigationBarView::NavigationBarView(toolkit::NavigationBarModel& model, QWidget* parent)
    : ViewOf(model, new NavigationWindow(parent))
{
    if (Shown().accessibleName().isEmpty())
        Shown().setAccessibleName(QStringLiteral("Páginas da lista"));
    Shown().pressed = [this](int button) { GetModel().UserPresses(button); };
    Shown().walked = [this](bool right) { GetModel().UserWalks(right); };
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
    Shown().Show(text, offered, GetModel().CurrentButton());
    Shown().setAccessibleDescription(text);
}

void NavigationBarView::ShowSelection() { Shown().Reach(GetModel().CurrentButton()); }

} // namespace kova::qt
