#include "tests/monkey/screen.hpp"

#include "toolkits/common/toolkit.hpp"
#include "toolkits/qt/form.hpp"
#include "toolkits/qt/widget_view.hpp"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

namespace kova::monkey {

namespace {

qt::FormWidget* FormIn(QWidget* top)
{
    if (auto* form = dynamic_cast<qt::FormWidget*>(top))
        return form;
    const auto children = top->findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (auto* form = dynamic_cast<qt::FormWidget*>(child))
            return form;
    }
    return nullptr;
}

/// Whether what was typed is compared now.
bool IsLooking(const QWidget& signIn)
{
    const auto* enter = signIn.findChild<QPushButton*>(QStringLiteral("entrar"));
    return enter && enter->text().startsWith(QLatin1String("Conferindo"));
}

QWidget* Nth(const std::string& name, std::size_t colon)
{
    QWidget* front = Front();
    const int wanted = std::atoi(name.c_str() + colon + 1);
    int count = 0;
    const auto children = front ? front->findChildren<QWidget*>() : QList<QWidget*>();
    for (QWidget* child : children) {
        if (child->isVisible() && name.compare(0, colon, child->metaObject()->className()) == 0
            && count++ == wanted)
            return child;
    }
    return nullptr;
}

QWidget* Named(const std::string& name)
{
    const QString wanted = QString::fromStdString(name);
    auto tops = QApplication::topLevelWidgets();
    if (QWidget* asked = SignInInFront())
        tops.prepend(asked);
    for (QWidget* top : tops) {
        const auto children = top->findChildren<QWidget*>(wanted);
        for (QWidget* child : children) {
            if (child->isVisible())
                return child;
        }
        if (top->objectName() == wanted && top->isVisible())
            return top;
    }
    return nullptr;
}

} // namespace

QWidget* MainWindow()
{
    const auto tops = QApplication::topLevelWidgets();
    for (QWidget* top : tops) {
        if (top->isVisible() && !top->windowFlags().testFlag(Qt::Dialog)
            && top->findChild<QWidget*>("container"))
            return top;
    }
    return nullptr;
}

QWidget* Front()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return MainWindow();
}

toolkit::FormModel* FormInFront()
{
    if (QApplication::activePopupWidget() || BoxInFront())
        return nullptr;
    QWidget* front = Front();
    qt::FormWidget* form = front ? FormIn(front) : nullptr;
    return form && form->isVisible() ? &form->Model() : nullptr;
}

QMessageBox* BoxInFront() { return dynamic_cast<QMessageBox*>(QApplication::activeModalWidget()); }

QWidget* SignInInFront()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal && modal->objectName() == QLatin1String("Entrada") ? modal : nullptr;
}

toolkit::FormModel* FormOnShow(const std::string& name)
{
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        auto* form = dynamic_cast<qt::FormWidget*>(widget);
        if (form && form->isVisible() && form->Model().Design().name == name)
            return &form->Model();
    }
    return nullptr;
}

QWidget* ControlOnShow(const toolkit::FormModel& form, const std::string& name)
{
    const toolkit::WidgetCore* control = form.Find(name);
    const auto* view = control ? dynamic_cast<const qt::WidgetView*>(control->GetView()) : nullptr;
    return view && control->IsOnShow() ? view->Window() : nullptr;
}

bool IsInOtherArea()
{
    const QWidget* main = MainWindow();
    return main && Front() == main && !main->findChild<QWidget*>("container")->isVisible();
}

// Long work on a thread of its own shows a bar; asked to stop, it still ends the piece that it is at.
bool IsAtWork()
{
    const QWidget* front = Front();
    const auto bars = front ? front->findChildren<QProgressBar*>() : QList<QProgressBar*>();
    return std::ranges::any_of(bars, [](const QProgressBar* bar) { return bar->isVisible(); });
}

bool IsSettled()
{
    if (QApplication::activePopupWidget() || BoxInFront())
        return true;
    if (IsAtWork())
        return false;
    if (const QWidget* asked = SignInInFront())
        return !IsLooking(*asked);
    if (IsInOtherArea())
        return true;
    const toolkit::FormModel* form = FormInFront();
    if (form)
        return form->Refusal().empty() && !form->GetToolkit().IsPausing();
    return QApplication::activeModalWidget() != nullptr;
}

std::string WhatIsInFront()
{
    if (const QWidget* popup = QApplication::activePopupWidget())
        return std::string("an open ") + popup->metaObject()->className();
    if (const QMessageBox* box = BoxInFront())
        return "a box that says \"" + box->text().toStdString() + "\"";
    if (const toolkit::FormModel* form = FormInFront()) {
        const std::string pause = form->GetToolkit().IsPausing() ? " (in a pause)" : "";
        return form->Design().name + pause + (form->Refusal().empty() ? "" : ", " + form->Refusal());
    }
    const QWidget* front = Front();
    if (!front)
        return "nothing";
    return "the window \"" + front->windowTitle().toStdString() + "\" (" + front->objectName().toStdString()
        + ")";
}

QWidget* Find(const std::string& name)
{
    if (name == "@popup")
        return QApplication::activePopupWidget();
    if (name == "@front")
        return Front();
    if (name == "@main")
        return MainWindow();
    const std::size_t colon = name.find(':');
    return colon == std::string::npos ? Named(name) : Nth(name, colon);
}

std::vector<std::pair<std::string, QWidget*>> Targets()
{
    std::vector<std::pair<std::string, QWidget*>> targets;
    QWidget* front = Front();
    QMap<QString, int> counts;
    const auto children = front ? front->findChildren<QWidget*>() : QList<QWidget*>();
    for (QWidget* child : children) {
        if (!child->isVisible())
            continue;
        const QString kind = QString::fromLatin1(child->metaObject()->className());
        const int number = counts[kind]++;
        if (!child->isEnabled() || qobject_cast<QLabel*>(child) || dynamic_cast<qt::FormWidget*>(child))
            continue;
        // The line of a box is reached by the box.
        const QWidget* parent = child->parentWidget();
        if (qobject_cast<QLineEdit*>(child) && parent
            && parent->objectName().startsWith(QLatin1String("frm")))
            continue;
        const QString name = child->objectName();
        const bool isNamed = !name.isEmpty() && !name.startsWith(QLatin1String("qt_")) && !name.contains(' ');
        if (isNamed || child->focusPolicy() != Qt::NoFocus)
            targets.emplace_back(
                isNamed ? name.toStdString() : kind.toStdString() + ":" + std::to_string(number), child);
    }
    return targets;
}

} // namespace kova::monkey
