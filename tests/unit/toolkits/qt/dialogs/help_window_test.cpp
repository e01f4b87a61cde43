#include "tests/unit/toolkits/qt/support.hpp"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace kova::qt::test {
namespace {

class HelpWindow : public QtTest { };

ControlDesign Detail()
{
    ControlDesign detail = Design(WidgetKind::KVCommandButton, "kvcmdDetalhar", 0, 0, 1500, 510);
    detail.accessibleName = "Detalhar";
    detail.shortcut = "F4";
    return detail;
}

TEST_F(HelpWindow, ListsTheKeysOnF1AndClosesOnEscape)
{
    FormRef form = Show({Detail()});
    std::string texts;
    QTimer::singleShot(0, qApp, [&texts] {
        auto* window = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        for (const QLabel* label : window->findChildren<QLabel*>())
            texts += label->text().toStdString() + "|";
        Press(window, Qt::Key_Escape);
    });
    Press(WindowOf(form->Control("kvcmdDetalhar")), Qt::Key_F1);
    EXPECT_EQ(texts, "F4|Detalhar|Tab|Ir para o próximo campo|F1|Mostrar esta ajuda|");
}

TEST_F(HelpWindow, OfFewLinesHasNothingToScrollAndOffersToBeClosed)
{
    FormRef form = Show({Detail()});
    QTimer::singleShot(0, qApp, [] {
        auto* window = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        auto* area = window->findChild<QScrollArea*>();
        auto* close = window->findChild<QPushButton*>();
        EXPECT_EQ(window->focusWidget(), close);
        EXPECT_EQ(area->focusPolicy(), Qt::NoFocus);
        EXPECT_TRUE(close->isDefault());
        window->resize(window->size() + QSize(100, 100));
        Settle();
        EXPECT_EQ(area->widget()->size(), area->viewport()->size()) << "the lines take all the room";
        const QImage picture = Picture(window);
        EXPECT_EQ(picture.pixel(2, 2), picture.pixel(area->geometry().bottomRight() - QPoint(3, 3)));
        Press(window, Qt::Key_Return);
    });
    Press(WindowOf(form->Control("kvcmdDetalhar")), Qt::Key_F1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(HelpWindow, FitsTheScreenAndScrollsByKeyWhereItHasManyLines)
{
    std::vector<ControlDesign> buttons;
    for (int number = 1; number <= 32; ++number) {
        ControlDesign button = Detail();
        button.index = number;
        button.shortcut = "Ctrl+Shift+F" + std::to_string(number);
        buttons.push_back(button);
    }
    FormRef form = Show(buttons);
    QSize shown;
    int scrolled = 0;
    QTimer::singleShot(0, qApp, [&] {
        auto* window = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        shown = window->frameGeometry().size();
        auto* area = window->findChild<QScrollArea*>();
        EXPECT_EQ(window->focusWidget(), area);
        Press(window->focusWidget(), Qt::Key_PageDown);
        scrolled = area->verticalScrollBar()->value();
        Press(window->focusWidget(), Qt::Key_Return);
    });
    Press(WindowOf(form->Control("kvcmdDetalhar", 1)), Qt::Key_F1);
    const QSize room = QGuiApplication::primaryScreen()->availableGeometry().size();
    EXPECT_EQ(shown, shown.boundedTo(room));
    EXPECT_GT(scrolled, 0);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(HelpWindow, KeysAreToldToAssistiveTools)
{
    FormRef form = Show({Detail()});
    EXPECT_EQ(WindowOf(form->Control("kvcmdDetalhar"))->accessibleDescription().toStdString(), "Tecla: F4");
}

} // namespace
} // namespace kova::qt::test
