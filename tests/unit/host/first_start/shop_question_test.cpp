// The question for a shop, answered as a user does: by the mouse and by keys.

#include "host/first_start/shop_question.hpp"

#include "tests/support/sqlite_file.hpp"
#include "tests/unit/host/program_run.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <future>

namespace kova::host::test {

namespace {

class TheQuestionForAShop : public WithApplication {
protected:
    ShopQuestion& Open(std::vector<RememberedShop> remembered = {})
    {
        question_.emplace(ShopQuestion::Surroundings{std::move(remembered), "/casa/ana/demonstracao.db",
                                                     "Ana Maria", folder_.Path().string(), look_},
                          nullptr);
        question_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*question_));
        return *question_;
    }

    /// The one on the page that is in front.
    template <class Kind> Kind& Find(const char* name)
    {
        for (Kind* one : question_->findChildren<Kind*>(QString::fromUtf8(name))) {
            if (one->isVisible())
                return *one;
        }
        ADD_FAILURE() << "there is no " << name << " on the page";
        throw std::logic_error(name);
    }

    void Press(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }
    void Type(const char* box, const char* text)
    {
        Find<QLineEdit>(box).setFocus();
        Find<QLineEdit>(box).clear();
        for (const QChar letter : QString::fromUtf8(text))
            QTest::sendKeyEvent(QTest::Click, &Find<QLineEdit>(box), Qt::Key_unknown, QString(letter),
                                Qt::NoModifier);
    }
    /// From the company to the last step, and on.
    void MakeWithTheRestAsItIs()
    {
        for (int step = 0; step < 3; ++step)
            Press("avancar");
    }
    std::string TextOf(const char* box) { return Find<QLineEdit>(box).text().toStdString(); }

    /// All the reasons that stand below fields, one in a line.
    std::string Reasons()
    {
        std::string reasons;
        for (const QLineEdit* box : question_->findChildren<QLineEdit*>()) {
            if (box->isVisible() && !box->accessibleDescription().isEmpty())
                reasons += box->accessibleDescription().toStdString() + "\n";
        }
        return reasons;
    }

    /// Nothing while it stands there.
    std::optional<std::string> Answer()
    {
        return question_->isVisible() ? std::nullopt : question_->Chosen();
    }

    void AwaitOutcome()
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return !question_->isVisible() || Find<QPushButton>("abrir").isEnabled(); }));
    }

    TemporaryFolder folder_;
    SourceTrial::Look look_ = [](const std::string& source) {
        return source == "/casa/ana/loja.db"
            ? std::nullopt
            : std::optional<std::string>("O arquivo \"" + source + "\" não existe.");
    };
    std::optional<ShopQuestion> question_;
};

} // namespace

TEST_F(TheQuestionForAShop, TakesTheDemonstration)
{
    Open();
    Press("demonstracao");
    EXPECT_EQ(Answer(), "/casa/ana/demonstracao.db");
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
    look_ = [awaited = answered.get_future().share()](const std::string&) {
        awaited.wait();
        return std::optional<std::string>("O servidor não pode ser alcançado.");
    };
    Open();
    Press("abrir");
    Type("fonte", "postgresql://servidor/loja");
    Press("testar");
    EXPECT_EQ(Find<QLabel>("resultado").text(), "Procurando a loja...");
    EXPECT_FALSE(Find<QPushButton>("abrir").isEnabled());
    Press("voltar");
    EXPECT_TRUE(Find<QPushButton>("demonstracao").isVisible());
    answered.set_value();
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return question_->findChild<QLabel*>(QStringLiteral("resultado"))->text().isEmpty(); }));
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

TEST_F(TheQuestionForAShop, MakesAShop)
{
    Open();
    Press("criar");
    EXPECT_EQ(TextOf("usuario"), "Ana Maria");
    Type("fantasia", "Pet Shop \"Céu\"");
    EXPECT_EQ(TextOf("arquivo"), (folder_ / "Pet Shop Céu.db").string());
    Type("arquivo", (folder_ / "nova" / "céu.db").c_str());
    Type("fantasia", "Pet Shop Céu");
    EXPECT_EQ(TextOf("arquivo"), (folder_ / "nova" / "céu.db").string()) << "the chosen one stays";
    Type("razao", "Céu Comércio Ltda.");
    Type("documento", "12.ABC.345/01DE-35");
    Type("telefone", "(11) 3333-4444");
    Type("endereco", "Rua das Flores, 12");
    Type("apelido", "Bia");
    Type("funcionario", "Beatriz Souza");
    QTest::keyClick(&Find<QLineEdit>("funcionario"), Qt::Key_Return);
    ASSERT_TRUE(Find<QTableWidget>("servicos").isVisible());
    Press("avancar");
    Press("avancar");

    ASSERT_EQ(Answer(), (folder_ / "nova" / "céu.db").string());
    kova::test::SqliteFile made(*Answer());
    EXPECT_EQ(made.Run("select nome_fantasia || ';' || razao_social || ';' || cnpj || ';' || telefone || ';' "
                       "|| endereco "
                       "from empresa"),
              std::vector<std::string>{
                  "Pet Shop Céu;Céu Comércio Ltda.;12ABC34501DE35;(11) 3333-4444;Rua das Flores, 12"});
    EXPECT_EQ(made.Run("select apelido || ';' || nome from funcionario"),
              std::vector<std::string>{"Bia;Beatriz Souza"});
    EXPECT_EQ(made.Run("select nome from usuario"), std::vector<std::string>{"Ana Maria"});
}

TEST_F(TheQuestionForAShop, MakesNoShopWithoutACompanyAUserAndAnEmployee)
{
    Open();
    Press("criar");
    for (const char* box : {"usuario", "apelido", "arquivo"})
        Type(box, " ");
    Type("documento", "123");
    Press("avancar");
    EXPECT_EQ(Reasons(),
              "Informe o nome fantasia da empresa.\nNão é um CNPJ nem um CPF válido: confira os dígitos.\n"
              "Informe o nome de quem usa este computador.\n"
              "Informe como o(a) primeiro(a) funcionário(a) é chamado(a).\n"
              "Informe o arquivo em que a loja fica guardada.\n");
    EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("fantasia"));
    Type("fantasia", "Céu");
    EXPECT_TRUE(Find<QLineEdit>("fantasia").accessibleDescription().isEmpty());
    EXPECT_EQ(Answer(), std::nullopt);
}

TEST_F(TheQuestionForAShop, OverwritesNoFile)
{
    WriteFile(folder_ / "ocupado.db", "conteúdo");
    Open();
    Press("criar");
    Type("fantasia", "Céu");
    Type("arquivo", (folder_ / "ocupado.db").c_str());
    MakeWithTheRestAsItIs();
    EXPECT_NE(Find<QLabel>("falha").text().toStdString().find("já existe"), std::string::npos)
        << Find<QLabel>("falha").text().toStdString();
    EXPECT_EQ(ContentOf(folder_ / "ocupado.db"), "conteúdo");
    Press("voltar");
    Press("voltar");
    EXPECT_EQ(TextOf("fantasia"), "Céu");
    EXPECT_EQ(Answer(), std::nullopt);
    Type("arquivo", (folder_ / "outro.db").c_str());
    MakeWithTheRestAsItIs();
    EXPECT_EQ(Answer(), (folder_ / "outro.db").string());
}

TEST_F(TheQuestionForAShop, BeginsWithTheServicesThatWereLeftAndCorrected)
{
    Open();
    Press("criar");
    Type("fantasia", "Céu");
    Press("avancar");
    auto& table = Find<QTableWidget>("servicos");
    EXPECT_EQ(QApplication::focusWidget(), &table);
    const int rows = table.rowCount();
    ASSERT_GT(rows, 5);
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_EQ(table.item(0, 0)->checkState(), Qt::Unchecked);
    const auto correct = [&](int row, int column, const char* text) {
        table.setCurrentCell(row, column);
        QTest::keyClick(&table, Qt::Key_F2);
        QWidget* editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, QString::fromUtf8(text));
        QTest::keyClick(editor, Qt::Key_Return);
    };
    correct(1, 0, "Banho especial");
    correct(1, 2, "0");
    Press("avancar");
    EXPECT_TRUE(table.isVisible());
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(),
              "Linha 2: A duração é um número inteiro de minutos, de 1 a 1440.");
    correct(1, 2, "50");
    correct(1, 3, "caro");
    Press("avancar");
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(),
              "Linha 2: O preço é um valor em reais, como 60,00.");
    correct(1, 3, "1.055,5");
    correct(2, 0, "Banho especial");
    Press("avancar");
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(), "Linha 3: Já há um serviço com este nome.");
    correct(2, 0, "Banho e tosa");
    Press("avancar");
    Press("avancar");

    ASSERT_NE(Answer(), std::nullopt);
    kova::test::SqliteFile made(*Answer());
    EXPECT_EQ(made.Run("select count(*) from servico"), std::vector<std::string>{std::to_string(rows - 1)});
    EXPECT_EQ(
        made.Run(
            "select nome, nome_de_busca, duracao_em_minutos, preco_em_centavos, numero_do_tipo_de_servico"
            " from servico where codigo = 1"),
        std::vector<std::string>{"Banho especial|banho especial|50|105550|4"});
    EXPECT_EQ(made.Run("select nome from servico where quantidade_de_sessoes = 4"),
              std::vector<std::string>{"Pacote de 4 banhos"});
}

TEST_F(TheQuestionForAShop, BeginsWithTheDaysAndHoursThatWereGiven)
{
    Open();
    Press("criar");
    Type("fantasia", "Céu");
    Press("avancar");
    Press("avancar");
    EXPECT_FALSE(Find<QLineEdit>("Domingo das").isEnabled());
    QTest::keyClick(&Find<QCheckBox>("Segunda-feira"), Qt::Key_Space);
    Type("Terça-feira das", "18:00");
    Press("avancar");
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(),
              "Terça-feira: informe duas horas, como 08:00 e 18:00, a segunda depois da primeira.");
    EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("Terça-feira às"));
    Type("Terça-feira das", "9:30");
    Type("Sábado às", "24:00");
    Press("avancar");
    ASSERT_NE(Answer(), std::nullopt);
    kova::test::SqliteFile made(*Answer());
    EXPECT_EQ(
        made.Run("select dia_da_semana, hora_inicial, hora_final from expediente order by dia_da_semana"),
        (std::vector<std::string>{"3|09:30|18:00", "4|08:00|18:00", "5|08:00|18:00", "6|08:00|18:00",
                                  "7|08:00|24:00"}));
}

TEST_F(TheQuestionForAShop, WantsADayOnWhichTheShopIsOpen)
{
    Open();
    Press("criar");
    Type("fantasia", "Céu");
    Press("avancar");
    Press("avancar");
    for (const char* day :
         {"Segunda-feira", "Terça-feira", "Quarta-feira", "Quinta-feira", "Sexta-feira", "Sábado"})
        QTest::keyClick(&Find<QCheckBox>(day), Qt::Key_Space);
    Press("avancar");
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(), "Marque ao menos um dia em que a loja abre.");
    EXPECT_EQ(Answer(), std::nullopt);
}

} // namespace kova::host::test
