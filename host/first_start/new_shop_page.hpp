#pragma once

#include "host/first_start/chosen_shop.hpp"

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

class QPushButton;
class QStackedWidget;

namespace kova::screens {
class RefusalLabel;
}

namespace kova::host {

class CompanyStep;
class NewShopStep;

/// Everything that a shop needs to begin, step by step; then its file is made.
class NewShopPage : public QWidget {
public:
    /// `user` is the name that the computer knows, `documents` the folder where new shops are put.
    NewShopPage(const std::string& user, const std::string& documents, QWidget* parent);

    std::function<void()> onBack;
    /// The shop was made.
    std::function<void(const ChosenShop&)> onMade;
    /// What Enter presses.
    QPushButton& Offered() { return *next_; }

private:
    NewShopStep& Current() const;
    void TurnTo(int step);
    void GoBack();
    void GoOn();
    void Make();

    CompanyStep* company_;
    QStackedWidget* pages_;
    std::vector<NewShopStep*> steps_;
    screens::RefusalLabel* failure_;
    QPushButton* next_;
};

} // namespace kova::host
