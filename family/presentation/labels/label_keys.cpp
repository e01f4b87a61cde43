#include "family/presentation/labels/label_keys.hpp"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kova::family {

namespace {

QGridLayout* TableOf(const std::vector<WindowKey>& keys)
{
    auto* table = new QGridLayout;
    table->setHorizontalSpacing(24);
    table->setVerticalSpacing(8);
    int row = 0;
    for (const WindowKey& line : keys) {
        auto* key = new QLabel(line.key);
        QFont bold = key->font();
        bold.setBold(true);
        key->setFont(bold);
        key->setForegroundRole(QPalette::Highlight);
        auto* purpose = new QLabel(line.purpose);
        purpose->setAccessibleName(line.purpose + QStringLiteral(": ") + line.key);
        table->addWidget(key, row, 0);
        table->addWidget(purpose, row, 1);
        ++row;
    }
    table->setColumnStretch(1, 1);
    return table;
}

} // namespace

void ShowWindowKeys(QWidget* over, const std::vector<WindowKey>& keys)
{
    QDialog window(over);
    window.setObjectName(QStringLiteral("teclas"));
    window.setWindowTitle(QStringLiteral("Teclas - ") + over->windowTitle());
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins(24, 20, 24, 16);
    column->setSpacing(18);
    column->addLayout(TableOf(keys));
    auto* buttons = new QDialogButtonBox;
    QPushButton* close = buttons->addButton(QStringLiteral("Fechar"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    column->addWidget(buttons);
    close->setFocus();
    window.exec();
}

} // namespace kova::family
