// A shop that is made from the question for one, step by step.

#include "family/data/sources/data_source.hpp"
#include "family/users/kept_sign_in.hpp"
#include "family/users/sign_in.hpp"
#include "host/session/session_clock.hpp"
#include "tests/support/little_memory.hpp"
#include "tests/support/sqlite_file.hpp"
#include "tests/unit/host/first_start/question_fixture.hpp"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>

#include <algorithm>
#include <string>
#include <vector>

namespace kova::host::test {

TEST_F(TheQuestionForAShop, MakesAShop)
{
    Open();
    Press("criar");
    Type("fantasia", "Pet Shop \"Céu\"");
    EXPECT_EQ(TextOf("arquivo"), (folder_ / "Pet Shop Céu.db").string());
    Type("arquivo", (folder_ / "nova" / "céu.db").c_str());
    Type("fantasia", "Pet Shop Céu");
    EXPECT_EQ(TextOf("arquivo"), (folder_ / "nova" / "céu.db").string()) << "the chosen one stays";
    Type("razao", "Céu Comércio Ltda.");
    Type("documento", "12.ABC.345/01DE-35");
    Type("telefone", "11 3333 4444");
    Type("endereco", "Rua das Flores, 12");
    Type("apelido", "Bia");
    Type("funcionario", "Beatriz Souza");
    QTest::keyClick(&Find<QLineEdit>("funcionario"), Qt::Key_Return);
    EXPECT_EQ(TextOf("usuario"), "Ana Maria");
    GiveAPassword();
    Type("pin", "2580");
    Type("pinDeNovo", "2580");
    QTest::keyClick(&Find<QLineEdit>("pinDeNovo"), Qt::Key_Return);
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
    EXPECT_EQ(made.Run("select usuario.nome || ';' || papel.nome from usuario join papel"
                       " on papel.codigo = codigo_do_papel"),
              std::vector<std::string>{"Ana Maria;Administração"});
    EXPECT_EQ(
        made.Run("select count(*) from usuario where senha like '$argon2id$%' and pin like '$argon2id$%'"),
        std::vector<std::string>{"1"});
    EXPECT_EQ(ContentOf(*Answer()).find("Gato-Preto"), std::string::npos);
    const SessionClock clock;
    EXPECT_EQ(family::SignInByToken(*family::OpenDatabase(*Answer()), question_->Chosen()->entry, clock).name,
              "Ana Maria")
        << "nobody is asked for a password twice";
}

TEST_F(TheQuestionForAShop, SaysWhoAdministersTheShopAndWhatHeCanDo)
{
    Open();
    Press("criar");
    Type("fantasia", "Céu");
    Press("avancar");
    std::vector<std::string> told;
    for (const QLabel* label : question_->findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() == nullptr && !label->text().isEmpty())
            told.push_back(label->text().toStdString());
    }
    for (const char* part :
         {"Quem administra a loja",
          "É o primeiro usuário: entra com este nome e esta senha, pode fazer tudo, e cadastra os outros em "
          "Cadastros, Usuários."})
        EXPECT_NE(std::ranges::find(told, part), told.end()) << part;
    GiveAPassword();
    for (int step = 0; step < 3; ++step)
        Press("avancar");
    ASSERT_NE(Answer(), std::nullopt);
    const auto database = family::OpenDatabase(*Answer());
    const SessionClock clock;
    const family::Secret password(std::string("Gato-Preto 1"));
    const auto entered = family::SignIn(*database, {"Ana Maria", password}, clock);
    EXPECT_TRUE(entered.IsDone()) << entered.text;
    EXPECT_EQ(entered.rights.size(), family::AllRights().size());
}

TEST_F(TheQuestionForAShop, MakesNoShopWhereThereIsNoMemoryForAPassword)
{
    BeginAShop();
    Press("avancar");
    {
        const kova::test::LittleMemory memory;
        Press("avancar");
    }
    EXPECT_EQ(Find<QLabel>("falha").text().toStdString(), kova::test::LittleMemory::Told);
    EXPECT_EQ(Answer(), std::nullopt);
    EXPECT_FALSE(fs::exists(folder_ / "Céu.db"));
    Press("avancar");
    ASSERT_NE(Answer(), std::nullopt);
    EXPECT_TRUE(fs::exists(*Answer()));
}

TEST_F(TheQuestionForAShop, WantsAPasswordThatWillDoTwice)
{
    Open();
    Press("criar");
    Type("fantasia", "Céu");
    Press("avancar");
    ASSERT_TRUE(Find<QLineEdit>("usuario").isVisible());
    for (const char* box : {"senha", "senhaDeNovo", "pin", "pinDeNovo"})
        EXPECT_EQ(Find<QLineEdit>(box).echoMode(), QLineEdit::Password) << box;
    Type("usuario", " ");
    Press("avancar");
    EXPECT_EQ(Reasons(),
              "Informe o nome de quem administra a loja.\n"
              "A senha precisa ter pelo menos 8 caracteres.\n");
    EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("usuario"));
    Type("usuario", "D'Ávila \"Lia\"");
    Type("senha", "Gato-Preto 1");
    Type("senhaDeNovo", "Gato-Preto 2");
    Type("pin", "1234");
    Press("avancar");
    EXPECT_EQ(Reasons(),
              "As duas senhas não são iguais.\nO PIN é fácil demais de adivinhar. Escolha outro.\n");
    EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("senhaDeNovo"));
    Type("senhaDeNovo", "Gato-Preto 1");
    Type("pin", "2580");
    Type("pinDeNovo", "2581");
    Press("avancar");
    EXPECT_EQ(Reasons(), "Os dois PINs não são iguais.\n");
    Type("pin", "");
    Type("pinDeNovo", "");
    for (int step = 0; step < 3; ++step)
        Press("avancar");
    ASSERT_NE(Answer(), std::nullopt);
    kova::test::SqliteFile made(*Answer());
    EXPECT_EQ(made.Run("select nome from usuario where pin is null"),
              std::vector<std::string>{"D'Ávila \"Lia\""});
}

TEST_F(TheQuestionForAShop, ProposesAFileThatBearsTheShopsNameUntilOneIsChosen)
{
    Open();
    Press("criar");
    EXPECT_EQ(TextOf("arquivo"), (folder_ / "loja.db").string());
    Type("fantasia", ".Céu");
    EXPECT_EQ(TextOf("arquivo"), (folder_ / "loja.db").string()) << "a dot would hide it";
    Type("fantasia", "Céu");
    AnswerFileDialog({});
    Press("pasta");
    EXPECT_EQ(TextOf("arquivo"), (folder_ / "Céu.db").string());
    Type("fantasia", "Lua");
    EXPECT_EQ(TextOf("arquivo"), (folder_ / "Lua.db").string());
    AnswerFileDialog(folder_ / "guardada.db");
    Press("pasta");
    Type("fantasia", "Sol");
    EXPECT_EQ(TextOf("arquivo"), (folder_ / "guardada.db").string());
}

TEST_F(TheQuestionForAShop, GoesThroughTheStepsOfANewShopAndBack)
{
    const auto offered = [this] { return Find<QPushButton>("avancar").text().toStdString(); };
    BeginAShop();
    EXPECT_EQ(offered(), "&Avançar");
    Press("avancar");
    EXPECT_TRUE(Find<QCheckBox>("Domingo").isVisible());
    EXPECT_EQ(offered(), "&Criar a loja");
    Press("voltar");
    EXPECT_TRUE(Find<QTableWidget>("servicos").isVisible());
    EXPECT_EQ(offered(), "&Avançar");
    Press("voltar");
    EXPECT_EQ(TextOf("senha"), "Gato-Preto 1") << "what was typed stays";
    Press("voltar");
    EXPECT_EQ(TextOf("fantasia"), "Céu");
    Press("voltar");
    EXPECT_TRUE(Find<QPushButton>("demonstracao").isVisible());
}

TEST_F(TheQuestionForAShop, MakesNoShopWithoutACompanyAUserAndAnEmployee)
{
    Open();
    Press("criar");
    for (const char* box : {"apelido", "arquivo"})
        Type(box, " ");
    Type("documento", "123");
    Type("telefone", "3333-4444");
    Press("avancar");
    EXPECT_EQ(Reasons(),
              "Informe o nome fantasia da empresa.\nNão é um CNPJ nem um CPF válido: confira os dígitos.\n"
              "O telefone 3333-4444 não tem DDD e oito ou nove dígitos, como (11) 3123-4567.\n"
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
    for (int step = 0; step < 3; ++step)
        Press("voltar");
    EXPECT_EQ(TextOf("fantasia"), "Céu");
    EXPECT_EQ(Answer(), std::nullopt);
    Type("arquivo", (folder_ / "outro.db").c_str());
    MakeWithTheRestAsItIs();
    EXPECT_EQ(Answer(), (folder_ / "outro.db").string());
}

TEST_F(TheQuestionForAShop, BeginsWithTheServicesThatWereLeftAndCorrected)
{
    BeginAShop();
    auto& table = Find<QTableWidget>("servicos");
    EXPECT_EQ(QApplication::focusWidget(), &table);
    const int rows = table.rowCount();
    ASSERT_GT(rows, 5);
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_EQ(table.item(0, 0)->checkState(), Qt::Unchecked);
    Correct(1, 0, "Banho especial");
    Correct(1, 2, "0");
    Press("avancar");
    EXPECT_TRUE(table.isVisible());
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(),
              "Linha 2: A duração é um número inteiro de minutos, de 1 a 1440.");
    Correct(1, 2, "50");
    Correct(1, 3, "caro");
    Press("avancar");
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(),
              "Linha 2: O preço é um valor em reais, como 60,00.");
    Correct(1, 3, "1.055,5");
    Correct(2, 0, "Banho especial");
    Press("avancar");
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(), "Linha 3: Já há um serviço com este nome.");
    Correct(2, 0, "Banho e tosa");
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

TEST_F(TheQuestionForAShop, TakesServicesWithANameOfAHundredLettersAndOfAMinuteToADay)
{
    BeginAShop();
    const std::string refusal = "Linha 1: O nome do serviço deve ter de 1 a 100 letras.";
    for (const std::string& name : {std::string(" "), std::string(101, 'b')}) {
        Correct(0, 0, name);
        Press("avancar");
        EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(), refusal);
    }
    Correct(0, 0, std::string(100, 'b'));
    Correct(0, 2, "1");
    Correct(1, 2, "1441");
    Press("avancar");
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(),
              "Linha 2: A duração é um número inteiro de minutos, de 1 a 1440.");
    Correct(1, 2, "1440");
    Press("avancar");
    EXPECT_TRUE(Find<QCheckBox>("Domingo").isVisible());
}

TEST_F(TheQuestionForAShop, LetsTheTabKeyLeaveTheServices)
{
    BeginAShop();
    auto& table = Find<QTableWidget>("servicos");
    ASSERT_EQ(QApplication::focusWidget(), &table);
    QTest::keyClick(&table, Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), &table);
}

TEST_F(TheQuestionForAShop, ShowsTheServicesAcrossTheWholeTableWithoutLines)
{
    BeginAShop();
    const auto& table = Find<QTableWidget>("servicos");
    EXPECT_EQ(table.horizontalHeader()->length(), table.viewport()->width());
    EXPECT_FALSE(table.showGrid());
}

TEST_F(TheQuestionForAShop, BeginsWithTheDaysAndHoursThatWereGiven)
{
    BeginAShop();
    Press("avancar");
    EXPECT_FALSE(Find<QLineEdit>("Domingo das").isEnabled());
    QTest::keyClick(&Find<QCheckBox>("Segunda-feira"), Qt::Key_Space);
    Type("Terça-feira das", "18:00");
    Press("avancar");
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(),
              "Terça-feira: informe duas horas, como 08:00 e 18:00, a segunda depois da primeira.");
    EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("Terça-feira às"));
    for (const char* noBeginning : {"cedo", "", "24:00"}) {
        Type("Terça-feira das", noBeginning);
        Press("avancar");
        EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("Terça-feira das")) << noBeginning;
    }
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
    BeginAShop();
    Press("avancar");
    for (const char* day :
         {"Segunda-feira", "Terça-feira", "Quarta-feira", "Quinta-feira", "Sexta-feira", "Sábado"})
        QTest::keyClick(&Find<QCheckBox>(day), Qt::Key_Space);
    Press("avancar");
    EXPECT_EQ(Find<QLabel>("recusa").text().toStdString(), "Marque ao menos um dia em que a loja abre.");
    EXPECT_EQ(Answer(), std::nullopt);
}

} // namespace kova::host::test
