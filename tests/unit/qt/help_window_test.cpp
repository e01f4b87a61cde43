#include "tests/unit/qt/support.hpp"

#include <QApplication>
#include <QDialog>
#include <QLabel>
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

TEST_F(HelpWindow, KeysAreToldToAssistiveTools)
{
    FormRef form = Show({Detail()});
    EXPECT_EQ(WindowOf(form->Control("kvcmdDetalhar"))->accessibleDescription().toStdString(), "Tecla: F4");
}

} // namespace
} // namespace kova::qt::test
