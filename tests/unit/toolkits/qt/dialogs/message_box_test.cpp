#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QDialog>
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

TEST_F(Messages, CarryTheMarkOfTheirKind)
{
    const auto mark = [&](MessageKind kind) {
        QImage image;
        Then([&](QMessageBox& box) {
            image = box.iconPixmap().toImage();
            box.close();
        });
        toolkit_.MessageBox(kind, "Pronto.", "");
        return image;
    };
    const auto inkOf = [](const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == look::Paper ? 1 : 0;
        return count;
    };
    const auto ground = [](const QImage& image) { return image.pixelColor(image.width() / 2, 3); };
    EXPECT_TRUE(mark(MessageKind::Plain).isNull());
    const QImage information = mark(MessageKind::Information);
    const QImage question = mark(MessageKind::Question);
    const QImage critical = mark(MessageKind::Critical);
    ASSERT_FALSE(information.isNull() || question.isNull() || critical.isNull());
    EXPECT_EQ(ground(information), look::Accent);
    EXPECT_EQ(ground(question), look::Accent);
    EXPECT_EQ(ground(critical), look::Danger);
    EXPECT_GT(inkOf(question), inkOf(information)) << "a question mark is wider than an i";
}

TEST_F(Messages, StandOverAModalWindowAlsoWhileTheUserIsInAnotherProgram)
{
    FormRef form = Show({});
    QDialog modal;
    modal.setModal(true);
    modal.show();
    QApplication::setActiveWindow(nullptr);
    Then([&modal](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &modal);
        box.close();
    });
    toolkit_.MessageBox(MessageKind::Plain, "Pronto.", "");
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
