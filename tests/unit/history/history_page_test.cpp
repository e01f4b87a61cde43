#include "tests/unit/history/history_fixture.hpp"

#include "family/data/archive/audit_archive.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>

#include <filesystem>

namespace kova::history::test {

using Lines = std::vector<std::string>;

using TheHistoryPage = HistoricoTest;

TEST_F(TheHistoryPage, ShowsTheLastActFirstAndWhatItChanged)
{
    EXPECT_EQ(Acts(), (Lines{"Alterou o cliente 1", "Alterou o cliente 1", "Incluiu o cliente 1"}));
    EXPECT_EQ(TextOf("ato"), "Alterou o cliente 1");
    EXPECT_EQ(TextOf("quem"), "Ana (posto BALCAO), em 20/11/2026 às 09:00");
    EXPECT_EQ(Fields(), (Lines{"Bairro: (vazio) > Centro"}));
    EXPECT_EQ(TextOf("encontrados"), "3 linhas");
}

TEST_F(TheHistoryPage, ShowsTheLineThatIsMarkedAlsoFromTheSearch)
{
    Keys(Qt::Key_F3);
    EXPECT_EQ(Focused(), "procurar");
    Keys(Qt::Key_Down);
    EXPECT_EQ(Fields(), (Lines{"Apelido: (vazio) > Zé"}));
    auto& list = Find<QTableView>("linhas");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(0, 0)).center());
    EXPECT_EQ(Fields(), (Lines{"Bairro: (vazio) > Centro"}));
    Keys(Qt::Key_F6);
    EXPECT_EQ(Focused(), "campos");
    Keys(Qt::Key_F6);
    EXPECT_EQ(Focused(), "linhas");
}

TEST_F(TheHistoryPage, IsNarrowedByKeysAndShowsAllAgain)
{
    Choose("oQueFez", "Inclusões");
    EXPECT_EQ(Acts(), (Lines{"Incluiu o cliente 1"}));
    Keys(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(Acts().size(), 3U);
    TypeInto("desde", "20/11/2026");
    EXPECT_EQ(Acts().size(), 1U);
    TypeInto("desde", "");
    TypeInto("ate", "19/11/2026");
    EXPECT_EQ(Acts().size(), 2U);
    Choose("quemFez", "1 - Ana");
    Choose("registro", "Agendamentos");
    EXPECT_TRUE(Acts().empty());
    EXPECT_EQ(TextOf("encontrados"), "Nada no histórico atende a isto. Limpe os filtros com Ctrl+L.");
    Press("limpar");
    EXPECT_EQ(Acts().size(), 3U);
    EXPECT_EQ(Find<QComboBox>("registro").currentText(), QStringLiteral("Todos"));
}

TEST_F(TheHistoryPage, IsSearchedByWords)
{
    TypeInto("procurar", "CENTRO");
    EXPECT_EQ(Acts().size(), 1U);
    TypeInto("procurar", "d'avi");
    EXPECT_EQ(Acts().back(), "Incluiu o cliente 1");
    TypeInto("procurar", "\"*");
    EXPECT_TRUE(Acts().empty());
    TypeInto("procurar", "1");
    EXPECT_EQ(Acts().size(), 3U);
}

TEST_F(TheHistoryPage, LooksForWhatIsTypedWhenNobodyTypesAnyMore)
{
    auto& box = Find<QLineEdit>("procurar");
    box.setFocus();
    QTest::keyClicks(&box, "centro");
    EXPECT_EQ(Acts().size(), 3U);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Acts().size() == 1; }));
}

TEST_F(TheHistoryPage, IsAboutACustomerAnAppointmentAUserOrADay)
{
    Choose("deQue", "Um cliente");
    TypeInto("qual", "antonio");
    EXPECT_EQ(Acts().size(), 3U);
    Choose("deQue", "Um usuário");
    TypeInto("qual", "1");
    EXPECT_EQ(Acts().size(), 3U);
    Choose("deQue", "Um agendamento");
    TypeInto("qual", "1");
    EXPECT_TRUE(Acts().empty());
    Choose("deQue", "Um dia da agenda");
    TypeInto("qual", "20/11/2026");
    EXPECT_TRUE(Acts().empty());
    Choose("deQue", "Tudo");
    EXPECT_EQ(Acts().size(), 3U);
}

TEST_F(TheHistoryPage, TellsBelowTheBoxWhatItCannotRead)
{
    const std::pair<const char*, std::pair<const char*, const char*>> wrong[] = {
        {"Um agendamento", {"abc", "Escreva o número do agendamento."}},
        {"Um cliente", {"ninguém assim", "Não há ninguém com este nome."}},
        {"Um dia da agenda", {"30/02/2026", "Escreva a data como dd/mm/aaaa."}},
    };
    for (const auto& [kind, typed] : wrong) {
        Choose("deQue", kind);
        TypeInto("qual", typed.first);
        EXPECT_EQ(Find<QLineEdit>("qual").accessibleDescription().toStdString(), typed.second);
        EXPECT_EQ(Acts().size(), 3U) << "what was found before stays";
    }
    Choose("deQue", "Tudo");
    TypeInto("desde", "99/99/9999");
    EXPECT_EQ(Find<QLineEdit>("desde").accessibleDescription(), QStringLiteral("Escreva dd/mm/aaaa."));
}

TEST_F(TheHistoryPage, ShowsTheHistoryOfARowThatItIsSentTo)
{
    Stored("insert into auditoria (momento, usuario, tabela, chave, operacao, depois) values"
           " ('2026-11-20 10:00:00', '1 - Ana', 'animal', 5, 'inclusao', '{\"nome\":\"Nina\"}')");
    page_->ShowRow("animal", 5, QStringLiteral("O animal 5 (Nina)"));
    EXPECT_EQ(Acts(), (Lines{"Incluiu o animal 5"}));
    EXPECT_EQ(Find<QComboBox>("deQue").currentText(), QStringLiteral("O animal 5 (Nina)"));
    page_->ShowRow("cliente", 1, QStringLiteral("1 - José"));
    EXPECT_EQ(Acts().size(), 3U);
    EXPECT_EQ(Find<QLineEdit>("qual").text(), QStringLiteral("1 - José"));
    Keys(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(Acts().size(), 4U);
}

TEST_F(TheHistoryPage, AsksAndUndoesByKeysAndTellsOfIt)
{
    Answer({"Não"});
    Keys(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(boxes_, (Lines{"Desfazer isto?\n\nAlterou o cliente 1\n\nBairro volta a ser vazio."}));
    EXPECT_EQ(Stored("select bairro from cliente"), (Lines{"Centro"}));
    Answer({"Sim"});
    Keys(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Stored("select bairro from cliente"), (Lines{""}));
    EXPECT_EQ(TextOf("recado"), "Desfeito: Alterou o cliente 1.");
    EXPECT_EQ(Acts().size(), 4U);
    EXPECT_EQ(
        Stored(
            "select usuario || ' ' || posto || ' ' || momento from auditoria order by codigo desc limit 1"),
        (Lines{"1 - Ana BALCAO-2 2026-11-20 11:00:00"}));
}

TEST_F(TheHistoryPage, TellsWhySomethingCannotBeUndoneBesideTheButtonUnderTheMouseAndOnAPress)
{
    Choose("oQueFez", "Inclusões");
    const std::string why = "Uma inclusão não se desfaz aqui: exclua o registro onde ele está.";
    EXPECT_EQ(TextOf("motivo"), why);
    auto& undo = Find<QPushButton>("desfazer");
    EXPECT_EQ(undo.toolTip().toStdString(), why);
    EXPECT_EQ(undo.accessibleDescription().toStdString(), why);
    Answer({"OK"});
    Press("desfazer");
    EXPECT_EQ(boxes_, (Lines{why}));
}

TEST_F(TheHistoryPage, TellsWhatTheWriteRefuses)
{
    auto& list = Find<QTableView>("linhas");
    list.setFocus();
    Stored("update cliente set bairro = 'Outro'");
    Answer({"Sim", "OK"});
    Keys(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_EQ(boxes_.size(), 2U);
    EXPECT_EQ(boxes_.back(),
              "Não está mais como esta alteração deixou: outro programa o mudou. Mude-o à mão.");
    EXPECT_EQ(Acts().size(), 3U);
}

TEST_F(TheHistoryPage, ReadsMoreAsTheListComesToItsEnd)
{
    Stored("with recursive n (i) as (select 1 union all select i + 1 from n where i < 250)"
           " insert into auditoria (momento, usuario, tabela, chave, operacao, depois)"
           " select '2026-11-21 10:00:00', '1 - Ana', 'animal', i, 'inclusao', '{}' from n");
    Keys(Qt::Key_F5);
    EXPECT_EQ(TextOf("encontrados"), "As 100 mais recentes; as outras vêm ao descer na lista");
    auto& list = Find<QTableView>("linhas");
    list.setFocus();
    for (int page = 0; page < 5; ++page)
        Keys(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(Acts().size(), 253U);
    EXPECT_EQ(Acts().back(), "Incluiu o cliente 1");
    EXPECT_EQ(TextOf("encontrados"), "253 linhas");
}

TEST_F(TheHistoryPage, SaysSoWhereNothingWasWrittenYet)
{
    Stored("delete from auditoria");
    Keys(Qt::Key_F5);
    EXPECT_EQ(TextOf("encontrados"), "Ainda não há nada no histórico: tudo que for gravado aparece aqui.");
    Keys(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(boxes_.empty());
}

TEST_F(TheHistoryPage, TellsWhoeverMayNotSeeItAndShowsItToWhoeverMay)
{
    Stored("update usuario set codigo_do_papel = 1 where codigo = 1");
    Stored("insert into usuario (codigo, nome, codigo_do_papel) values (2, 'Lia', 3)");
    author_ = {"2", "Lia", "2026-11-20 11:00:00", "BALCAO"};
    page_->Refresh();
    EXPECT_EQ(
        TextOf("impedimento"),
        "O histórico não pode ser mostrado.\n\nRecepção não pode ver o histórico. Peça a quem administra"
        " os usuários.\n\nTente de novo com F5.");
    EXPECT_THROW(Find<QTableView>("linhas"), std::runtime_error);
    EXPECT_EQ(Stored("select usuario from auditoria where operacao = 'direito_negado'"), (Lines{"2 - Lia"}));
    author_ = {"1", "Ana", "2026-11-20 11:00:00", "BALCAO"};
    page_->Refresh();
    EXPECT_EQ(Acts().size(), 4U);
}

TEST_F(TheHistoryPage, GivesEachPartANameForThoseWhoCannotSeeIt)
{
    for (const char* name : {"deQue", "quemFez", "oQueFez", "registro"})
        EXPECT_FALSE(Find<QComboBox>(name).accessibleName().isEmpty()) << name;
    for (const char* name : {"qual", "procurar", "desde", "ate"})
        EXPECT_FALSE(Find<QLineEdit>(name).accessibleName().isEmpty()) << name;
    EXPECT_EQ(Find<QTableView>("linhas").accessibleName(), QStringLiteral("Linhas do histórico"));
    EXPECT_EQ(Find<QTableWidget>("campos").accessibleName(), QStringLiteral("Campos, antes e depois"));
}

TEST_F(TheHistoryPage, ShowsTextsAsTheyStand)
{
    Stored("update auditoria set antes = '{\"bairro\":\"\"}', depois = '{\"bairro\":\"<img src=x> "
           + std::string(1000, 'x') + "\"}' where codigo = (select max(codigo) from auditoria)");
    Stored("update auditoria set posto = cast(x'41ff42' as text) where codigo = (select max(codigo) from "
           "auditoria)");
    Keys(Qt::Key_F5);
    EXPECT_EQ(Fields(), (Lines{"Bairro: (vazio) > <img src=x> " + std::string(1000, 'x')}));
    EXPECT_NE(TextOf("quem").find("A\xef\xbf\xbd"
                                  "B"),
              std::string::npos);
}

class TheHistoryPageWithAnArchive : public HistoricoTest {
protected:
    TheHistoryPageWithAnArchive()
    {
        family::Author owner = author_;
        owner.isOwner = true;
        family::ArchiveAudit(file_, 2026, std::nullopt, owner, {});
        page_->Refresh();
        page_->onChooseArchive = [this] {
            ++asked_;
            return QString::fromStdString(chosen_);
        };
    }

    QCheckBox& Box() { return Find<QCheckBox>("incluirArquivo"); }
    void PressBox()
    {
        Box().setFocus();
        Keys(Qt::Key_Space);
    }

    const std::string archive_ = family::ArchiveBeside(file_);
    std::string chosen_;
    int asked_ = 0;
};

TEST_F(TheHistoryPage, OffersNoArchiveWhereNothingWasArchived)
{
    EXPECT_FALSE(page_->findChild<QCheckBox*>(QStringLiteral("incluirArquivo"))->isVisible());
}

TEST_F(TheHistoryPageWithAnArchive, ShowsItsLinesWhereTheyAreWantedAndUndoesNone)
{
    EXPECT_EQ(Acts().size(), 1U);
    EXPECT_NE(Box().toolTip().indexOf(QStringLiteral("até 2026")), -1);
    PressBox();
    EXPECT_TRUE(Box().isChecked());
    const Lines all = Acts();
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[1], "Alterou o cliente 1");
    Keys(Qt::Key_F3);
    Keys(Qt::Key_Down);
    EXPECT_EQ(Fields(), (Lines{"Bairro: (vazio) > Centro"}));
    EXPECT_EQ(TextOf("quem"), "Ana (posto BALCAO), em 20/11/2026 às 09:00, no arquivo da auditoria");
    EXPECT_EQ(TextOf("motivo"),
              "Esta linha está no arquivo da auditoria, e o que está nele não pode mais ser desfeito.");
    TypeInto("procurar", "centro");
    EXPECT_EQ(Acts(), (Lines{"Alterou o cliente 1"}));
    Keys(Qt::Key_L, Qt::ControlModifier);
    PressBox();
    EXPECT_EQ(Acts().size(), 1U);
}

TEST_F(TheHistoryPageWithAnArchive, AsksForItWhereItWasMovedAndSaysWhatAnotherFileIs)
{
    const std::string moved = (folder_.Path() / "fora").string();
    std::filesystem::rename(archive_, moved);
    PressBox();
    EXPECT_EQ(asked_, 1);
    EXPECT_FALSE(Box().isChecked()) << "nothing was chosen";
    chosen_ = file_;
    Answer({"OK"});
    PressBox();
    ASSERT_EQ(boxes_.size(), 1U);
    EXPECT_NE(boxes_[0].find("não é um arquivo de auditoria"), std::string::npos) << boxes_[0];
    EXPECT_FALSE(Box().isChecked());
    chosen_ = moved;
    PressBox();
    EXPECT_TRUE(Box().isChecked());
    EXPECT_EQ(Acts().size(), 4U);
}

} // namespace kova::history::test
