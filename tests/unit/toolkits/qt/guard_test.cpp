#include "tests/unit/toolkits/qt/support.hpp"

#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QTimer>
#include <QToolTip>

namespace kova::qt::test {

/// A form whose button is denied while `denial_` is not empty; so is the second entry of its menu.
class GuardOnTheScreen : public QtTest {
protected:
    GuardOnTheScreen()
    {
        ControlDesign button = Design(WidgetKind::KVCommandButton, "kvcmdExcluir", 0, 1000, 1500, 510);
        button.caption = "Excluir";
        button.toolTipText = "Excluir o agendamento";
        button.shortcut = "F8";
        ControlDesign parent = Design(WidgetKind::Menu, "mnuPai", 0, 0, 0, 0);
        parent.visible = false;
        ControlDesign first = Design(WidgetKind::Menu, "mnuUm", 0, 0, 0, 0);
        ControlDesign second = Design(WidgetKind::Menu, "mnuDois", 0, 0, 0, 0);
        first.container = second.container = "mnuPai";
        first.caption = "Um";
        second.caption = "Dois";
        toolkit_.SetGuard([this](const toolkit::GuardedControl& control) {
            return control.control == "kvcmdExcluir" || control.control == "mnuDois" ? denial_ : Text();
        });
        form_ =
            Show({Design(WidgetKind::KVTextBox, "kvtxtUm", 0, 0, 3000, 510), button, parent, first, second});
        Bind<KVCommandButton>(form_, "kvcmdExcluir").OnClick([this] { ++presses_; });
        Bind<Menu>(form_, "mnuDois").OnClick([this] { ++presses_; });
    }

    void Deny(const Text& why)
    {
        denial_ = why;
        toolkit_.LookAtGuard();
    }
    QWidget* Button() { return WindowOf(Bind<KVCommandButton>(form_, "kvcmdExcluir")); }
    /// Presses it by the mouse, and by its key.
    int PressEach()
    {
        presses_ = 0;
        ClickAt(Button(), Button()->rect().center());
        Press(FocusWindowOf(Bind<KVTextBox>(form_, "kvtxtUm")), Qt::Key_F8);
        Settle();
        return presses_;
    }

    Text denial_;
    FormRef form_;
    int presses_ = 0;
};

TEST_F(GuardOnTheScreen, ShowsADeniedButtonDisabledWithTheReasonAsItsTip)
{
    EXPECT_EQ(PressEach(), 2);
    EXPECT_EQ(Button()->toolTip(), QStringLiteral("Excluir o agendamento"));
    Deny("Recepção não pode excluir agendamentos.");
    EXPECT_FALSE(Button()->isEnabled());
    EXPECT_EQ(Button()->toolTip(), QStringLiteral("Recepção não pode excluir agendamentos."));
    EXPECT_EQ(Button()->accessibleDescription(),
              QStringLiteral("Recepção não pode excluir agendamentos. Tecla: F8"));
    EXPECT_TRUE(Bind<KVCommandButton>(form_, "kvcmdExcluir").Enabled());
    EXPECT_EQ(PressEach(), 0);

    Deny("");
    EXPECT_TRUE(Button()->isEnabled());
    EXPECT_EQ(Button()->toolTip(), QStringLiteral("Excluir o agendamento"));
    EXPECT_EQ(Button()->accessibleDescription(), QStringLiteral("Tecla: F8"));
    EXPECT_EQ(PressEach(), 2);
}

TEST_F(GuardOnTheScreen, TellsTheReasonUnderTheMouse)
{
    Deny("Recepção não pode excluir agendamentos.");
    const QPoint middle = Button()->rect().center();
    QHelpEvent rests(QEvent::ToolTip, middle, Button()->mapToGlobal(middle));
    QApplication::sendEvent(Button(), &rests);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Recepção não pode excluir agendamentos."));
    QToolTip::hideText();
}

TEST_F(GuardOnTheScreen, KeepsADeniedButtonShutWhateverCodeWrites)
{
    Deny("Sem direito.");
    auto& button = Bind<KVCommandButton>(form_, "kvcmdExcluir");
    button.Enabled(false);
    button.Enabled(true);
    button.ToolTipText("Outra dica");
    button.Caption("Remover");
    EXPECT_FALSE(Button()->isEnabled());
    EXPECT_EQ(Button()->toolTip(), QStringLiteral("Sem direito."));
    button.Enabled(false);
    Deny("");
    EXPECT_FALSE(Button()->isEnabled());
    EXPECT_EQ(Button()->toolTip(), QStringLiteral("Outra dica"));
}

TEST_F(GuardOnTheScreen, IsAskedAgainWhereAButtonIsMoved)
{
    denial_ = "Nesta linha não.";
    EXPECT_TRUE(Button()->isEnabled());
    Bind<KVCommandButton>(form_, "kvcmdExcluir").Left(300);
    EXPECT_FALSE(Button()->isEnabled());
}

TEST_F(GuardOnTheScreen, ShowsADeniedEntryOfAMenuDisabledWithTheReason)
{
    Deny("Sem direito.");
    bool isEnabled = true;
    QString tip;
    QTimer::singleShot(0, [&] {
        auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        isEnabled = menu->actions().at(1)->isEnabled();
        tip = menu->actions().at(1)->toolTip();
        EXPECT_TRUE(menu->toolTipsVisible());
        EXPECT_TRUE(menu->actions().at(0)->isEnabled());
        menu->close();
    });
    form_->PopupMenu(Bind<Menu>(form_, "mnuPai"), 0, 0);
    EXPECT_FALSE(isEnabled);
    EXPECT_EQ(tip, QStringLiteral("Sem direito."));
}

} // namespace kova::qt::test
