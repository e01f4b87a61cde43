#include "registers/more_button.hpp"

#include "screens/offer.hpp"

#include <QMenu>

#include <algorithm>

namespace kova::registers {

MoreButton::MoreButton(const RecordActions& actions, std::string_view registerName, QWidget* parent)
    : QPushButton(QStringLiteral("&Mais..."), parent), menu_(new QMenu(parent))
{
    setObjectName(QStringLiteral("mais"));
    setAccessibleName(QStringLiteral("Mais ações, menu"));
    menu_->setObjectName(QStringLiteral("acoes"));
    setToolTip(QStringLiteral("O que mais se pode fazer com este registro"));
    for (const RecordAction& action : actions) {
        if (action.registerName != registerName)
            continue;
        QAction* entry = menu_->addAction(action.text);
        rights_.emplace_back(entry, action.rights);
        connect(entry, &QAction::triggered, this, [this, action] { onPicked(action); });
    }
    menu_->setToolTipsVisible(true);
    connect(this, &QPushButton::clicked, menu_, [this] { menu_->popup(mapToGlobal(rect().bottomLeft())); });
    setVisible(!menu_->isEmpty());
}

void MoreButton::LookAtRights(const family::DeniedRights& denied)
{
    for (const auto& [entry, rights] : rights_) {
        const bool isDenied = !rights.empty()
            && std::ranges::all_of(rights, [&](family::Right right) { return denied.contains(right); });
        screens::Offer(*entry, true,
                       isDenied ? QString::fromStdString(denied.at(rights.front())) : QString());
    }
}

} // namespace kova::registers
