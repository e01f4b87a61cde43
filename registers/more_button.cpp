#include "registers/more_button.hpp"

#include <QMenu>

namespace kova::registers {

MoreButton::MoreButton(const RecordActions& actions, std::string_view registerName, QWidget* parent)
    : QPushButton(QStringLiteral("&Mais..."), parent), menu_(new QMenu(parent))
{
    setObjectName(QStringLiteral("mais"));
    setAccessibleName(QStringLiteral("Mais ações, menu"));
    menu_->setObjectName(QStringLiteral("acoes"));
    setToolTip(QStringLiteral("O que mais se pode fazer com este registro"));
    for (const RecordAction& action : actions) {
        if (action.registerName == registerName)
            connect(menu_->addAction(action.text), &QAction::triggered, this,
                    [this, action] { onPicked(action); });
    }
    connect(this, &QPushButton::clicked, menu_, [this] { menu_->popup(mapToGlobal(rect().bottomLeft())); });
    setVisible(!menu_->isEmpty());
}

} // namespace kova::registers
