#include "host/sign_in/secret_box.hpp"

#include <QKeyEvent>

namespace kova::host {

namespace {

constexpr int LongestSecret = 1000;

} // namespace

SecretBox::SecretBox(const QString& name, QWidget* parent) : QLineEdit(parent)
{
    setObjectName(name);
    setEchoMode(Password);
    setMaxLength(LongestSecret);
    setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
}

std::string SecretBox::Take()
{
    std::string typed = text().toStdString();
    clear();
    return typed;
}

// The toolkit tells of no key's state; a letter tells.
void SecretBox::keyPressEvent(QKeyEvent* event)
{
    const QString letter = event->text();
    if (letter.size() == 1 && letter.front().isLetter())
        onCapitals(letter.front().isUpper() != event->modifiers().testFlag(Qt::ShiftModifier));
    QLineEdit::keyPressEvent(event);
}

} // namespace kova::host
