#include "tests/unit/timetable/timetable_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "timetable/free_place_dialog.hpp"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>

namespace kova::timetable::test {

namespace {

constexpr family::Key Bath = 900;

/// The dialog over the shop of the timetable, at 10:20 on 19/11/2026.
class FreePlaceQuestion : public HorariosTest {
protected:
    void Ask(const PlaceQuestion& question = {})
    {
        const std::shared_ptr<family::Database> database = family::OpenDatabase(file_);
        dialog_ =
            std::make_unique<FreePlaceDialog>(Desk{database, [this] { return now_; }, {}}, question, nullptr);
        dialog_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    }
    template <class Kind> Kind& Field(const char* name)
    {
        return *dialog_->findChild<Kind*>(QString::fromUtf8(name));
    }
    std::vector<std::string> Found()
    {
        std::vector<std::string> found;
        const auto& list = Field<QListWidget>("horarios");
        for (int row = 0; row < list.count(); ++row)
            found.push_back(list.item(row)->text().toStdString());
        return found;
    }
    std::string Told() { return Field<QLabel>("recado").text().toStdString(); }
    void Type(QWidget& into, const char* text)
    {
        into.setFocus();
        QTest::keyClicks(&into, QString::fromUtf8(text));
        QTest::keyClick(&into, Qt::Key_Return);
    }

    std::unique_ptr<FreePlaceDialog> dialog_;
};

using List = std::vector<std::string>;

TEST_F(FreePlaceQuestion, WaitsForTheService)
{
    Ask();
    EXPECT_EQ(Told(), "Escolha o serviço.");
    EXPECT_FALSE(Field<QPushButton>("marcar").isEnabled());
    QTest::keyClick(dialog_.get(), Qt::Key_Return);
    EXPECT_FALSE(dialog_->Chosen());
}

TEST_F(FreePlaceQuestion, TellsTheNextPlacesFromNowOn)
{
    Ask({.service = Bath});
    Field<QSpinBox>("quantas").setValue(2);
    EXPECT_EQ(Found(),
              (List{"qui. 19/11/2026, das 10:30 às 11:30, com Ana",
                    "qui. 19/11/2026, das 11:30 às 12:30, com Ana"}));
    EXPECT_EQ(Field<QSpinBox>("duracao").value(), 60);
}

TEST_F(FreePlaceQuestion, GoesByAllThatIsAsked)
{
    Ask({.service = Bath});
    Field<QSpinBox>("quantas").setValue(1);
    auto& employee = Field<QComboBox>("funcionario");
    employee.setCurrentIndex(employee.findText(QStringLiteral("Bia")));
    EXPECT_EQ(Found(), List{"qui. 19/11/2026, das 10:30 às 11:30, com Bia"});
    Field<QComboBox>("parte").setCurrentIndex(3);
    EXPECT_EQ(Found(), List{"qui. 19/11/2026, das 12:00 às 13:00, com Bia"});
    Field<QSpinBox>("duracao").setValue(90);
    EXPECT_EQ(Found(), List{"qui. 19/11/2026, das 12:00 às 13:30, com Bia"});
    Field<QDateEdit>("dia").setDate({2026, 11, 23});
    EXPECT_EQ(Found(), List{"seg. 23/11/2026, das 12:00 às 13:30, com Bia"});
    Field<QComboBox>("parte").setCurrentIndex(4);
    EXPECT_EQ(Found(), List{});
    EXPECT_NE(Told().find("Não há horário livre"), std::string::npos) << "the shop closes at 18:00";
}

TEST_F(FreePlaceQuestion, TellsOfNoNightUnasked)
{
    Stored("update expediente set hora_inicial = '00:00', hora_final = '24:00'");
    Ask({.service = Bath, .from = Date{2026, 11, 23}});
    Field<QSpinBox>("quantas").setValue(1);
    EXPECT_EQ(Found(), List{"seg. 23/11/2026, das 07:00 às 08:00, com Ana"});
    Field<QComboBox>("parte").setCurrentIndex(1);
    EXPECT_EQ(Found(), List{"seg. 23/11/2026, das 00:00 às 01:00, com Ana"});
}

TEST_F(FreePlaceQuestion, ProposesAWholeSeriesThatHasRoom)
{
    Stored("update funcionario set situacao = 2 where codigo = 2");
    Book(1, "10:00", "12:00", 1, "2026-12-03");
    Ask({.service = Bath});
    Field<QSpinBox>("quantas").setValue(1);
    Field<QSpinBox>("vezes").setValue(3);
    EXPECT_EQ(Found(), List{"qui. 19/11/2026, das 12:00 às 13:00, com Bia (3 vezes, até 03/12/2026)"});
    Field<QComboBox>("cada").setCurrentIndex(1);
    EXPECT_EQ(Found(), List{"qui. 19/11/2026, das 12:00 às 13:00, com Bia (3 vezes, até 17/12/2026)"});
    Stored("delete from agendamento");
    Field<QSpinBox>("vezes").setValue(2);
    EXPECT_EQ(Found(), List{"qui. 19/11/2026, das 10:30 às 11:30, com Bia (2 vezes, até 03/12/2026)"});
}

TEST_F(FreePlaceQuestion, TakesTheSessionsOfAPackage)
{
    Stored("update servico set quantidade_de_sessoes = 4 where codigo = 900");
    Ask({.service = Bath});
    EXPECT_EQ(Field<QSpinBox>("vezes").value(), 4);
}

TEST_F(FreePlaceQuestion, IsAnsweredByKeysAlone)
{
    Ask({.employee = 1});
    Type(*Field<QComboBox>("servico").lineEdit(), "Banho de teste");
    ASSERT_FALSE(Found().empty());
    Field<QListWidget>("horarios").setFocus();
    QTest::keyClick(&Field<QListWidget>("horarios"), Qt::Key_Down);
    QTest::keyClick(&Field<QListWidget>("horarios"), Qt::Key_Return);
    ASSERT_TRUE(dialog_->Chosen());
    EXPECT_EQ(dialog_->Chosen()->service, Bath);
    EXPECT_EQ(dialog_->Chosen()->place.employee, 1);
    EXPECT_EQ(dialog_->Chosen()->place.span.start, (DateTime{{2026, 11, 19}, {11, 30, 0}}));
}

TEST_F(FreePlaceQuestion, IsAnsweredByMouse)
{
    Ask({.service = Bath});
    QTest::mouseClick(&Field<QPushButton>("marcar"), Qt::LeftButton);
    ASSERT_TRUE(dialog_->Chosen());
    EXPECT_EQ(dialog_->Chosen()->sessions, 1);
}

TEST_F(FreePlaceQuestion, DoesNotAskAboutThePast)
{
    Ask({.service = Bath, .from = Date{2026, 11, 2}});
    EXPECT_EQ(Field<QDateEdit>("dia").date(), QDate(2026, 11, 19));
}

TEST_F(FreePlaceQuestion, SaysWhyItCannotSearch)
{
    Ask({.service = Bath});
    Stored("alter table agendamento rename to outra");
    Field<QSpinBox>("duracao").setValue(30);
    EXPECT_NE(Told(), "");
    EXPECT_EQ(Found(), List{});
}

} // namespace

} // namespace kova::timetable::test
