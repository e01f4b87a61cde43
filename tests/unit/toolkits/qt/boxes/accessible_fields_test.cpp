// What assistive tools read of the fields, and what the eye and the mouse get where a text does not fit.

#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/boxes/combo_field.hpp"
#include "toolkits/qt/boxes/field_frame.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/look/tool_tip.hpp"
#include "toolkits/qt/widget_view.hpp"

#include <QAccessible>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QToolTip>

namespace kova::qt::test {
namespace {

class AccessibleFields : public QtTest {
protected:
    void SetUp() override
    {
        ControlDesign combo = Design(WidgetKind::KVComboBox, "kvcmb", 0, 0, 3000, 510);
        combo.accessibleName = "Situação";
        combo.toolTipText =
            "Código, Nome, Apelido, Nome Fantasia, Razão Social, Endereço, CPF ou CNPJ do cliente";
        ControlDesign option = Design(WidgetKind::OptionButton, "opt", 0, 600, 3000, 300);
        option.caption = "Nome do animal";
        option.value = 1;
        ControlDesign check = Design(WidgetKind::CheckBox, "chk", 0, 1200, 240, 240);
        check.accessibleName = "Exibir painel";
        ControlDesign locked = Design(WidgetKind::KVTextBox, "kvtxt", 0, 1800, 1500, 510);
        locked.locked = true;
        form_ = Show({Design(WidgetKind::KVTextBox, "first", 0, 3000, 1500, 510), combo, option, check,
                      locked, Design(WidgetKind::KVFind, "kvf", 0, 2400, 3000, 510)});
    }

    template <class Kind> Kind& Get(const char* name) { return Bind<Kind>(form_, name); }
    QAccessibleInterface& Read(const char* name)
    {
        return *QAccessible::queryAccessibleInterface(WindowOf(form_->Control(name)));
    }
    QStringList Tree()
    {
        QStringList names;
        const QAccessibleInterface* form = Read("kvcmb").parent();
        for (int index = 0; index < form->childCount(); ++index) {
            names.append(form->child(index)->object()->objectName().section('.', 1));
            EXPECT_EQ(form->indexOfChild(form->child(index)), index);
        }
        return names;
    }

    FormRef form_;
};

void HoverLong(QWidget* widget)
{
    QHelpEvent event(QEvent::ToolTip, QPoint(3, 3), widget->mapToGlobal(QPoint(3, 3)));
    QCoreApplication::sendEvent(widget, &event);
}

TEST_F(AccessibleFields, AComboTellsItsRoleItsNameAndItsValue)
{
    auto& combo = Get<KVComboBox>("kvcmb");
    combo.AddItem("Agendado");
    combo.AddItem("Atendido");
    combo.ListIndex(1);
    QAccessibleInterface& read = Read("kvcmb");
    EXPECT_EQ(read.role(), QAccessible::ComboBox);
    EXPECT_EQ(read.text(QAccessible::Name), QString::fromUtf8("Situação"));
    EXPECT_EQ(read.text(QAccessible::Value), "Atendido");
    EXPECT_TRUE(read.state().collapsed);
    ASSERT_NE(read.actionInterface(), nullptr);
    read.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(read.state().collapsed) << "nothing that it offers";
    read.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(read.state().expanded);
    EXPECT_TRUE(dynamic_cast<ComboField&>(*WindowOf(combo)).IsListOpen());
}

TEST_F(AccessibleFields, AnOptionIsARadioButtonAndACheckBoxIsNone)
{
    EXPECT_EQ(Read("opt").role(), QAccessible::RadioButton);
    EXPECT_EQ(Read("opt").text(QAccessible::Name), "Nome do animal");
    EXPECT_TRUE(Read("opt").state().checked);
    EXPECT_EQ(Read("chk").role(), QAccessible::CheckBox);
    EXPECT_EQ(Read("chk").text(QAccessible::Name), "Exibir painel");
    EXPECT_FALSE(Read("chk").state().checked);
    Read("chk").actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(Get<CheckBox>("chk").Value(), 1);
    EXPECT_TRUE(Read("chk").state().checked);
    EXPECT_FALSE(Read("chk").state().checkStateMixed);
    Get<CheckBox>("chk").Value(2);
    EXPECT_TRUE(Read("chk").state().checkStateMixed);
}

TEST_F(AccessibleFields, ACheckBoxDoesWhatItOffersWhileItCanBeUsed)
{
    auto& check = Get<CheckBox>("chk");
    QAccessibleActionInterface& actions = *Read("chk").actionInterface();
    actions.doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_EQ(check.Value(), 0);
    check.Enabled(false);
    actions.doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(check.Value(), 0);
}

TEST_F(AccessibleFields, AnOptionIsCalledByTheCaptionThatItWasGivenLater)
{
    ControlDesign bare = Design(WidgetKind::OptionButton, "optSem", 0, 0, 3000, 300);
    const FormRef form = Show({bare});
    Bind<OptionButton>(form, "optSem").Caption("Completo");
    const QAccessibleInterface* read =
        QAccessible::queryAccessibleInterface(WindowOf(form->Control("optSem")));
    EXPECT_EQ(read->text(QAccessible::Name), QStringLiteral("Completo"));
    EXPECT_EQ(read->text(QAccessible::Description), QString());
}

TEST_F(AccessibleFields, AHiddenControlIsNotThere)
{
    EXPECT_TRUE(Tree().contains("opt"));
    Get<OptionButton>("opt").Visible(false);
    EXPECT_FALSE(Tree().contains("opt"));
    EXPECT_TRUE(Tree().contains("chk"));
    Get<OptionButton>("opt").Visible(true);
    EXPECT_TRUE(Tree().contains("opt"));
}

TEST_F(AccessibleFields, AFormHasNoChildBeyondItsLast)
{
    const QAccessibleInterface* form = Read("kvcmb").parent();
    ASSERT_GT(form->childCount(), 0);
    EXPECT_NE(form->child(form->childCount() - 1), nullptr);
    EXPECT_EQ(form->child(form->childCount()), nullptr);
    EXPECT_EQ(form->child(-1), nullptr);
    EXPECT_EQ(form->indexOfChild(form->child(0)), 0);
    EXPECT_EQ(form->indexOfChild(form), -1);
    EXPECT_EQ(form->indexOfChild(nullptr), -1);
}

TEST_F(AccessibleFields, ADescriptionHasNoMarks)
{
    const QString description = Read("kvcmb").text(QAccessible::Description);
    EXPECT_TRUE(description.startsWith(QString::fromUtf8("Código, Nome, Apelido")));
    EXPECT_FALSE(description.contains('<'));
    for (const QString& line : description.split('\n'))
        EXPECT_LE(line.size(), 60);
}

TEST(ToolTips, BreakWhereALineWouldPassSixtyCharacters)
{
    const std::string thirty(30, 'a');
    EXPECT_EQ(ToolTipOf(thirty + " " + std::string(29, 'b')).toStdString(),
              thirty + " " + std::string(29, 'b'));
    EXPECT_EQ(ToolTipOf(thirty + " " + std::string(30, 'b')).toStdString(),
              thirty + "\n" + std::string(30, 'b'));
    EXPECT_EQ(ToolTipOf(std::string(70, 'c') + " d").toStdString(), std::string(70, 'c') + "\nd");
    EXPECT_EQ(ToolTipOf("um\r\ndois").toStdString(), "um\ndois");
}

TEST_F(AccessibleFields, ATextThatDoesNotFitIsReadInAToolTip)
{
    auto& text = Get<KVTextBox>("kvtxt");
    text.Text("Rua");
    HoverLong(FocusWindowOf(text));
    EXPECT_EQ(QToolTip::text(), "");
    text.Text("Rua das Flores, 10, apartamento 203, Jardim das Oliveiras");
    HoverLong(FocusWindowOf(text));
    EXPECT_EQ(QToolTip::text(), "Rua das Flores, 10, apartamento 203, Jardim das Oliveiras");
    QToolTip::hideText();
}

TEST_F(AccessibleFields, TheTextOfAShutBoxIsSelectedWithTheMouseAndNotTypedIn)
{
    auto& text = Get<KVTextBox>("first");
    text.Text("Rua das Flores");
    text.Enabled(false);
    Get<KVFind>("kvf").SetFocus();
    auto* editor = dynamic_cast<QLineEdit*>(FocusWindowOf(text));
    const QPoint middle(10, editor->height() / 2);
    const QPointF place(middle);
    QMouseEvent twice(QEvent::MouseButtonDblClick, place, editor->mapToGlobal(place), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    ClickAt(editor, middle);
    QCoreApplication::sendEvent(editor, &twice);
    EXPECT_EQ(editor->selectedText(), "Rua");
    EXPECT_TRUE(CoreOf(Get<KVFind>("kvf")).HasFocus());
    EXPECT_FALSE(editor->hasFocus());
    Type(editor, "x");
    Press(editor, Qt::Key_Backspace);
    EXPECT_EQ(text.Text(), "Rua das Flores");
    EXPECT_EQ(editor->text(), "Rua das Flores");
    text.Enabled(true);
    Type(editor, "x");
    EXPECT_NE(text.Text(), "Rua das Flores");
}

TEST_F(AccessibleFields, AFindBoxThatTakesNoInputShowsNoButton)
{
    auto& find = Get<KVFind>("kvf");
    const int narrow = FocusWindowOf(find)->width();
    find.Enabled(false);
    EXPECT_GT(FocusWindowOf(find)->width(), narrow);
    find.Enabled(true);
    EXPECT_EQ(FocusWindowOf(find)->width(), narrow);
}

TEST_F(AccessibleFields, ACheckBoxWithoutACaptionShowsTheFocus)
{
    auto& check = Get<CheckBox>("chk");
    for (const Integer value : {Integer{0}, Integer{1}}) {
        check.Value(value);
        Get<KVTextBox>("first").SetFocus();
        const QImage before = Picture(WindowOf(check));
        check.SetFocus();
        const QImage after = Picture(WindowOf(check));
        const QPoint edge(1, before.height() / 2);
        const QPoint gap = edge + QPoint(2, 0);
        EXPECT_FALSE(before.pixelColor(edge) == look::Accent && before.pixelColor(gap) == look::Paper);
        EXPECT_EQ(after.pixelColor(edge), look::Accent);
        EXPECT_EQ(after.pixelColor(gap), look::Paper);
    }
}

/// What a button is called, by its design, its caption and its tool tip.
class AccessibleButtons : public QtTest {
protected:
    QString NameOf(const char* caption, const char* accessibleName, const char* toolTip)
    {
        ControlDesign design = Design(WidgetKind::KVCommandButton, "kvcmd", 0, 0, 1500, 510);
        design.caption = caption;
        design.accessibleName = accessibleName;
        design.toolTipText = toolTip;
        form_ = Show({design});
        return QAccessible::queryAccessibleInterface(WindowOf(form_->Control("kvcmd")))
            ->text(QAccessible::Name);
    }

    FormRef form_;
};

TEST_F(AccessibleButtons, AreCalledByTheirCaption)
{
    EXPECT_EQ(NameOf("Imprimir", "", ""), QStringLiteral("Imprimir"));
    EXPECT_EQ(NameOf("Imprimir", "", "Imprime a lista"), QStringLiteral("Imprimir"));
}

TEST_F(AccessibleButtons, OfAnIconAreCalledByTheirToolTip)
{
    EXPECT_EQ(NameOf(" ", "", "Cancela o agendamento"), QStringLiteral("Cancela o agendamento"));
}

TEST_F(AccessibleButtons, KeepTheNameOfTheirDesign)
{
    EXPECT_EQ(NameOf("Sim", "Reagendar: sim", "Marca outro"), QStringLiteral("Reagendar: sim"));
    EXPECT_EQ(NameOf("", "Cliente: pesquisar", "Pesquisa"), QStringLiteral("Cliente: pesquisar"));
}

} // namespace
} // namespace kova::qt::test
