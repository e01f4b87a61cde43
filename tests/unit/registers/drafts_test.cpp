// What is typed and not saved outlives the program.

#include "tests/support/own_file.hpp"
#include "tests/unit/registers/registers_fixture.hpp"

#include "screens/draft_folder.hpp"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QProcess>

#include <filesystem>
#include <fstream>

namespace kova::registers::test {

using Lines = std::vector<std::string>;

class Drafts : public CadastrosTest {
protected:
    QString Folder() const { return QString::fromStdString((folder_.Path() / "rascunhos").string()); }
    QString FileOf(const char* name) const { return Folder() + QStringLiteral("/1/") + QLatin1String(name); }
    std::shared_ptr<screens::DraftFolder> OpenFolder() const
    {
        return std::make_shared<screens::DraftFolder>(Folder());
    }

    /// Another program types a nickname of the first customer, Ana Lúcia Prado, and is killed.
    void TypeElsewhereAndCrash(const char* nickname)
    {
        QProcess other;
        other.setProcessChannelMode(QProcess::ForwardedChannels);
        other.start(QStringLiteral(TYPIST),
                    {QString::fromStdString(file_), Folder(), QString::fromUtf8(nickname)});
        ASSERT_TRUE(other.waitForStarted());
        ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(FileOf("clientes")); }, 60'000));
        other.kill();
        ASSERT_TRUE(other.waitForFinished());
        ASSERT_EQ(other.exitStatus(), QProcess::CrashExit);
    }
};

TEST_F(Drafts, KeepWhatWasTypedInAProgramThatWasKilled)
{
    TypeElsewhereAndCrash("Aninha");
    EXPECT_TRUE(kova::test::IsForItsOwnerAlone(FileOf("clientes").toStdString()));
    OpenWithDrafts(Folder(), {"Continuar"});
    ASSERT_EQ(boxes_.size(), 1U);
    EXPECT_EQ(boxes_[0].find("Há alterações não salvas de Clientes: Ana Lúcia Prado."), 0U) << boxes_[0];
    EXPECT_EQ(TextOf("Apelido"), "Aninha");
    EXPECT_EQ(Find<QTableView>("lista").currentIndex().row(), 0);
    Press("salvar");
    EXPECT_EQ(Stored("select apelido from cliente where codigo = 2"), Lines{"Aninha"});
    EXPECT_FALSE(QFile::exists(FileOf("clientes"))) << "what is saved needs no draft";
}

TEST_F(Drafts, ThatAreThrownAwayAreNotOfferedAgain)
{
    TypeElsewhereAndCrash("Aninha");
    OpenWithDrafts(Folder(), {"Descartar"});
    EXPECT_EQ(boxes_.size(), 1U);
    EXPECT_EQ(TextOf("Apelido"), "");
    EXPECT_FALSE(QFile::exists(FileOf("clientes")));
    OpenWithDrafts(Folder());
    EXPECT_EQ(boxes_.size(), 1U);
}

TEST_F(Drafts, ClashWithWhatAnotherDeskHasWrittenSince)
{
    TypeElsewhereAndCrash("Aninha");
    Elsewhere("update cliente set apelido = 'Lu', bairro = 'Centro' where codigo = 2");
    OpenWithDrafts(Folder(), {"Continuar"});
    Answer({"OK"});
    Press("salvar");
    ASSERT_EQ(boxes_.size(), 2U);
    EXPECT_NE(boxes_[1].find("Lu"), std::string::npos) << boxes_[1];
    EXPECT_EQ(TextOf("Apelido"), "Aninha");
    EXPECT_EQ(Stored("select apelido, bairro from cliente where codigo = 2"), Lines{"Lu|Centro"});
    TypeOver("Apelido", "");
    TypeOver("Cidade", "Vale Sereno");
    Press("salvar");
    EXPECT_EQ(Stored("select apelido, bairro, cidade from cliente where codigo = 2"),
              Lines{"Lu|Centro|Vale Sereno"});
}

TEST_F(Drafts, OfANewRowAreOneToo)
{
    OpenWithDrafts(Folder());
    TurnTo("Animais");
    Keys(Qt::Key_N, Qt::ControlModifier);
    TypeOver("Nome", "Mel");
    auto& sex = Find<QComboBox>("Sexo");
    sex.setFocus();
    while (sex.currentText() != QStringLiteral("Fêmea"))
        Keys(Qt::Key_Down);
    TurnTo("Clientes");
    EXPECT_TRUE(QFile::exists(FileOf("animais"))) << "a screen that is left does not wait for the rest";
    OpenWithDrafts({});
    OpenWithDrafts(Folder());
    EXPECT_EQ(boxes_, Lines{}) << "it is offered where its register is turned to";
    Answer({"Continuar"});
    TurnTo("Animais");
    ASSERT_TRUE(QTest::qWaitFor([&] { return boxes_.size() == 1; }));
    EXPECT_EQ(boxes_[0].find("Há alterações não salvas de Novo: animal."), 0U) << boxes_[0];
    EXPECT_EQ(TextOf("Nome"), "Mel");
    EXPECT_EQ(Find<QComboBox>("Sexo").currentText(), QStringLiteral("Fêmea"));
    EXPECT_EQ(Find<QLabel>("titulo").text(), QStringLiteral("Novo: animal"));
    EXPECT_TRUE(Find<QPushButton>("descartar").isEnabled());
}

TEST_F(Drafts, GoWithWhatIsUndone)
{
    OpenWithDrafts(Folder());
    TypeOver("Apelido", "Aninha");
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(FileOf("clientes")); }));
    Answer({"Sim"});
    Keys(Qt::Key_Escape);
    EXPECT_FALSE(QFile::exists(FileOf("clientes")));
    TypeOver("Apelido", "Nana");
    TurnTo("Animais");
    EXPECT_TRUE(QFile::exists(FileOf("clientes")));
    Answer({"Descartar"});
    EXPECT_TRUE(page_->MayLeave());
    EXPECT_FALSE(QFile::exists(FileOf("clientes")));
}

TEST_F(Drafts, OfTwoProgramsStayApart)
{
    const screens::Draft one{7, {{QStringLiteral("Nome"), QStringLiteral("a"), QStringLiteral("b")}}};
    const auto first = OpenFolder(), second = OpenFolder();
    ASSERT_TRUE(first->Write(QStringLiteral("clientes"), one));
    EXPECT_EQ(first->Read(QStringLiteral("clientes")), one);
    EXPECT_EQ(second->Read(QStringLiteral("clientes")), std::nullopt);
    second->Remove(QStringLiteral("clientes"));
    EXPECT_EQ(first->Read(QStringLiteral("clientes")), one);
    EXPECT_EQ(first->Read(QStringLiteral("animais")), std::nullopt);
}

TEST_F(Drafts, ThatCannotBeReadAreNone)
{
    const auto folder = OpenFolder();
    for (const char* content : {"", "{", "[]", "{\"versao\":2,\"chave\":\"1\",\"campos\":[]}",
                                "{\"versao\":1,\"chave\":\"x\",\"campos\":[]}"}) {
        std::ofstream(FileOf("clientes").toStdString()) << content;
        EXPECT_EQ(folder->Read(QStringLiteral("clientes")), std::nullopt) << content;
    }
    std::ofstream(FileOf("clientes").toStdString()) << "{\"versao\":1,\"chave\":\"1\",\"campos\":[]}";
    EXPECT_EQ(folder->Read(QStringLiteral("clientes")), (screens::Draft{1, {}}));
}

TEST_F(Drafts, AreNotKeptWhereTheirFolderCannotBeMade)
{
    std::ofstream((folder_.Path() / "rascunhos").string()) << "a file";
    const auto folder = OpenFolder();
    EXPECT_FALSE(folder->Write(QStringLiteral("clientes"), {}));
    EXPECT_EQ(folder->Read(QStringLiteral("clientes")), std::nullopt);
    OpenWithDrafts(Folder());
    TypeOver("Apelido", "Aninha");
    Press("salvar");
    EXPECT_EQ(Told(), "Salvo.");
}

} // namespace kova::registers::test
