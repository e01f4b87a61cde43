// What the window for labels has saved and printed, as programs of the system read it.

#include "tests/unit/family/presentation/labels/label_window_fixture.hpp"

#include <QCheckBox>
#include <QSpinBox>

namespace kova::family::test {
namespace {

TEST_F(LabelWindowTest, SavesAPdf)
{
    desk_.path = File("e.pdf");
    The<QSpinBox>("quantidade").setValue(2);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(desk_.proposal.endsWith(
        QStringLiteral("/Etiqueta de endereço - José Antônio Peçanha 2026-03-09.pdf")))
        << desk_.proposal.toStdString();
    EXPECT_EQ(TextOf(File("e.pdf")).size(), 2 * std::string(LabelText).size() + 1);
    EXPECT_EQ(Shown("situacao"), "Salvo em e.pdf");
}

TEST_F(LabelWindowTest, PrintsByEnter)
{
    desk_.printTo = File("papel.pdf");
    The<QCheckBox>("apelido").setChecked(true);
    Press(Qt::Key_Return);
    EXPECT_EQ(TextOf(File("papel.pdf")), std::string("Zé ") + LabelText);
    EXPECT_EQ(Shown("situacao"), "Enviado para a impressora");
    EXPECT_TRUE(window_.isVisible());
}

TEST_F(LabelWindowTest, TellsOfAFolderThatCannotBeWrittenAndGoesOn)
{
    desk_.path = File("nada/e.pdf");
    toolkit.Queue().QueueReply(Reply::Ok);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_NE(Told().find("A pasta não existe."), std::string::npos) << Told();
    EXPECT_EQ(toolkit.Queue().Questions().back().kind, MessageKind::Critical);
    desk_.path = File("e.pdf");
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(TextOf(File("e.pdf")), LabelText);
}

} // namespace
} // namespace kova::family::test
