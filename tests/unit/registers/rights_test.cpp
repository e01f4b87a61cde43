// What a user has no right to is shut on the screens of the registers, and says why.

#include "tests/unit/family/users/cheap.hpp"
#include "tests/unit/registers/registers_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/registers/registers.hpp"
#include "family/users/accounts.hpp"

#include <QApplication>
#include <QMenu>
#include <QPlainTextEdit>

namespace kova::registers::test {

namespace {

using family::Right;
using family::Rights;

constexpr family::Key Administration = 1, Reception = 3;

std::string Sentence(Right right)
{
    return "Recepção não pode " + family::InfoOf(right).Act() + ". Peça a quem administra os usuários.";
}
const std::string NoChange = Sentence(Right::ChangeRegisters);
const std::string NoPrices = Sentence(Right::SeePrices);
const std::string NoExport = Sentence(Right::Export);

} // namespace

/// Ana administers, Lia is at the desk with what `Allow` has given to her role. There is one service.
class RightsAtRegisters : public CadastrosTest {
protected:
    RightsAtRegisters()
    {
        page_.reset();
        const auto database = family::OpenDatabase(file_);
        const family::registers::Register& services = family::registers::ServiceRegister();
        family::registers::Texts texts = services.New();
        for (const auto& [label, text] : {std::pair("Nome", "Banho"),
                                          {"Número do tipo", "4"},
                                          {"Duração em minutos", "60"},
                                          {"Preço", "80,00"}})
            texts[family::registers::FieldNamed(services.Fields(), label)] = text;
        EXPECT_TRUE(services.Save(*database, 0, services.New(), texts, author_).IsDone());
        const family::Secret ofAna("Gato-Preto 1"), ofLia("Laço Azul 22");
        EXPECT_EQ(
            family::SaveAccount(*database, {1, "Ana", Administration, true}, &ofAna, author_, Cheap).why, "");
        const auto lia = family::SaveAccount(*database, {0, "Lia", Reception, true}, &ofLia, author_, Cheap);
        EXPECT_EQ(lia.why, "");
        ana_ = lia_ = author_;
        lia_.code = std::to_string(lia.code);
        lia_.name = "Lia";
        author_ = lia_;
    }

    static constexpr family::PasswordCost Cheap = family::test::Cheap;

    void Allow(const Rights& rights)
    {
        const auto database = family::OpenDatabase(file_);
        EXPECT_EQ(family::SaveRole(*database, {Reception, "Recepção", rights}, ana_).why, "");
    }
    void OpenWith(const Rights& rights)
    {
        Allow(rights);
        Open(UsualActions());
    }

    /// What stands under the mouse of a button that is shut; "open" of one that is not.
    std::string Reason(const char* button)
    {
        const auto& found = Find<QPushButton>(button);
        if (found.isEnabled())
            return "open";
        EXPECT_EQ(found.accessibleDescription(), found.toolTip());
        return found.toolTip().toStdString();
    }
    bool IsThere(const char* field)
    {
        for (const QWidget* one : page_->findChildren<QWidget*>(QString::fromUtf8(field))) {
            if (one->isVisible())
                return true;
        }
        return false;
    }
    /// The titles of the columns on show.
    std::vector<std::string> Columns()
    {
        const auto& list = Find<QTableView>("lista");
        std::vector<std::string> titles;
        for (int column = 0; column < list.model()->columnCount(); ++column) {
            if (!list.isColumnHidden(column))
                titles.push_back(list.model()->headerData(column, Qt::Horizontal).toString().toStdString());
        }
        return titles;
    }
    bool HasColumn(const std::string& title)
    {
        const auto titles = Columns();
        return std::find(titles.begin(), titles.end(), title) != titles.end();
    }
    /// The entries behind "Mais..." of all registers, shut ones with their reason.
    std::vector<std::string> Entries()
    {
        std::vector<std::string> entries;
        for (const QMenu* menu : page_->findChildren<QMenu*>("acoes")) {
            for (const QAction* action : menu->actions())
                entries.push_back(action->isEnabled() ? "open" : action->toolTip().toStdString());
        }
        return entries;
    }

    family::Author ana_, lia_;
};

TEST_F(RightsAtRegisters, LeaveEverythingOpenToWhoHasThemAll)
{
    OpenWith({Right::ChangeRegisters, Right::SeePrices, Right::Export, Right::Anonymise});
    TurnTo("Serviços");
    for (const char* button : {"novo", "excluir", "importarPlanilha", "exportarPlanilha"})
        EXPECT_EQ(Reason(button), "open") << button;
    EXPECT_TRUE(HasColumn("Preço"));
    EXPECT_TRUE(IsThere("Preço"));
    EXPECT_TRUE(IsThere("Custo"));
    TurnTo("Clientes");
    EXPECT_EQ(Entries(), (std::vector<std::string>{"open", "open"}));
}

TEST_F(RightsAtRegisters, ShutWhatWritesWithoutTheRightToChange)
{
    OpenWith({Right::SeePrices, Right::Export});
    for (const char* button : {"novo", "salvar", "excluir", "importarPlanilha"})
        EXPECT_EQ(Reason(button), NoChange) << button;
    EXPECT_EQ(Reason("exportarPlanilha"), "open");
    EXPECT_TRUE(Find<QLineEdit>("Nome").isReadOnly());
    EXPECT_EQ(Find<QLineEdit>("Nome").toolTip().toStdString(), NoChange);
    EXPECT_TRUE(Find<QPlainTextEdit>("Canais").isReadOnly());
    EXPECT_EQ(Entries(), (std::vector<std::string>{NoChange, "open"}));
}

TEST_F(RightsAtRegisters, LetNoKeyWriteEither)
{
    OpenWith({Right::SeePrices});
    const auto before = Stored("select codigo || nome from cliente order by 1");
    const std::string shown = TextOf("Nome");
    Find<QLineEdit>("Nome").setFocus();
    Type("x");
    EXPECT_EQ(TextOf("Nome"), shown);
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_S, Qt::Key_Delete}) {
        Keys(key, Qt::ControlModifier);
        EXPECT_EQ(Told(), NoChange) << key;
        EXPECT_EQ(TextOf("Nome"), shown);
    }
    for (const char* button : {"novo", "salvar", "excluir"})
        Press(button);
    EXPECT_EQ(Stored("select codigo || nome from cliente order by 1"), before);
    EXPECT_TRUE(boxes_.empty());
}

TEST_F(RightsAtRegisters, HidePricesFromWhoMayNotSeeThem)
{
    OpenWith({Right::ChangeRegisters, Right::Export});
    EXPECT_EQ(Reason("importarPlanilha"), "open") << "customers have none";
    TurnTo("Serviços");
    EXPECT_FALSE(HasColumn("Preço"));
    EXPECT_TRUE(HasColumn("Nome"));
    EXPECT_FALSE(IsThere("Preço"));
    EXPECT_FALSE(IsThere("Custo"));
    EXPECT_TRUE(IsThere("Nome"));
    EXPECT_EQ(Reason("novo"), NoPrices) << "a service needs a price";
    EXPECT_EQ(Reason("importarPlanilha"), NoPrices);
    EXPECT_EQ(Reason("exportarPlanilha"), NoPrices);
    TypeOver("Nome", "Banho longo");
    Press("salvar");
    EXPECT_EQ(Told(), "Salvo.");
    EXPECT_EQ(Stored("select nome || ' ' || preco_em_centavos from servico"),
              std::vector<std::string>{"Banho longo 8000"});
}

TEST_F(RightsAtRegisters, HideTheValuesOfACustomersAppointments)
{
    OpenWith({Right::ChangeRegisters});
    Keys(Qt::Key_F6);
    auto& list = Find<QTableView>("relacionados");
    int hidden = 0;
    for (int column = 0; column < list.model()->columnCount(); ++column) {
        if (list.isColumnHidden(column)) {
            ++hidden;
            EXPECT_EQ(list.model()->headerData(column, Qt::Horizontal).toString(), QStringLiteral("Valor"));
        }
    }
    EXPECT_EQ(hidden, 1);
}

TEST_F(RightsAtRegisters, ShutExportsAndWhatIsDoneToAPersonsData)
{
    OpenWith({Right::ChangeRegisters, Right::SeePrices, Right::Export});
    EXPECT_EQ(Entries(), (std::vector<std::string>{"open", "open"}));
    std::string anonymise, exporting;
    InDialog("DadosDaPessoa", [&](QDialog& dialog) {
        exporting = dialog.findChild<QPushButton*>("exportar")->isEnabled() ? "open" : "shut";
        auto* button = dialog.findChild<QPushButton*>("anonimizar");
        dialog.findChild<QLineEdit*>("codigo")->setText("1");
        anonymise = button->isEnabled() ? "open" : button->toolTip().toStdString();
        dialog.reject();
    });
    Pick(Qt::Key_D);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !anonymise.empty(); }));
    EXPECT_EQ(exporting, "open");
    EXPECT_EQ(anonymise, Sentence(Right::Anonymise));

    Allow({Right::ChangeRegisters});
    page_->Refresh();
    EXPECT_EQ(Reason("exportarPlanilha"), NoExport);
    EXPECT_EQ(Entries(), (std::vector<std::string>{"open", NoExport}));
}

TEST_F(RightsAtRegisters, FollowWhoeverIsAtTheDeskAndKeepWhatIsTyped)
{
    OpenWith({Right::SeePrices});
    author_ = ana_;
    page_->Refresh();
    EXPECT_EQ(Reason("novo"), "open");
    EXPECT_EQ(Find<QPushButton>("novo").toolTip(), QStringLiteral("Ctrl+N"));
    EXPECT_TRUE(Find<QPushButton>("novo").accessibleDescription().isEmpty());
    TypeOver("Nome", "Zélia");
    author_ = lia_;
    page_->Refresh();
    EXPECT_EQ(TextOf("Nome"), "Zélia");
    EXPECT_EQ(Reason("salvar"), NoChange);
    author_ = ana_;
    page_->Refresh();
    Press("salvar");
    EXPECT_EQ(Told(), "Salvo.");
}

TEST_F(RightsAtRegisters, AreAllOfEverybodyInAShopWithoutUsers)
{
    Elsewhere("update usuario set codigo_do_papel = null");
    Open(UsualActions());
    for (const char* button : {"novo", "excluir", "importarPlanilha", "exportarPlanilha"})
        EXPECT_EQ(Reason(button), "open") << button;
    EXPECT_FALSE(Find<QLineEdit>("Nome").isReadOnly());
}

} // namespace kova::registers::test
