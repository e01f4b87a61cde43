#include "toolkits/qt/dialogs/help_window.hpp"

#include "toolkits/common/shortcuts.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
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

// As large as its lines, and no larger than the screen leaves beside the window's frame and button; then it
// scrolls by the arrow keys.
QScrollArea* ScrolledTable(const std::vector<toolkit::KeyHelp>& keys, const QWidget& window)
{
    constexpr QSize aroundTable(72, 150);
    auto* lines = new QWidget;
    lines->setLayout(TableOf(keys));
    lines->layout()->setContentsMargins(0, 0, 0, 0);
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(lines);
    const QSize room = window.screen()->availableGeometry().size() - aroundTable;
    const QSize wanted = lines->sizeHint();
    const int bar = wanted.height() > room.height() ? area->verticalScrollBar()->sizeHint().width() : 0;
    area->setMinimumSize((wanted + QSize(bar, 0)).boundedTo(room));
    return area;
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
    QScrollArea* table = ScrolledTable(keys, window);
    column->addWidget(table, 1);
    auto* buttons = new QDialogButtonBox;
    QPushButton* close = buttons->addButton(QStringLiteral("Fechar"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    column->addWidget(buttons);
    // The arrow keys and Page Down are for the lines; Enter and Escape close wherever the focus is.
    const bool scrolls = table->widget()->sizeHint().height() > table->minimumHeight();
    table->setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus);
    (scrolls ? static_cast<QWidget*>(table) : close)->setFocus();
    window.exec();
}

} // namespace kova::qt
