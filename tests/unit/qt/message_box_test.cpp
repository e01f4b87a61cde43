#include "tests/unit/qt/support.hpp"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace kova::qt::test {
namespace {

class Messages : public QtTest {
protected:
    // What the user does once the box is open.
    void Then(std::function<void(QMessageBox&)> act)
    {
        QTimer::singleShot(0, qApp, [act] {
            auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            act(*box);
        });
    }

    static QAbstractButton* Button(const QMessageBox& box, const char* text)
    {
        for (QAbstractButton* button : box.buttons()) {
            if (button->text().remove('&') == QString::fromUtf8(text))
                return button;
        }
        return nullptr;
    }
};

TEST_F(Messages, AskInPortugueseAndAnswerYes)
{
    Then([](QMessageBox& box) {
        EXPECT_EQ(box.text().toStdString(), "Excluir?\nTem certeza?");
        EXPECT_EQ(box.windowTitle(), "Agenda");
        ASSERT_NE(Button(box, "Sim"), nullptr);
        Button(box, "Sim")->click();
    });
    EXPECT_EQ(toolkit_.MessageBox(MessageKind::Question, "Excluir?\r\nTem certeza?", "Agenda"), Reply::Yes);
}

TEST_F(Messages, AnswerNoByEnterAndByEscape)
{
    Then([](QMessageBox& box) { Press(Button(box, "Não"), Qt::Key_Return); });
    EXPECT_EQ(toolkit_.MessageBox(MessageKind::Question, "Excluir?", "Agenda"), Reply::No);
    Then([](QMessageBox& box) { Press(&box, Qt::Key_Escape); });
    EXPECT_EQ(toolkit_.MessageBox(MessageKind::Question, "Excluir?", "Agenda"), Reply::No);
}

TEST_F(Messages, MakeNoTheDefault)
{
    Then([](QMessageBox& box) {
        EXPECT_EQ(box.defaultButton(), Button(box, "Não"));
        box.close();
    });
    EXPECT_EQ(toolkit_.MessageBox(MessageKind::Question, "Excluir?", "Agenda"), Reply::No);
}

TEST_F(Messages, HaveOneOkOtherwise)
{
    for (MessageKind kind : {MessageKind::Information, MessageKind::Critical, MessageKind::Plain}) {
        Then([](QMessageBox& box) {
            EXPECT_EQ(box.buttons().size(), 1);
            ASSERT_NE(Button(box, "OK"), nullptr);
            Button(box, "OK")->click();
        });
        EXPECT_EQ(toolkit_.MessageBox(kind, "Pronto.", ""), Reply::Ok);
    }
}

TEST_F(Messages, KeepTheUserOutOfTheForms)
{
    FormRef form = Show({Design(WidgetKind::KVTextBox, "kvtxt", 0, 0, 3000, 510)});
    auto& text = Bind<KVTextBox>(form, "kvtxt");
    Then([&](QMessageBox& box) {
        Type(FocusWindowOf(text), "x");
        box.close();
    });
    toolkit_.MessageBox(MessageKind::Plain, "Espere.", "");
    EXPECT_EQ(text.Text(), "");
}

} // namespace
} // namespace kova::qt::test
