#include "host/messages.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/secrets_in_text.hpp"
#include "host/display.hpp"

#include <QApplication>
#include <QMessageBox>

#include <iostream>

namespace kova::host {

void TellFailure(const std::string& told)
{
    const std::string text = family::WithoutSecrets(told);
    std::cerr << "Kovaris: " << text << std::endl;
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr || !HasDisplay())
        return;
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Kovaris"),
                    QString::fromStdString(WithoutDetail(text)));
    box.addButton(QStringLiteral("&Fechar"), QMessageBox::AcceptRole);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

} // namespace kova::host
