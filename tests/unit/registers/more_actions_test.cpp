// What can be done with a row beyond saving and removing it.

#include "tests/unit/registers/registers_fixture.hpp"

#include <QMenu>

namespace kova::registers::test {

using Lines = std::vector<std::string>;

class MoreActions : public CadastrosTest {
protected:
    MoreActions()
    {
        const auto turnTo = [this](family::Key next) {
            return [this, next](const ActionTarget& target) {
                done_.push_back(target.key);
                return ActionResult{next, QStringLiteral("Feito.")};
            };
        };
        Open({{"clientes", QStringLiteral("&Virar a página..."), turnTo(3)},
              {"animais", QStringLiteral("&Passear..."), turnTo(0)},
              {"clientes", QStringLiteral("&Começar outro"), turnTo(0)}});
    }

    std::vector<family::Key> done_;
};

TEST_F(MoreActions, AreThoseOfTheRegister)
{
    Lines entries;
    for (const QAction* action : page_->findChild<QMenu*>(QStringLiteral("acoes"))->actions())
        entries.push_back(action->text().toStdString());
    EXPECT_EQ(entries, (Lines{"&Virar a página...", "&Começar outro"}));
    TurnTo("Feriados");
    EXPECT_THROW(Find<QPushButton>("mais"), std::runtime_error) << "there is nothing to be done";
}

TEST_F(MoreActions, WorkOnTheRowOnShowAndShowWhatTheyAnswer)
{
    Pick(Qt::Key_V);
    EXPECT_EQ(done_, std::vector<family::Key>{2});
    EXPECT_EQ(TextOf("Nome"), "Márcia Lima");
    EXPECT_EQ(Find<QTableView>("lista").currentIndex().row(), 2);
    EXPECT_EQ(Told(), "Feito.");
    Pick(Qt::Key_C);
    EXPECT_EQ(done_, (std::vector<family::Key>{2, 3}));
    EXPECT_EQ(TextOf("Nome"), "");
    EXPECT_FALSE(Find<QPushButton>("mais").isEnabled()) << "there is no row yet";
}

TEST_F(MoreActions, AskAboutWhatIsNotSavedBefore)
{
    TypeOver("Apelido", "Aninha");
    Answer({"Continuar aqui"});
    Pick(Qt::Key_V);
    EXPECT_TRUE(done_.empty());
    EXPECT_EQ(TextOf("Apelido"), "Aninha");
    Answer({"Salvar"});
    Pick(Qt::Key_V);
    EXPECT_EQ(done_.size(), 1U);
    EXPECT_EQ(Stored("select apelido from cliente where codigo = 2"), Lines{"Aninha"});
}

} // namespace kova::registers::test
