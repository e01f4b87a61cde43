#include "timetable/command_menu.hpp"

#include "screens/offer.hpp"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QShortcut>

#include <map>

namespace kova::timetable {

CommandMenu::CommandMenu(QWidget& page, Commands commands, std::function<std::optional<Target>()> target,
                         std::function<void(const QString&)> told)
    : QObject(&page),
      page_(page),
      commands_(std::move(commands)),
      target_(std::move(target)),
      told_(std::move(told))
{
    for (const Command& command : commands_) {
        if (command.keys.isEmpty())
            continue;
        auto* key = new QShortcut(command.keys, &page_);
        key->setContext(Qt::WidgetWithChildrenShortcut);
        connect(key, &QShortcut::activated, this, [this, &command] { Run(command); });
    }
}

bool CommandMenu::Fits(const Command& command, const Target& target) const
{
    return command.needs == Command::Needs::Nothing
        || (command.needs == Command::Needs::Appointment) == (target.number != 0);
}

void CommandMenu::Run(const Command& command)
{
    const auto target = target_();
    if (command.needs != Command::Needs::Nothing && (!target || !Fits(command, *target))) {
        told_(command.needs == Command::Needs::Appointment
                  ? QStringLiteral("Escolha antes um agendamento.")
                  : QStringLiteral("Escolha antes um horário sem agendamento."));
        return;
    }
    if (const QString why = command.why(); !why.isEmpty())
        return told_(why);
    const QPointer<QWidget> focused(QApplication::focusWidget());
    const QPointer<CommandMenu> self(this);
    const QString told = command.run(target.value_or(Target()));
    // The window may have been closed meanwhile.
    if (!self)
        return;
    told_(told);
    // What was opened may have left the keyboard elsewhere.
    if (focused && page_.isAncestorOf(focused))
        focused->setFocus();
}

void CommandMenu::RunFirst()
{
    const auto target = target_();
    for (const Command& command : commands_) {
        if (target && command.needs != Command::Needs::Nothing && Fits(command, *target))
            return Run(command);
    }
}

void CommandMenu::AddEntry(QMenu& menu, const Command& command)
{
    QAction* entry = menu.addAction(command.text);
    // The key works by itself; here it is only told.
    if (!command.keys.isEmpty())
        entry->setText(command.text + QLatin1Char('\t') + command.keys.toString(QKeySequence::NativeText));
    screens::Offer(*entry, true, command.why());
    connect(entry, &QAction::triggered, this, [this, &command] { Run(command); });
}

void CommandMenu::Open(const QPoint& at)
{
    const auto target = target_();
    if (!target)
        return;
    QMenu menu(&page_);
    menu.setToolTipsVisible(true);
    std::map<QString, QMenu*> groups;
    for (const Command& command : commands_) {
        if (!Fits(command, *target))
            continue;
        if (command.beginsPart && !menu.isEmpty())
            menu.addSeparator();
        QMenu* into = &menu;
        if (!command.group.isEmpty()) {
            QMenu*& group = groups[command.group];
            if (group == nullptr)
                group = menu.addMenu(command.group);
            into = group;
        }
        AddEntry(*into, command);
    }
    menu.exec(at);
}

} // namespace kova::timetable
