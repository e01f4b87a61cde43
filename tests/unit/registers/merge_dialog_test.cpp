// "Unir com outro cadastro..." by mouse and keys.

#include "tests/unit/registers/registers_fixture.hpp"

#include <QListWidget>

namespace kova::registers::test {

using Lines = std::vector<std::string>;

class MergingCustomers : public CadastrosTest {
protected:
    MergingCustomers()
    {
        Elsewhere("update cliente set bairro = 'Lapa', tipos_e_canais = 'Celular: 5' where codigo = 3");
        Elsewhere("insert into canal_de_comunicacao (codigo_do_cliente, tipo, canal)"
                  " values (3, 'Celular', '(11) 3333-4444')");
        Elsewhere("insert into animal (codigo, codigo_do_cliente, nome, sexo, codigo_da_raca, porte, cor,"
                  " nome_de_busca) select 2, 3, 'Paçoca', 'F', codigo_da_raca, 2, 'Bege', 'pacoca'"
                  " from animal");
        Keys(Qt::Key_Down);
    }

    /// Opens the dialog by keys and acts in it.
    void Open(const std::function<void(QDialog&)>& act)
    {
        InDialog("unir", act);
        Pick(Qt::Key_U);
    }

    static QString Plan(QDialog& dialog)
    {
        return dialog.findChild<QLabel*>(QStringLiteral("plano"))->text();
    }
    static void Search(QDialog& dialog, const char* text)
    {
        EXPECT_EQ(dialog.focusWidget()->objectName(), QStringLiteral("pesquisaDoOutro"));
        QTest::keyClicks(dialog.focusWidget(), QString::fromUtf8(text));
    }
};

TEST_F(MergingCustomers, TellWhatTheyDoAndDoItByTheKeyboardAlone)
{
    std::string plan;
    Open([&](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QPushButton*>(QStringLiteral("unirCadastros"))->isEnabled());
        Search(dialog, "marcia");
        plan = Plan(dialog).toStdString();
        auto* animals = dialog.findChild<QListWidget*>(QStringLiteral("animais"));
        EXPECT_TRUE(animals->isVisible());
        animals->setFocus();
        QTest::keyClick(animals, Qt::Key_Space);
        Answer({"Sim"});
        QTest::keyClick(animals, Qt::Key_U, Qt::AltModifier);
    });
    EXPECT_EQ(plan,
              "Fica José Antônio Peçanha (código 1); deixa de existir Márcia Lima (código 3).\n"
              "Passam para quem fica: 0 agendamentos, 1 animal, 0 pacotes.\n"
              "São preenchidos: Bairro \"Lapa\", Canais \"Celular: (11) 91234-5678; E-mail: ze@example.com; "
              "Celular: (11) 3333-4444\".\n"
              "Ficam como estão: Nome \"José Antônio Peçanha\" e não \"Márcia Lima\".");
    EXPECT_EQ(boxes_, Lines{"Unir os dois cadastros? Isto não pode ser desfeito."});
    EXPECT_EQ(Told(), "Unidos: 0 agendamentos e 1 animal passaram para este cadastro.");
    EXPECT_EQ(TextOf("Bairro"), "Lapa");
    EXPECT_EQ(Rows(), (Lines{"Ana Lúcia Prado", "José Antônio Peçanha"}));
    EXPECT_EQ(Stored("select codigo, codigo_do_cliente, nome, cor from animal"), Lines{"1|1|Paçoca|Bege"});
    EXPECT_EQ(Stored("select count(*) from auditoria where operacao = 'uniao'"), Lines{"4"});
}

TEST_F(MergingCustomers, ChangeNothingWhereTheyAreCancelled)
{
    Open([&](QDialog& dialog) {
        Search(dialog, "marcia");
        Answer({"Não"});
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(boxes_.size(), 1U);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    });
    EXPECT_EQ(boxes_.size(), 1U);
    EXPECT_EQ(TextOf("Nome"), "José Antônio Peçanha");
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
}

TEST_F(MergingCustomers, NeverOfferTheOneOnShow)
{
    int offered = 0;
    Open([&](QDialog& dialog) {
        auto* list = dialog.findChild<QTableView*>(QStringLiteral("outros"));
        offered = list->model()->rowCount();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
        EXPECT_EQ(list->currentIndex().row(), 0) << "the arrows walk while the search keeps the keyboard";
        EXPECT_TRUE(Plan(dialog).contains(QStringLiteral("Ana Lúcia Prado")));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    });
    EXPECT_EQ(offered, 2);
}

TEST_F(MergingCustomers, AreRefusedWhereAnotherDeskHasChangedOneOfThem)
{
    Open([&](QDialog& dialog) {
        Search(dialog, "marcia");
        Elsewhere("update cliente set cidade = 'Cotia' where codigo = 3");
        Answer({"Sim", "OK"});
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("unirCadastros")), Qt::LeftButton);
        EXPECT_TRUE(Plan(dialog).contains(QStringLiteral("Cidade \"Cotia\""))) << "it is planned anew";
        dialog.reject();
    });
    ASSERT_EQ(boxes_.size(), 2U);
    EXPECT_NE(boxes_[1].find("Cliente 3, Cidade: agora está \"Cotia\"."), std::string::npos) << boxes_[1];
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
}

} // namespace kova::registers::test
