#pragma once

#include "family/registers/description/register.hpp"
#include "registers/desk.hpp"
#include "registers/importing/table.hpp"

#include <QString>

class QPushButton;
class QWidget;

namespace kova::registers {

/// How the screen of a register calls it and its rows.

/// "Clientes"
QString TitleOf(const family::registers::Register& of);
/// "Novo: cliente", "Nova: espécie"
QString TitleOfNew(const family::registers::Register& of);
/// "Clientes: Ana Luz"; of a new row, and of one that is gone, what its form is called.
QString NameOf(const family::registers::Register& of, const Desk& desk, family::Key key);

QPushButton* MakeButton(const QString& name, const QString& text, const QString& tip, QWidget* parent);
/// Where there is little room it has no more than its word.
void LetGiveWay(QPushButton& button);

} // namespace kova::registers
