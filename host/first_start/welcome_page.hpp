#pragma once

#include "host/session/remembered_shops.hpp"

#include <QWidget>

#include <functional>
#include <vector>

class QListWidget;
class QPushButton;

namespace kova::screens {
class RefusalLabel;
}

namespace kova::host {

/// The first question: a shop of one's own, one that is there already, or the demonstration; and the shops
/// that were opened last.
class WelcomePage : public QWidget {
public:
    WelcomePage(const std::vector<RememberedShop>& shops, QWidget* parent);

    std::function<void()> onNew, onExisting, onDemonstration;
    std::function<void(const std::string& source)> onRemembered;

    /// Above the question; "" takes it away.
    void Tell(const QString& text);

private:
    QPushButton* AddChoice(const QString& name, const QString& title, const QString& explanation);
    void AddShops(const std::vector<RememberedShop>& shops);

    screens::RefusalLabel* told_;
    QListWidget* list_ = nullptr;
};

} // namespace kova::host
