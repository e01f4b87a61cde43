#pragma once

#include "family/users/user_rights.hpp"
#include "registers/record_actions.hpp"

#include <QPushButton>

#include <utility>
#include <vector>

class QAction;
class QMenu;

namespace kova::registers {

/// "Mais...": a menu of the actions of one register. Not to be seen where it has none.
class MoreButton : public QPushButton {
public:
    MoreButton(const RecordActions& actions, std::string_view registerName, QWidget* parent);

    void LookAtRights(const family::DeniedRights& denied);

    std::function<void(const RecordAction& action)> onPicked = [](const RecordAction&) {};

private:
    QMenu* menu_;
    /// By its entries.
    std::vector<std::pair<QAction*, std::vector<family::Right>>> rights_;
};

} // namespace kova::registers
