#include "registers/register_words.hpp"

#include "screens/field_frame.hpp"

#include <QPushButton>

#include <span>

namespace kova::registers {

using family::registers::Register;

QString TitleOf(const Register& of) { return Shown(of.Name().title); }

QString TitleOfNew(const Register& of)
{
    const auto& name = of.Name();
    return QStringLiteral("Nov%1: %2").arg(QLatin1Char(name.ending)).arg(Shown(name.one));
}

QString NameOf(const Register& of, const Desk& desk, family::Key key)
{
    const auto rows = of.Rows(*desk.database, std::span(&key, 1));
    if (key == 0 || rows.empty())
        return key == 0 ? TitleOfNew(of) : TitleOf(of);
    return TitleOf(of) + QStringLiteral(": ") + QString::fromStdString(rows.front().cells.front());
}

QPushButton* MakeButton(const QString& name, const QString& text, const QString& tip, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setToolTip(tip);
    return button;
}

void LetGiveWay(QPushButton& button)
{
    constexpr int roomBesideWord = 8;
    button.ensurePolished();
    const QString word = screens::WithoutMnemonic(button.text());
    button.setMinimumWidth(button.fontMetrics().horizontalAdvance(word) + 2 * roomBesideWord);
}

} // namespace kova::registers
