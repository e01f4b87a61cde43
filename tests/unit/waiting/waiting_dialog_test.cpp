#include "waiting/waiting_dialog.hpp"

#include "tests/support/box_answers.hpp"
#include "tests/support/sqlite_file.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/registers/registers.hpp"
#include "system/temporary_folder.hpp"
#include "waiting/entry_dialog.hpp"
#include "waiting/waiting_words.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimeEdit>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

namespace kova::waiting::test {

namespace {

using family::registers::FieldNamed;
using family::registers::Register;
using family::registers::Texts;

/// "Lista de espera" of a shop on 19/11/2026 at 10:20, used by mouse and keys: the customers Carla, with the
/// animals Rex and Tom, and Davi, with Lua; Bia; the service 900, which takes an hour; open from 08:00 to
/// 18:00.
class ListOfWaiting : public testing::Test {
protected:
    ListOfWaiting()
    {
        family::NewShop shop;
        shop.company.nomeFantasia = "Pet Shop Céu";
        shop.user = "Ana";
        shop.employee = "Bia";
        family::CreateNewShop(file_, shop);
        Run("delete from expediente");
        for (int weekday = 1; weekday <= 7; ++weekday)
            Run("insert into expediente (dia_da_semana, hora_inicial, hora_final) values ("
                + std::to_string(weekday) + ", '08:00', '18:00')");
        Run("insert into servico (codigo, nome, nome_de_busca, descricao, numero_do_tipo_de_servico,"
            " duracao_em_minutos, preco_em_centavos, custo_em_centavos)"
            " select 900, 'Banho de teste', '', '', min(numero), 60, 0, 0 from tipo_de_servico");
        QObject::connect(&looking_, &QTimer::timeout, &looking_, [this] { LookForEntry(); });
        database_ = family::OpenDatabase(file_);
        carla_ = AddCustomer("Carla");
        davi_ = AddCustomer("Davi");
        for (const auto& [owner, name] :
             {std::pair(carla_, "Rex"), std::pair(carla_, "Tom"), std::pair(davi_, "Lua")})
            Run("insert into animal (codigo_do_cliente, nome, nome_de_busca, sexo, porte, cor, "
                "codigo_da_raca)"
                " select "
                + std::to_string(owner) + ", '" + name + "', lower('" + name
                + "'), 'M', 1, '', min(codigo) from raca");
    }

    family::Key AddCustomer(const char* name)
    {
        const Register& customers = family::registers::CustomerRegister();
        Texts typed = customers.New();
        typed.at(FieldNamed(customers.Fields(), "Nome")) = name;
        const auto answer = customers.Save(*database_, 0, customers.New(), typed, Author());
        if (!answer.IsDone())
            throw std::runtime_error("the fixture's customer was refused");
        return answer.key;
    }

    static family::Author Author() { return {"1", "Ana", "2026-11-19 10:20:00", "BALCAO"}; }

    Desk MakeDesk()
    {
        return {{database_, Author}, [] { return DateTime{{2026, 11, 19}, {10, 20, 0}}; }};
    }

    void Open()
    {
        dialog_ = std::make_unique<WaitingDialog>(MakeDesk(), nullptr);
        dialog_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    }
    /// Of what is freed on that day from 10:00 to 12:00.
    void OpenFor(Date day)
    {
        dialog_ = std::make_unique<WaitingDialog>(
            MakeDesk(), family::waiting::FreedPlace{1, {{day, {10, 0, 0}}, {day, {12, 0, 0}}}}, nullptr);
        dialog_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    }

    /// Done in the entry's dialog once it is open.
    void InEntry(std::function<void(EntryDialog& entry)> act)
    {
        act_ = std::move(act);
        looking_.start(1);
    }
    void LookForEntry()
    {
        auto* entry = dynamic_cast<EntryDialog*>(QApplication::activeModalWidget());
        if (entry == nullptr)
            return;
        looking_.stop();
        act_(*entry);
        // What was refused leaves it open.
        if (entry->isVisible())
            entry->reject();
    }
    template <class Kind> static Kind& In(QWidget& of, const char* name)
    {
        return *of.findChild<Kind*>(QString::fromUtf8(name));
    }
    static void Choose(QListWidget& list, const char* text)
    {
        list.findItems(QString::fromUtf8(text), Qt::MatchExactly).at(0)->setCheckState(Qt::Checked);
    }
    static void Save(EntryDialog& entry)
    {
        QTest::mouseClick(&In<QPushButton>(entry, "salvar"), Qt::LeftButton);
    }
    void Press(const char* button) { QTest::mouseClick(&In<QPushButton>(*dialog_, button), Qt::LeftButton); }
    void Key(Qt::Key key)
    {
        dialog_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
        QTest::keyClick(dialog_->focusWidget() != nullptr ? dialog_->focusWidget() : dialog_.get(), key);
    }

    /// Adds by F2: that customer's animal waits for the bath.
    void Adds(const char* customer, const char* animal)
    {
        InEntry([customer, animal](EntryDialog& entry) {
            QTest::keyClicks(&In<QLineEdit>(entry, "cliente"), QString::fromUtf8(customer));
            auto& animals = In<QComboBox>(entry, "animal");
            animals.setCurrentIndex(animals.findText(QString::fromUtf8(animal)));
            Choose(In<QListWidget>(entry, "servicos"), "Banho de teste");
            Save(entry);
        });
        Key(Qt::Key_F2);
    }

    std::vector<std::string> Shown(int column)
    {
        const QAbstractItemModel& model = *In<QTableView>(*dialog_, "espera").model();
        std::vector<std::string> texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.push_back(model.index(row, column).data().toString().toStdString());
        return texts;
    }
    std::string Told() { return In<QLabel>(*dialog_, "recado").text().toStdString(); }
    std::vector<std::string> Run(const std::string& statement)
    {
        return kova::test::SqliteFile(file_).Run(statement);
    }

    system::TemporaryFolder folder_{"espera-"};
    const std::string file_ = (folder_.Path() / "loja.db").string();
    std::shared_ptr<family::Database> database_;
    family::Key carla_ = 0, davi_ = 0;
    std::unique_ptr<WaitingDialog> dialog_;
    std::function<void(EntryDialog&)> act_;
    QTimer looking_;
    std::vector<std::string> boxes_;
    kova::test::BoxAnswers answers_{boxes_};
};

using List = std::vector<std::string>;

TEST_F(ListOfWaiting, IsEmptyAtFirst)
{
    Open();
    EXPECT_EQ(Told(), "Ninguém espera. F2 adiciona.");
    EXPECT_FALSE(In<QPushButton>(*dialog_, "marcar").isEnabled());
    Key(Qt::Key_F6);
    Key(Qt::Key_F8);
    Key(Qt::Key_Return);
    EXPECT_FALSE(dialog_->Chosen());
}

TEST_F(ListOfWaiting, HasWhoWasAddedWhoWaitsLongestFirst)
{
    Open();
    Adds("Davi", "Lua");
    EXPECT_EQ(Told(), "Na lista de espera: Lua, de Davi.");
    Adds("Carla", "Tom");
    EXPECT_EQ(Shown(1), (List{"Davi", "Carla"}));
    EXPECT_EQ(Shown(2), (List{"Lua", "Tom"}));
    EXPECT_EQ(Shown(3), (List{"Banho de teste", "Banho de teste"}));
    EXPECT_EQ(Shown(4), (List{"qualquer um", "qualquer um"}));
    EXPECT_EQ(Shown(5).at(0), "19/11/2026 a 19/12/2026, seg, ter, qua, qui, sex e sáb, das 08:00 às 18:00");
    EXPECT_EQ(Run("select incluido_por || situacao from lista_de_espera"), (List{"Ana1", "Ana1"}));
}

TEST_F(ListOfWaiting, FindsTheAnimalByItsName)
{
    Open();
    std::string animal;
    InEntry([&](EntryDialog& entry) {
        QTest::keyClicks(&In<QLineEdit>(entry, "cliente"), QStringLiteral("Tom"));
        animal = In<QComboBox>(entry, "animal").currentText().toStdString();
    });
    Key(Qt::Key_F2);
    EXPECT_EQ(animal, "Tom");
}

TEST_F(ListOfWaiting, RefusesWhatIsMissingAndLosesNothing)
{
    Open();
    List refusals;
    std::string remark;
    InEntry([&](EntryDialog& entry) {
        const auto save = [&] {
            Save(entry);
            refusals.push_back(In<QLabel>(entry, "recusa").text().toStdString());
        };
        In<QLineEdit>(entry, "observacao").setText(QStringLiteral("Só com a Bia."));
        QTest::keyClicks(&In<QLineEdit>(entry, "cliente"), QStringLiteral("Davi"));
        save();
        Choose(In<QListWidget>(entry, "servicos"), "Banho de teste");
        In<QDateEdit>(entry, "ate").setDate({2026, 11, 18});
        save();
        In<QDateEdit>(entry, "ate").setDate({2026, 12, 18});
        In<QTimeEdit>(entry, "as").setTime({8, 30});
        save();
        remark = In<QLineEdit>(entry, "observacao").text().toStdString();
    });
    Key(Qt::Key_F2);
    EXPECT_EQ(refusals,
              (List{"Informe o serviço.", "O último dia é anterior ao primeiro.",
                    "Das 08:00 às 08:30 não cabe Banho de teste, que leva 60 minutos."}));
    EXPECT_EQ(remark, "Só com a Bia.");
    EXPECT_EQ(Shown(1), List{});
}

TEST_F(ListOfWaiting, IsChanged)
{
    Open();
    Adds("Carla", "Rex");
    InEntry([](EntryDialog& entry) {
        EXPECT_EQ(In<QComboBox>(entry, "animal").currentText(), QStringLiteral("Rex"));
        Choose(In<QListWidget>(entry, "funcionarios"), "Bia");
        In<QCheckBox>(entry, "dia7").setChecked(false);
        In<QTimeEdit>(entry, "as").setTime({0, 0});
        Save(entry);
    });
    Press("alterar");
    EXPECT_EQ(Shown(4), List{"Bia"});
    EXPECT_EQ(Shown(5).at(0), "19/11/2026 a 19/12/2026, seg, ter, qua, qui e sex, das 08:00 às 24:00");
    EXPECT_EQ(Run("select versao from lista_de_espera"), List{"2"});
}

TEST_F(ListOfWaiting, LosesWhoGivesUpAfterAQuestion)
{
    Open();
    Adds("Carla", "Rex");
    answers_.Give({"Não"});
    Key(Qt::Key_F8);
    EXPECT_EQ(Shown(1), List{"Carla"});
    answers_.Give({"Sim"});
    Key(Qt::Key_F8);
    EXPECT_EQ(Shown(1), List{});
    EXPECT_EQ(boxes_, (List{"Rex, de Carla não espera mais?", "Rex, de Carla não espera mais?"}));
    EXPECT_EQ(Run("select situacao from lista_de_espera"), List{"4"});
}

TEST_F(ListOfWaiting, SaysWhatAnotherDeskHasDoneMeanwhile)
{
    Open();
    Adds("Carla", "Rex");
    Run("update lista_de_espera set situacao = 4, versao = versao + 1");
    answers_.Give({"Sim", "OK"});
    Key(Qt::Key_F8);
    EXPECT_EQ(boxes_.size(), 2U);
    EXPECT_EQ(Shown(1), List{}) << "it is read anew";
}

TEST_F(ListOfWaiting, IsLeftWithWhomToBook)
{
    Open();
    Adds("Davi", "Lua");
    Adds("Carla", "Rex");
    In<QTableView>(*dialog_, "espera").setFocus();
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    ASSERT_TRUE(dialog_->Chosen());
    EXPECT_EQ(dialog_->Chosen()->entry.row.codigoDoCliente, carla_);
    EXPECT_FALSE(dialog_->Chosen()->fit);
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(ListOfWaiting, HasThePlacesOfThoseWhoFitWhereOneWasFreed)
{
    Open();
    Adds("Davi", "Lua");
    OpenFor({2026, 11, 23});
    EXPECT_EQ(Shown(1), List{"seg. 23/11/2026, das 10:00 às 11:00, com Bia (Banho de teste)"});
    EXPECT_EQ(Shown(2), List{"Davi"});
    EXPECT_FALSE(In<QPushButton>(*dialog_, "adicionar").isVisible());
    Press("marcar");
    ASSERT_TRUE(dialog_->Chosen() && dialog_->Chosen()->fit);
    EXPECT_EQ(dialog_->Chosen()->fit->place.span.start, (DateTime{{2026, 11, 23}, {10, 0, 0}}));
    OpenFor({2026, 11, 22});
    EXPECT_EQ(Told(), "Ninguém espera por esse horário.") << "nobody waits for a Sunday";
}

TEST(WordsOfWaiting, TellDaysOfTheWeek)
{
    EXPECT_EQ(TextOfWeekdays("1234567").toStdString(), "todos os dias");
    EXPECT_EQ(TextOfWeekdays("24").toStdString(), "seg e qua");
    EXPECT_EQ(TextOfWeekdays("7").toStdString(), "sáb");
}

} // namespace

} // namespace kova::waiting::test
