// The label window: fields, keys, sheets, output.

#include "family/presentation/scrolled_body.hpp"
#include "tests/unit/family/presentation/labels/label_window_fixture.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::family::test {
namespace {

TEST_F(LabelWindowTest, ListsTheKeysThatWorkNowOnF1)
{
    const auto keys = [this] {
        // As a window manager does when the list of keys has closed.
        QApplication::setActiveWindow(&window_);
        std::vector<std::string> shown;
        QTimer::singleShot(0, qApp, [&shown] {
            auto* list = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(list, nullptr);
            for (const QLabel* label : list->findChildren<QLabel*>())
                shown.push_back(label->text().toStdString());
            QTest::keyClick(list, Qt::Key_Escape);
        });
        Press(Qt::Key_F1);
        return shown;
    };
    const std::vector<std::string> first = keys();
    ASSERT_GE(first.size(), 2U);
    EXPECT_EQ(first[0], "Enter");
    EXPECT_EQ(first[1], "Imprimir");
    EXPECT_EQ(std::ranges::count(first, "PgDn"), 0);
    The<QSpinBox>("quantidade").setValue(999);
    const std::vector<std::string> many = keys();
    EXPECT_EQ(std::ranges::count(many, "PgDn"), 1);
    EXPECT_EQ(std::ranges::count(many, "PgUp"), 0);
    EXPECT_TRUE(window_.isVisible());
}

TEST_F(LabelWindowTest, KeepsItsButtonsInSightOnASmallScreen)
{
    window_.resize(400, 300);
    EXPECT_EQ(window_.size(), QSize(400, 300));
    for (const char* name : {"salvar", "imprimir", "fechar"}) {
        QPushButton& button = The<QPushButton>(name);
        EXPECT_EQ(button.visibleRegion().boundingRect(), button.rect()) << name;
    }
    auto& nickname = The<QCheckBox>("apelido");
    nickname.setFocus();
    Press(Qt::Key_Tab);
    EXPECT_FALSE(View().visibleRegion().isEmpty());
}

TEST_F(LabelWindowTest, ShowsThatTheSheetHasTheFocus)
{
    const QPoint edge(0, View().height() / 2);
    const QColor before = View().grab().toImage().pixelColor(edge);
    View().setFocus();
    EXPECT_NE(View().grab().toImage().pixelColor(edge), before);
}

TEST_F(LabelTest, LetsContentThatIsLargerThanTheScreenScroll)
{
    QDialog window;
    auto* content = new QVBoxLayout;
    auto* large = new QWidget;
    large->setMinimumSize(3000, 3000);
    content->addWidget(large);
    auto* body = new ScrolledBody(content, &window);
    auto* rows = new QVBoxLayout(&window);
    rows->addWidget(body);
    auto* close = new QPushButton(QStringLiteral("Fechar"));
    rows->addWidget(close);
    FitToScreen(window, *body);
    window.show();
    EXPECT_EQ(window.size(), RoomOnScreen(window));
    EXPECT_TRUE(window.screen()->availableGeometry().contains(QRect(QPoint(), window.frameSize())));
    EXPECT_EQ(close->visibleRegion().boundingRect(), close->rect());
    EXPECT_GT(body->verticalScrollBar()->maximum(), 0);
}

TEST_F(LabelWindowTest, OpensOnOneLabelAtTheSheetsBeginning)
{
    EXPECT_EQ(First(), "1,1");
    EXPECT_EQ(LabelsOnSheets(), std::vector<std::size_t>{1});
    EXPECT_EQ(Focused(), "quantidade");
    EXPECT_EQ(Shown("numero"), "Folha 1 de 1");
    EXPECT_EQ(Shown("resumo"), "1 folha; sobram 13 etiquetas na última");
    EXPECT_TRUE(The<QPushButton>("imprimir").isDefault());
}

TEST_F(LabelWindowTest, IsWalkedThroughByTab)
{
    std::vector<std::string> order;
    for (int field = 0; field < 8; ++field) {
        order.push_back(Focused());
        Press(Qt::Key_Tab);
    }
    EXPECT_EQ(order,
              (std::vector<std::string>{"quantidade", "linha", "coluna", "apelido", "posicao", "salvar",
                                        "imprimir", "fechar"}));
    EXPECT_EQ(Focused(), "folha");
}

TEST_F(LabelWindowTest, ReachesEachFieldByItsLetter)
{
    const std::pair<Qt::Key, const char*> letters[] = {{Qt::Key_F, "folha"},
                                                       {Qt::Key_L, "linha"},
                                                       {Qt::Key_C, "coluna"},
                                                       {Qt::Key_V, "posicao"},
                                                       {Qt::Key_Q, "quantidade"}};
    for (const auto& [letter, field] : letters) {
        Press(letter, Qt::AltModifier);
        EXPECT_EQ(Focused(), field);
    }
    Press(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(The<QCheckBox>("apelido").isChecked());
}

TEST_F(LabelWindowTest, ClosesByEscape)
{
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(LabelWindowTest, RunsOverToTheNextSheets)
{
    The<QSpinBox>("linha").setValue(7);
    The<QSpinBox>("coluna").setValue(2);
    The<QSpinBox>("quantidade").setValue(16);
    EXPECT_EQ(LabelsOnSheets(), (std::vector<std::size_t>{1, 14, 1}));
    EXPECT_EQ(Shown("resumo"), "3 folhas; sobram 13 etiquetas na última");
    The<QSpinBox>("quantidade").setValue(15);
    EXPECT_EQ(Shown("resumo"), "2 folhas; nenhuma etiqueta sobra na última");
    The<QSpinBox>("quantidade").setValue(14);
    EXPECT_EQ(Shown("resumo"), "2 folhas; sobra 1 etiqueta na última");
}

TEST_F(LabelWindowTest, TurnsItsSheetsByKey)
{
    The<QSpinBox>("quantidade").setValue(30);
    EXPECT_FALSE(The<QToolButton>("anterior").isEnabled());
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Shown("numero"), "Folha 2 de 3");
    EXPECT_TRUE(The<QToolButton>("anterior").isEnabled());
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Shown("numero"), "Folha 3 de 3");
    EXPECT_FALSE(The<QToolButton>("proxima").isEnabled());
    Press(Qt::Key_PageUp);
    EXPECT_EQ(Shown("numero"), "Folha 2 de 3");
}

TEST_F(LabelWindowTest, ChoosesTheFirstFreeLabelWithTheArrows)
{
    Press(Qt::Key_V, Qt::AltModifier);
    Press(Qt::Key_Down);
    Press(Qt::Key_Right);
    EXPECT_EQ(First(), "2,2");
    Press(Qt::Key_Right);
    EXPECT_EQ(First(), "3,1");
    Press(Qt::Key_Left);
    Press(Qt::Key_Up);
    EXPECT_EQ(First(), "1,2");
    Press(Qt::Key_Up);
    EXPECT_EQ(First(), "1,2") << "there is no row above";
    Press(Qt::Key_End);
    EXPECT_EQ(First(), "7,2");
    Press(Qt::Key_Right);
    EXPECT_EQ(First(), "7,2") << "there is no label behind the last";
    Press(Qt::Key_Home);
    EXPECT_EQ(First(), "1,1");
    EXPECT_EQ(Focused(), "posicao");
}

TEST_F(LabelWindowTest, ChoosesTheFirstFreeLabelByAClick)
{
    LabelSheetView& view = View();
    // The sheet's middle row, right column; the paper stands in the middle of the view.
    const double paper = 210.0 / 297.0 * (view.height() - 12);
    const QPoint at(view.width() / 2 + static_cast<int>(paper / 4), view.height() / 2);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, at);
    EXPECT_EQ(First(), "4,2");
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    EXPECT_EQ(First(), "4,2") << "beside the paper";
}

TEST_F(LabelWindowTest, BeginsAnotherSheetAtItsFirstLabel)
{
    The<QSpinBox>("linha").setValue(2);
    The<QComboBox>("folha").setCurrentIndex(The<QComboBox>("folha").findData(QStringLiteral("carta-2x5")));
    EXPECT_EQ(First(), "1,1");
    EXPECT_EQ(The<QSpinBox>("linha").maximum(), 5);
    EXPECT_STREQ(window_.Sheet().key, "carta-2x5");
}

TEST_F(LabelWindowTest, RemembersWhatWasChosen)
{
    EXPECT_EQ(window_.Choice(), (LabelChoice{"A4-2x7", false}));
    The<QComboBox>("folha").setCurrentIndex(3);
    The<QCheckBox>("apelido").setChecked(true);
    EXPECT_EQ(window_.Choice(), (LabelChoice{"A4-3x11", true}));
    const LabelWindow again(Jose(), window_.Choice(), desk_, {2026, 3, 9});
    EXPECT_EQ(again.Choice(), window_.Choice());
}

TEST_F(LabelWindowTest, HasWhatIsSavedOrPrintedNotedAndTellsWhereItCannotBe)
{
    std::vector<std::string> noted;
    desk_.NotePrints([&](const reports::Document& labels, const QString& file) {
        noted.push_back(std::to_string(labels.pages.size()) + "|" + file.toStdString());
        return file.isEmpty() ? QStringLiteral("O disco está cheio.") : QString();
    });
    desk_.path = File("e.pdf");
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(toolkit.Queue().Questions().empty());
    desk_.printTo = File("papel.pdf");
    Press(Qt::Key_Return);
    EXPECT_EQ(noted, (std::vector<std::string>{"1|" + File("e.pdf").toStdString(), "1|"}));
    EXPECT_NE(toolkit.Queue().Questions().back().text.find("O disco está cheio."), std::string::npos);
}

TEST_F(LabelWindowTest, DoesNothingForAUserWhoThinksBetterOfIt)
{
    Press(Qt::Key_S, Qt::AltModifier);
    Press(Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(desk_.asked, 2);
    EXPECT_EQ(Shown("situacao"), "");
    EXPECT_EQ(Told(), "");
}

TEST_F(LabelWindowTest, TellsWhereThereIsNoPrinter)
{
    desk_.hasPrinter = false;
    toolkit.Queue().QueueReply(Reply::Ok);
    Press(Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(Told(),
              "Nenhuma impressora foi encontrada neste computador.\r\n\r\n"
              "Instale uma impressora ou use \"Salvar em PDF\".");
    EXPECT_EQ(toolkit.Queue().Questions().back().title, "Kova");
    EXPECT_EQ(desk_.asked, 0);
}

TEST_F(LabelWindowTest, TellsOfAPaperThatIsNotTheSheets)
{
    desk_.printTo = File("papel.pdf");
    desk_.otherPaper = QPageSize::A5;
    toolkit.Queue().QueueReply(Reply::Ok);
    Press(Qt::Key_I, Qt::AltModifier);
    EXPECT_NE(Told().find("Escolha o papel A4"), std::string::npos) << Told();
    EXPECT_EQ(Shown("situacao"), "");
}

} // namespace
} // namespace kova::family::test
