#pragma once

#include "registers/record_actions.hpp"

#include <QPushButton>

class QMenu;

namespace kova::registers {

/// "Mais...": a menu of the actions of one register. Not to be seen where it has none.
class MoreButton : public QPushButton {
public:
    MoreButton(const RecordActions& actions, std::string_view registerName, QWidget* parent);

    std::function<void(const RecordAction& action)> onPicked = [](const RecordAction&) {};

private:
    QMenu* menu_;
};

} // namespace kova::registers
