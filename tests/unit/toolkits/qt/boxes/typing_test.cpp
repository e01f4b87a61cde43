// What a text box does with what is typed, and what its menu offers.

#include "tests/unit/toolkits/qt/support.hpp"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>

namespace kova::qt::test {
namespace {

class Typing : public QtTest {
protected:
    Typing()
    {
        ControlDesign locked = Design(WidgetKind::KVTextBox, "kvtxtTravado", 0, 600, 3000, 510);
        locked.locked = true;
        locked.text = "fixo";
        form_ = Show({Design(WidgetKind::KVTextBox, "kvtxtNome", 0, 0, 3000, 510), locked});
        name_ = &Bind<KVTextBox>(form_, "kvtxtNome");
        name_->SetFocus();
    }

    QWidget* Editor() { return FocusWindowOf(*name_); }
    /// The entries of an editor's menu; those that cannot be chosen in parentheses.
    static std::string MenuOf(QWidget* editor)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), QPoint(2, 2));
        QCoreApplication::sendEvent(editor, &event);
        auto* menu = editor->findChild<QMenu*>();
        QStringList texts;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator())
                texts.append(action->isEnabled() ? action->text() : "(" + action->text() + ")");
        }
        menu->close();
        Settle();
        return texts.join('|').toStdString();
    }

    FormRef form_;
    KVTextBox* name_ = nullptr;
};

TEST_F(Typing, ShowsWhatIsBeingComposed)
{
    name_->Text("Re");
    Press(Editor(), Qt::Key_End);
    const QImage before = Picture(Editor());
    QInputMethodEvent composing(QStringLiteral("mm"), {});
    QApplication::sendEvent(Editor(), &composing);
    EXPECT_NE(Picture(Editor()), before);
    EXPECT_EQ(name_->Text(), "Re");
}

TEST_F(Typing, IsNoneOfAKeyWithAlt)
{
    for (const Qt::KeyboardModifier modifier : {Qt::AltModifier, Qt::MetaModifier})
        Press(Editor(), Qt::Key_Z, QStringLiteral("z"), modifier);
    EXPECT_EQ(name_->Text(), "");
}

TEST_F(Typing, IsAllThatIsUndone)
{
    name_->Text("Rex");
    Press(Editor(), Qt::Key_Z, QString(), Qt::ControlModifier);
    EXPECT_EQ(name_->Text(), "Rex");
}

TEST_F(Typing, HasAMenuInPortugueseThatOffersWhatTheBoxTakes)
{
    QApplication::clipboard()->setText(QStringLiteral("Rex"));
    EXPECT_EQ(MenuOf(Editor()), "(Desfazer)|(Recortar)|(Copiar)|Colar|(Selecionar tudo)");
    Type(Editor(), QStringLiteral("Bia"));
    Press(Editor(), Qt::Key_A, QString(), Qt::ControlModifier);
    EXPECT_EQ(MenuOf(Editor()), "Desfazer|Recortar|Copiar|Colar|Selecionar tudo");
    auto& locked = Bind<KVTextBox>(form_, "kvtxtTravado");
    locked.SetFocus();
    Press(FocusWindowOf(locked), Qt::Key_A, QString(), Qt::ControlModifier);
    EXPECT_EQ(MenuOf(FocusWindowOf(locked)), "(Desfazer)|(Recortar)|Copiar|(Colar)|Selecionar tudo");
}

} // namespace
} // namespace kova::qt::test
