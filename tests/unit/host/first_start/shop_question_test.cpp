#include "tests/unit/host/first_start/question_fixture.hpp"

#include <QLabel>
#include <QListWidget>
#include <QScrollArea>

#include <atomic>
#include <future>

namespace kova::host::test {

TEST_F(TheQuestionForAShop, TakesTheDemonstration)
{
    Open();
    Press("demonstracao");
    EXPECT_EQ(Answer(), "/casa/ana/demonstracao.db");
}

TEST_F(TheQuestionForAShop, IsAnsweredByTheEnterKeyToo)
{
    Open();
    Find<QPushButton>("demonstracao").setFocus();
    QTest::keyClick(&Find<QPushButton>("demonstracao"), Qt::Key_Return);
    EXPECT_EQ(Answer(), "/casa/ana/demonstracao.db");
}

TEST_F(TheQuestionForAShop, FillsItsWidthAndNeedsNoMore)
{
    const auto expectThatItFits = [this](const char* page) {
        for (const QScrollArea* area : question_->findChildren<QScrollArea*>()) {
            if (!area->isVisible())
                continue;
            EXPECT_EQ(area->widget()->width(), area->viewport()->width()) << page;
            return;
        }
        ADD_FAILURE() << "there is no " << page;
    };
    Open();
    expectThatItFits("question");
    Press("abrir");
    expectThatItFits("shop that is there");
    Press("voltar");
    Press("criar");
    expectThatItFits("company");
    Type("fantasia", "Céu");
    Press("avancar");
    expectThatItFits("list of services");
    Press("avancar");
    expectThatItFits("week");
}

TEST_F(TheQuestionForAShop, IsLeftWithoutAnAnswer)
{
    Open();
    QTest::keyClick(&*question_, Qt::Key_Escape);
    EXPECT_FALSE(question_->isVisible());
    EXPECT_EQ(Answer(), std::nullopt);
}

TEST_F(TheQuestionForAShop, OffersTheShopsThatWereOpenedBefore)
{
    Open({{"/casa/ana/loja.db", "Pet Shop Céu"}, {"/outra.db", ""}});
    auto& list = Find<QListWidget>("lojas");
    EXPECT_EQ(list.item(0)->text(), QString::fromUtf8("Pet Shop Céu  -  /casa/ana/loja.db"));
    EXPECT_EQ(list.item(1)->text(), "/outra.db");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(Answer(), "/outra.db");
}

TEST_F(TheQuestionForAShop, TellsWhyAShopCouldNotBeOpened)
{
    Open().Tell("O arquivo sumiu.\r\nProcure-o.");
    EXPECT_EQ(Find<QLabel>("recado").text(), "O arquivo sumiu.\nProcure-o.");
}

TEST_F(TheQuestionForAShop, OpensAShopThatIsThere)
{
    Open();
    Press("abrir");
    Type("fonte", "/casa/ana/loja.db");
    QTest::keyClick(&Find<QLineEdit>("fonte"), Qt::Key_Return);
    AwaitOutcome();
    EXPECT_EQ(Answer(), "/casa/ana/loja.db");
}

TEST_F(TheQuestionForAShop, OnlyTriesAShopWhereThatIsAsked)
{
    Open();
    Press("abrir");
    Type("fonte", "/casa/ana/loja.db");
    Press("testar");
    AwaitOutcome();
    EXPECT_EQ(Find<QLabel>("resultado").text(), "A loja foi encontrada e pode ser aberta.");
    EXPECT_EQ(Answer(), std::nullopt);
    Type("fonte", "outra");
    EXPECT_EQ(Find<QLabel>("resultado").text(), "") << "another one was not tried";
}

TEST_F(TheQuestionForAShop, TellsAtTheFieldWhyAShopCannotBeOpened)
{
    Open();
    Press("abrir");
    Press("abrir");
    EXPECT_EQ(Reasons(), "Informe o arquivo ou o endereço da loja.\n");
    Type("fonte", "/nada.db");
    EXPECT_EQ(Reasons(), "");
    Press("abrir");
    AwaitOutcome();
    EXPECT_EQ(Reasons(), "O arquivo \"/nada.db\" não existe.\n");
    EXPECT_EQ(TextOf("fonte"), "/nada.db");
    EXPECT_EQ(Answer(), std::nullopt);
}

TEST_F(TheQuestionForAShop, WaitsForAServerWithoutStandingStill)
{
    std::promise<void> answered;
    std::atomic<int> looks = 0;
    look_ = [&looks, awaited = answered.get_future().share()](const std::string&) {
        ++looks;
        awaited.wait();
        return std::optional<std::string>("O servidor não pode ser alcançado.");
    };
    Open();
    Press("abrir");
    Type("fonte", "postgresql://servidor/loja");
    Press("testar");
    EXPECT_EQ(Find<QLabel>("resultado").text(), "Procurando a loja...");
    EXPECT_FALSE(Find<QPushButton>("abrir").isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("fonte"));
    QTest::keyClick(&Find<QLineEdit>("fonte"), Qt::Key_Return);
    Press("voltar");
    EXPECT_TRUE(Find<QPushButton>("demonstracao").isVisible());
    answered.set_value();
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return question_->findChild<QLabel*>(QStringLiteral("resultado"))->text().isEmpty(); }));
    EXPECT_EQ(looks, 1);
}

TEST_F(TheQuestionForAShop, LetsAFileOfAShopBeLookedFor)
{
    WriteFile(folder_ / "loja.db", "");
    Open();
    Press("abrir");
    Press("testar");
    ASSERT_NE(Reasons(), "");
    AnswerFileDialog(folder_ / "loja.db");
    Press("procurar");
    EXPECT_EQ(TextOf("fonte"), (folder_ / "loja.db").string());
    EXPECT_EQ(Reasons(), "");
    AnswerFileDialog({});
    Press("procurar");
    EXPECT_EQ(TextOf("fonte"), (folder_ / "loja.db").string());
}

TEST_F(TheQuestionForAShop, TellsOfATrialThatFails)
{
    look_ = [](const std::string&) -> std::optional<std::string> { throw std::runtime_error("sem memória"); };
    Open();
    Press("abrir");
    Type("fonte", "x.db");
    Press("abrir");
    AwaitOutcome();
    EXPECT_EQ(Reasons(), "sem memória\n");
}

} // namespace kova::host::test
