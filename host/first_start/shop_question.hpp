#pragma once

#include "host/first_start/chosen_shop.hpp"
#include "host/first_start/source_trial.hpp"
#include "host/session/remembered_shops.hpp"

#include <QDialog>

#include <optional>
#include <string>
#include <vector>

class QStackedWidget;

namespace kova::host {

class WelcomePage;

/// Asks with which shop to work: one that is made here, one that is there already, or the demonstration.
class ShopQuestion : public QDialog {
public:
    struct Surroundings {
        std::vector<RememberedShop> remembered;
        /// Where the demonstration shop lies or will lie.
        std::string demonstration;
        /// The name that the computer knows.
        std::string user;
        /// Where new shops are put.
        std::string documents;
        /// Whether a shop can be opened; runs in a thread of its own.
        SourceTrial::Look look;
    };

    ShopQuestion(const Surroundings& surroundings, QWidget* parent);

    /// What stands above the question, such as why a shop could not be opened.
    void Tell(const std::string& text);
    /// Nothing where none was chosen.
    const std::optional<ChosenShop>& Chosen() const { return chosen_; }

private:
    void Answer(const ChosenShop& shop);

    QStackedWidget* pages_;
    WelcomePage* welcome_;
    std::optional<ChosenShop> chosen_;
};

} // namespace kova::host
