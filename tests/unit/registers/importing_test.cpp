// Files that go into the registers, on the screen.

#include "tests/unit/registers/registers_fixture.hpp"

#include "registers/importing/import_wizard.hpp"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTableWidget>

#include <fstream>

namespace kova::registers::test {

namespace {

using Lines = std::vector<std::string>;

constexpr int LongEnough = 20'000;

} // namespace

class Importing : public CadastrosTest {
protected:
    std::string File(const std::string& name) const { return (folder_.Path() / name).string(); }

    std::string Written(const std::string& content)
    {
        std::ofstream(File("planilha.csv"), std::ios::binary) << content;
        return File("planilha.csv");
    }

    /// The wizard opens by the button below the names.
    void Begin()
    {
        Press("importarPlanilha");
        ASSERT_TRUE(HasKeyboard());
    }

    /// Waits until the dialog in front has the keyboard.
    static bool HasKeyboard()
    {
        return QTest::qWaitFor([] {
            const QWidget* dialog = QApplication::activeModalWidget();
            const QWidget* focus = QApplication::focusWidget();
            return dialog != nullptr && focus != nullptr && dialog->isAncestorOf(focus);
        });
    }

    void TypePath(const std::string& path) { TypeOver("arquivo", path.c_str()); }

    template <class Kind> Kind* Visible(const char* name)
    {
        for (Kind* one : page_->findChildren<Kind*>(QString::fromUtf8(name))) {
            if (one->isVisible())
                return one;
        }
        return nullptr;
    }

    /// Waits until the work is over: the page tells what came of it.
    std::string Outcome()
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return Visible<QLabel>("resumo") != nullptr || Visible<QLabel>("recusa") != nullptr; },
            LongEnough));
        const QLabel* told =
            Visible<QLabel>("resumo") ? Visible<QLabel>("resumo") : Visible<QLabel>("recusa");
        return told == nullptr ? "" : told->text().toStdString();
    }

    Lines Cells(const char* name)
    {
        const auto& table = Find<QTableWidget>(name);
        Lines rows;
        for (int row = 0; row < table.rowCount(); ++row) {
            std::string cells;
            for (int column = 0; column < table.columnCount(); ++column)
                cells += (column == 0 ? "" : "|") + table.item(row, column)->text().toStdString();
            rows.push_back(cells);
        }
        return rows;
    }

    /// Checks a file and brings it in.
    void BringIn(const std::string& content)
    {
        Begin();
        TypePath(Written(content));
        Press("conferir");
        EXPECT_EQ(Outcome().find("Nenhum erro."), 0u) << Outcome();
        Press("importar");
        EXPECT_EQ(Outcome().find("Importação "), 0u) << Outcome();
    }

    std::size_t Copies() const
    {
        return static_cast<std::size_t>(QDir(QString::fromStdString(folder_.Path().string()))
                                            .entryList({QStringLiteral("loja.db.antes-da-importacao-*.bak")})
                                            .size());
    }
};

TEST_F(Importing, ShowsHowTheFirstLinesWereUnderstood)
{
    Begin();
    EXPECT_EQ(Focused(), "arquivo");
    EXPECT_EQ(Find<QComboBox>("cadastro").currentText(), "Clientes");
    std::string content = "Nome,Apelido\r\n\"Sá, Ana\",Ná\r\n";
    for (int line = 0; line < 20; ++line)
        content += "Cliente " + std::to_string(line) + ",\r\n";
    TypePath(Written(content));
    Keys(Qt::Key_Tab);
    EXPECT_EQ(Find<QLabel>("lido").text().toStdString().find(
                  "Lido em UTF-8, com as colunas separadas por vírgulas: 21 linhas."),
              0u);
    ASSERT_EQ(Cells("previa").size(), 10u);
    EXPECT_EQ(Cells("previa").front(), "Sá, Ana|Ná");
    EXPECT_EQ(Find<QTableWidget>("previa").horizontalHeaderItem(0)->text(), "Nome");
    Find<QComboBox>("codificacao").setCurrentIndex(2);
    emit Find<QComboBox>("codificacao").activated(2);
    EXPECT_EQ(Cells("previa").front(), "SÃ¡, Ana|NÃ¡");
}

TEST_F(Importing, ShowsTheFileAsItIsNowWhereOneGoesBackToIt)
{
    Begin();
    TypePath(Written("Nome;UF\nAna;XX\n"));
    Press("conferir");
    EXPECT_EQ(Outcome().find("1 erro em 1 linha"), 0u) << Outcome();
    Written("Nome;UF\nAna;SP\nBia;SP\n");
    Press("voltar");
    EXPECT_EQ(Cells("previa"), (Lines{"Ana|SP", "Bia|SP"}));
    EXPECT_NE(Find<QLabel>("lido").text().indexOf(QStringLiteral(": 2 linhas.")), -1);
}

TEST_F(Importing, ShowsNothingOfAFileWhoseNameIsTypedOver)
{
    Begin();
    TypePath(Written("Nome\nAna\n"));
    Keys(Qt::Key_Tab);
    EXPECT_EQ(Cells("previa"), Lines{"Ana"});
    TypePath(File("outra.csv"));
    EXPECT_EQ(Cells("previa"), Lines{});
    EXPECT_EQ(Find<QLabel>("lido").text(), "");
}

TEST_F(Importing, RefusesAFileThatIsNotThere)
{
    Begin();
    Press("conferir");
    EXPECT_EQ(Reasons(), Lines{"Informe o arquivo."});
    TypePath(File("nada.csv"));
    Press("conferir");
    EXPECT_EQ(Reasons(), Lines{"O arquivo \"" + File("nada.csv") + "\" não existe. Verifique o caminho."});
    TypePath(Written("Nome\nAna\n"));
    EXPECT_EQ(Reasons(), Lines{});
}

TEST_F(Importing, CountsWhatWillBeDoneBeforeAnythingIsWritten)
{
    const Lines before = Stored("select count(*) from auditoria");
    Begin();
    TypePath(Written("Código;Nome;Documento\n1;José A. Peçanha;123.456.789-09\n2;Ana Lúcia Prado;\n;Rui;\n"));
    Press("conferir");
    EXPECT_EQ(Outcome(),
              "Nenhum erro. Ao importar: 1 registro novo; 1 registro alterado; 1 linha igual ao que já "
              "está na loja. Nada foi gravado até aqui.");
    EXPECT_EQ(Find<QPlainTextEdit>("mudancas").toPlainText().toStdString(),
              "linha 2: Nome \"José Antônio Peçanha\" → \"José A. Peçanha\"");
    EXPECT_EQ(Stored("select count(*) from auditoria"), before);
    EXPECT_EQ(Copies(), 0u);
    Press("voltar");
    EXPECT_EQ(Focused(), "arquivo");
    EXPECT_EQ(TextOf("arquivo"), File("planilha.csv"));
}

TEST_F(Importing, BringsTheFileInAndShowsItInTheList)
{
    BringIn("Código;Nome;Documento\n1;José A. Peçanha;123.456.789-09\n;Rui Sá;\n");
    EXPECT_EQ(Outcome().find("Importação 1 concluída: 1 registro novo; 1 registro alterado."), 0u)
        << Outcome();
    EXPECT_NE(
        Outcome().find("Antes, a loja foi copiada para " + file_ + ".antes-da-importacao-2026-11-20-090000"),
        std::string::npos)
        << Outcome();
    EXPECT_EQ(Copies(), 1u);
    EXPECT_EQ(Stored("select nome from cliente order by codigo"),
              (Lines{"José A. Peçanha", "Ana Lúcia Prado", "Márcia Lima", "Rui Sá"}));
    EXPECT_EQ(Stored("select usuario || ' ' || posto from auditoria where tabela = 'importacao'"),
              Lines{"1 - Ana BALCAO"});
    Keys(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(Rows(), (Lines{"Ana Lúcia Prado", "José A. Peçanha", "Márcia Lima", "Rui Sá"}));
}

TEST_F(Importing, KeepsWhatIsTypedInAFormMeanwhile)
{
    TypeOver("Apelido", "Lulu");
    BringIn("Nome\nRui Sá\n");
    Keys(Qt::Key_Escape);
    EXPECT_EQ(TextOf("Apelido"), "Lulu");
    EXPECT_EQ(Rows().size(), 4u);
}

TEST_F(Importing, TellsEachErrorByItsLineAndColumnAndWritesNothing)
{
    Begin();
    TypePath(Written("Código;Nome;UF;Documento\n1;José;XX;\n;;;1\n"));
    Press("conferir");
    EXPECT_EQ(Outcome(),
              "3 erros em 2 linhas: nada foi gravado. Corrija-os na planilha, salve-a e volte para "
              "conferir de novo.");
    EXPECT_EQ(Cells("linhas"),
              (Lines{"2|UF|XX|Não é a sigla de um estado.", "3|Nome||Deve ser informado.",
                     "3|Documento|1|Não é um CPF nem um CNPJ válido: confira os dígitos."}))
        << Outcome();
    EXPECT_EQ(Visible<QPushButton>("importar"), nullptr);
    Press("voltar");
    Written("Código;Nome\n1;José\n");
    Press("conferir");
    EXPECT_EQ(Outcome().find("Nenhum erro."), 0u) << "the corrected file is read anew" << Outcome();
}

TEST_F(Importing, LeavesOutOrRefusesWhatIsThereAlreadyWhereThatIsChosen)
{
    Begin();
    TypePath(Written("Código;Nome\n1;Outro\n;Rui\n"));
    Find<QComboBox>("conhecidos").setCurrentText(QStringLiteral("Fica de fora"));
    Press("conferir");
    EXPECT_EQ(Outcome(),
              "Nenhum erro. Ao importar: 1 registro novo; 1 linha de fora, que já está na loja. Nada foi "
              "gravado até aqui.");
    Press("voltar");
    Find<QComboBox>("conhecidos").setCurrentText(QStringLiteral("É um erro"));
    Press("conferir");
    EXPECT_EQ(Outcome().find("1 erro em 1 linha: nada foi gravado."), 0u) << Outcome();
    Press("voltar");
    Find<QComboBox>("cadastro").setCurrentText(QStringLiteral("Agendamentos"));
    EXPECT_EQ(
        Find<QComboBox>("conhecidos").findText(QStringLiteral("Muda o registro que tem o mesmo código")), -1);
}

TEST_F(Importing, SaysWhereTheFileChangesNothing)
{
    Begin();
    TypePath(Written("Código;Nome\n2;Ana Lúcia Prado\n"));
    Press("conferir");
    EXPECT_EQ(Outcome(), "Nenhum erro, e nada a gravar: 1 linha igual ao que já está na loja.");
    EXPECT_EQ(Visible<QPushButton>("importar"), nullptr);
}

TEST_F(Importing, IsCancelledWhileItChecksAndWritesNothing)
{
    std::string content = "Nome\n";
    for (int line = 0; line < 3000; ++line)
        content += "Cliente " + std::to_string(line) + "\n";
    Begin();
    TypePath(Written(content));
    Press("conferir");
    Keys(Qt::Key_Escape);
    EXPECT_EQ(Outcome(), "O trabalho foi interrompido antes do fim; nada foi gravado.");
    ASSERT_NE(QApplication::activeModalWidget(), nullptr);
    Press("voltar");
    Press("conferir");
    EXPECT_EQ(Outcome().find("Nenhum erro."), 0u) << Outcome();
    Press("importar");
    Keys(Qt::Key_Escape);
    EXPECT_EQ(Outcome(), "O trabalho foi interrompido antes do fim; nada foi gravado.");
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
    EXPECT_EQ(Stored("select count(*) from auditoria where tabela = 'importacao'"), Lines{"0"});
    Keys(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Importing, EndsItsWorkWhereTheWindowGoes)
{
    std::string content = "Nome\n";
    for (int line = 0; line < 3000; ++line)
        content += "Cliente " + std::to_string(line) + "\n";
    Begin();
    TypePath(Written(content));
    Press("conferir");
    page_.reset();
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
}

TEST_F(Importing, IsTakenBackFromTheAnswer)
{
    BringIn("Código;Nome;Documento\n1;José A. Peçanha;123.456.789-09\n;Rui Sá;\n");
    Press("desfazer");
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return Outcome().find("desfeita") != std::string::npos; }, LongEnough));
    EXPECT_EQ(Outcome(), "Importação 1 desfeita: 1 registro excluído; 1 registro como era antes.");
    EXPECT_EQ(Stored("select nome from cliente order by codigo"),
              (Lines{"José Antônio Peçanha", "Ana Lúcia Prado", "Márcia Lima"}));
    EXPECT_EQ(Stored("select count(*) from auditoria where operacao = 'importacao_desfeita'"), Lines{"1"});
    EXPECT_EQ(Visible<QPushButton>("desfazer"), nullptr);
    Keys(Qt::Key_Escape);
    EXPECT_EQ(Rows(), (Lines{"Ana Lúcia Prado", "José Antônio Peçanha", "Márcia Lima"}));
}

TEST_F(Importing, IsNotTakenBackWhereThatIsCancelled)
{
    std::string content = "Nome\n";
    for (int line = 0; line < 3000; ++line)
        content += "Cliente " + std::to_string(line) + "\n";
    BringIn(content);
    Press("desfazer");
    EXPECT_TRUE(Find<QProgressBar>("progresso").isVisible());
    Keys(Qt::Key_Escape);
    EXPECT_EQ(Outcome(), "O trabalho foi interrompido antes do fim; nada foi gravado.");
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3003"});
    Press("desfazer");
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return Outcome().find("desfeita") != std::string::npos; }, LongEnough));
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
}

TEST_F(Importing, LeavesWhatWasChangedSinceAsItIsWhereThatIsWanted)
{
    BringIn("Nome\nRui Sá\nÍris Sá\n");
    Elsewhere("update cliente set apelido = 'Ru' where nome = 'Rui Sá'");
    Press("desfazer");
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return Visible<QPushButton>("desfazerResto") != nullptr; }, LongEnough));
    EXPECT_EQ(Outcome().find("Nada foi desfeito: alguém já mudou ou usou registros desta importação."), 0u);
    ASSERT_EQ(Cells("linhas").size(), 1u);
    EXPECT_EQ(Cells("linhas").front().find("cliente 4 (Rui Sá)|Não está mais como ficou então"), 0u);
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"5"});
    Press("desfazerResto");
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return Outcome().find("desfeita") != std::string::npos; }, LongEnough));
    EXPECT_EQ(Stored("select nome from cliente order by codigo"),
              (Lines{"José Antônio Peçanha", "Ana Lúcia Prado", "Márcia Lima", "Rui Sá"}));
}

TEST_F(Importing, GoesByKeysAlone)
{
    Keys(Qt::Key_I, Qt::AltModifier);
    ASSERT_TRUE(HasKeyboard());
    Type(Written("Nome\nRui Sá\n").c_str());
    Keys(Qt::Key_Return);
    EXPECT_EQ(Outcome().find("Nenhum erro."), 0u) << Outcome();
    EXPECT_EQ(Focused(), "importar");
    Keys(Qt::Key_Return);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return Outcome().find("concluída") != std::string::npos; }, LongEnough));
    EXPECT_EQ(Focused(), "cancelar");
    EXPECT_EQ(Find<QPushButton>("cancelar").text(), "Fechar");
    Keys(Qt::Key_Return);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(Rows().size(), 4u) << "what was written is not taken back by one Enter too many";
}

TEST_F(Importing, IsNotCancelledByEnter)
{
    Begin();
    TypePath(Written("Nome\nRui Sá\n"));
    Keys(Qt::Key_Return);
    Keys(Qt::Key_Return);
    EXPECT_EQ(Outcome().find("Nenhum erro."), 0u) << Outcome();
}

TEST_F(Importing, NamesEverythingForThoseWhoCannotSeeIt)
{
    Begin();
    for (const char* box : {"cadastro", "conhecidos", "codificacao"})
        EXPECT_FALSE(Find<QComboBox>(box).accessibleName().isEmpty()) << box;
    EXPECT_FALSE(Find<QLineEdit>("arquivo").accessibleName().isEmpty());
    EXPECT_FALSE(Find<QTableWidget>("previa").accessibleName().isEmpty());
    TypePath(Written("Nome;UF\nRui;XX\n"));
    Press("conferir");
    Outcome();
    EXPECT_EQ(Find<QTableWidget>("linhas").accessibleName(), "Erros");
}

} // namespace kova::registers::test
