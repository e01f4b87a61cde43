// A row that may be there already is told of before it is saved.

#include "tests/unit/registers/registers_fixture.hpp"

#include <QListWidget>
#include <QPlainTextEdit>

namespace kova::registers::test {

using Lines = std::vector<std::string>;

class LikelyDoubles : public CadastrosTest {
protected:
    void TypeCustomerWithThePhoneOfAnother()
    {
        Keys(Qt::Key_N, Qt::ControlModifier);
        TypeOver("Nome", "Zé do Pet");
        Find<QPlainTextEdit>("Canais").setFocus();
        Type("Recado: 11 91234 5678");
    }

    /// The next question is answered by that key, which whatever has the keyboard gets.
    void Answer(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        InDialog("parecidos", [this, key, modifiers](QDialog& question) {
            auto* list = question.findChild<QListWidget*>(QStringLiteral("existentes"));
            for (int row = 0; row < list->count(); ++row)
                told_.push_back(list->item(row)->text().toStdString());
            for (const QPushButton* button : question.findChildren<QPushButton*>())
                buttons_.push_back(button->text().toStdString());
            EXPECT_FALSE(list->accessibleName().isEmpty());
            QTest::keyClick(question.focusWidget(), key, modifiers);
        });
    }

    Lines told_, buttons_;
};

TEST_F(LikelyDoubles, AreToldWithTheirReasonsAndEscapeGoesBack)
{
    TypeCustomerWithThePhoneOfAnother();
    Answer(Qt::Key_Escape);
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(told_, Lines{"José Antônio Peçanha (código 1)\nTem o mesmo telefone, (11) 91234-5678."});
    EXPECT_EQ(TextOf("Nome"), "Zé do Pet");
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
}

TEST_F(LikelyDoubles, AreSavedAllTheSameWhereTheUserWantsIt)
{
    TypeCustomerWithThePhoneOfAnother();
    Answer(Qt::Key_S, Qt::AltModifier);
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(told_.size(), 1U);
    EXPECT_EQ(Told(), "Salvo.");
    EXPECT_EQ(Stored("select nome from cliente where codigo = 4"), Lines{"Zé do Pet"});
    TypeOver("Bairro", "Centro");
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(told_.size(), 1U) << "what was known already is not asked about again";
    EXPECT_EQ(Stored("select bairro from cliente where codigo = 4"), Lines{"Centro"});
}

TEST_F(LikelyDoubles, AreOpenedInThePlaceOfWhatWasTyped)
{
    TypeCustomerWithThePhoneOfAnother();
    Answer(Qt::Key_Return);
    Press("salvar");
    EXPECT_EQ(TextOf("Nome"), "José Antônio Peçanha");
    EXPECT_EQ(Find<QTableView>("lista").currentIndex().row(), 1);
    EXPECT_FALSE(Find<QPushButton>("descartar").isEnabled());
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
}

TEST_F(LikelyDoubles, OfADocumentStayRefused)
{
    Keys(Qt::Key_N, Qt::ControlModifier);
    TypeOver("Nome", "Zé do Pet");
    TypeOver("Documento", "12345678909");
    Answer(Qt::Key_V, Qt::AltModifier);
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(told_, Lines{"José Antônio Peçanha (código 1)\nTem o mesmo documento, 123.456.789-09."});
    EXPECT_EQ(buttons_.size(), 2U) << "to save all the same is not offered";
    EXPECT_EQ(Reasons(), Lines{"O cliente 1 já tem este documento."});
    EXPECT_EQ(Stored("select count(*) from cliente"), Lines{"3"});
}

TEST_F(LikelyDoubles, KeepTheRowOnShowWhereSavingWasAskedForBeforeAnotherOne)
{
    TypeCustomerWithThePhoneOfAnother();
    Find<QLineEdit>("pesquisa").setFocus();
    CadastrosTest::Answer({"Salvar"});
    Answer(Qt::Key_Escape);
    Keys(Qt::Key_Down);
    EXPECT_EQ(told_.size(), 1U);
    EXPECT_EQ(TextOf("Nome"), "Zé do Pet");
}

} // namespace kova::registers::test
