#pragma once

#include "host/options.hpp"

#include <QWidget>

namespace kova::host {

class NoticeBar;

/// The application's window: a container that the day's list fills, and a hint in its place where no list
/// could be opened. Closing it ends the application's event loops, whatever else is on the screen.
class MainWindow : public QWidget {
public:
    /// What the title tells: whose data is open, whether it is a demonstration, and who works with it.
    struct Heading {
        QString shop;
        bool isDemonstration = false;
        QString user;
    };

    explicit MainWindow(const Heading& heading);

    QWidget& Container() { return *container_; }

    /// Shown in the container, until something else fills it.
    void ShowHint(const QString& text);
    /// Shown in a line below the container until the user closes it or "" takes it away. It never takes the
    /// keyboard.
    void ShowNotice(const QString& text);
    /// Shows the window at that size; without one filling the screen, and then returns once the desktop has
    /// given it its place, so that what is laid out in it finds the final size.
    void Open(std::optional<WindowSize> size);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void WaitForPlace();
    /// However small the screen is or however large it draws: no edge of the window has to lie beyond it.
    void FitToScreen();

    QWidget* container_;
    NoticeBar* notice_;
};

} // namespace kova::host
