#include "toolkits/qt/help_window.hpp"

#include "toolkits/qt/theme.hpp"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kova::qt {

namespace {

QLabel* Line(const Text& text, bool bold, const QColor& ink)
{
    auto* label = new QLabel(FromText(text));
    label->setTextFormat(Qt::PlainText);
    label->setFont(MakeFont("Arial", 9.75, bold));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, ink);
    label->setPalette(palette);
    return label;
}

QGridLayout* TableOf(const std::vector<toolkit::KeyHelp>& keys)
{
    auto* table = new QGridLayout;
    table->setHorizontalSpacing(24);
    table->setVerticalSpacing(8);
    int row = 0;
    for (const toolkit::KeyHelp& line : keys) {
        QLabel* purpose = Line(line.purpose, false, look::Ink);
        purpose->setAccessibleName(FromText(line.purpose + ": " + line.key));
        table->addWidget(Line(line.key, true, look::Accent), row, 0);
        table->addWidget(purpose, row, 1);
        ++row;
    }
    table->setColumnStretch(1, 1);
    return table;
}

} // namespace

void ShowHelpWindow(QWidget* over, const Text& formCaption, const std::vector<toolkit::KeyHelp>& keys)
{
    QDialog window(over);
    window.setObjectName(QStringLiteral("teclas"));
    const QString form = FromText(formCaption);
    window.setWindowTitle(form.isEmpty() ? QStringLiteral("Teclas") : QStringLiteral("Teclas - ") + form);
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

} // namespace kova::qt
