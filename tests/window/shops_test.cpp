// From one shop to another without leaving the program.

#include "tests/window/shop.hpp"

#include "host/folders.hpp"
#include "host/session/remembered_shops.hpp"
#include "host/session/shops.hpp"
#include "system/path_text.hpp"
#include "tests/support/first_shop.hpp"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QToolTip>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";

class ShopsOfThisComputer : public Shop {
protected:
    static int Run(host::Options options)
    {
        options.user = "Antônia";
        options.date = Date{2026, 11, 20};
        options.size = host::WindowSize{1366, 768};
        return host::RunShops(options, host::Outlet::Window);
    }

    /// The application with a shop on its command line, or without.
    static int RunShops(const std::string& given = "")
    {
        host::Options options;
        options.database = given;
        return Run(options);
    }

    host::RememberedShops remembered_{host::SettingsFile()};

    /// The application's window; null where there is none.
    static QWidget* Window()
    {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->isVisible() && top->findChild<QWidget*>(QStringLiteral("container")))
                return top;
        }
        return nullptr;
    }

    /// What the window tells below the list; "" where it tells nothing.
    static std::string Notice()
    {
        const auto* notice = Window()->findChild<QLabel*>(QStringLiteral("aviso"));
        return notice->isVisible() ? notice->text().toStdString() : "";
    }

    static std::string Title() { return Window() == nullptr ? "" : Window()->windowTitle().toStdString(); }

    /// What the window says in the place of a list; "" where there is nothing.
    static std::string Hint()
    {
        const auto* container =
            Window() == nullptr ? nullptr : Window()->findChild<QWidget*>(QStringLiteral("container"));
        const auto* hint = container == nullptr
            ? nullptr
            : container->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        return hint == nullptr ? "" : hint->text().toStdString();
    }

    static QMenu* Menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    /// What is told of the menu's entry on which the mouse rests.
    static std::string TipOf(const char* entry)
    {
        for (QAction* action : Menu()->actions()) {
            if (action->text() != QString::fromUtf8(entry))
                continue;
            const QPoint place = Menu()->actionGeometry(action).center();
            QHelpEvent resting(QEvent::ToolTip, place, Menu()->mapToGlobal(place));
            QCoreApplication::sendEvent(Menu(), &resting);
        }
        return QToolTip::text().toStdString();
    }

    /// The question for a shop, once it stands there.
    static QWidget* Question()
    {
        QWidget* modal = QApplication::activeModalWidget();
        return modal != nullptr && modal->findChild<QPushButton*>(QStringLiteral("demonstracao")) ? modal
                                                                                                  : nullptr;
    }

    /// Over what stands in that box, whatever page it is on.
    static void Type(const char* name, const QString& text)
    {
        auto* box = Question()->findChild<QLineEdit*>(QString::fromUtf8(name));
        box->clear();
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }

    Receptionist& PressesInTheQuestion(const char* button)
    {
        return receptionist->WaitsUntil("a shop is asked for", [] { return Question() != nullptr; })
            .Does(std::string("press ") + button, [button] {
                QTest::mouseClick(Question()->findChild<QPushButton*>(QString::fromUtf8(button)),
                                  Qt::LeftButton);
            });
    }
};

} // namespace

TEST_F(ShopsOfThisComputer, AreAskedForAtFirstAndRememberedThen)
{
    PressesInTheQuestion("demonstracao");
    std::string title;
    receptionist->WaitsFor(List).Looks([&] { title = Title(); }).Leaves();
    EXPECT_EQ(RunShops(), EXIT_SUCCESS);
    EXPECT_NE(title.find("(demonstração)"), std::string::npos) << title;

    title.clear();
    receptionist->WaitsFor(List).Looks([&] { title = Title(); }).Leaves();
    EXPECT_EQ(RunShops(), EXIT_SUCCESS);
    EXPECT_NE(title.find("(demonstração)"), std::string::npos) << title;
}

// Whoever has just given a name and a password is not asked for them.
TEST_F(ShopsOfThisComputer, AreMadeStepByStepAndOpenWithWhoeverMadeThem)
{
    const QString file = QString::fromStdString(system::TextOf(Folder() / "nova.db"));
    std::string title;
    PressesInTheQuestion("criar").Does("make a shop", [&] {
        Type("fantasia", QStringLiteral("Pet Novo"));
        Type("arquivo", file);
        Type("usuario", QStringLiteral("Rosa"));
        Type("senha", QStringLiteral("Gato-Preto 1"));
        Type("senhaDeNovo", QStringLiteral("Gato-Preto 1"));
        for (int page = 0; page < 4; ++page)
            QTest::mouseClick(Question()->findChild<QPushButton*>(QStringLiteral("avancar")), Qt::LeftButton);
    });
    receptionist->WaitsFor(List).Looks([&] { title = Title(); }).Leaves();
    EXPECT_EQ(RunShops(), EXIT_SUCCESS);
    EXPECT_EQ(title, "Pet Novo - Rosa - Kovaris");
    EXPECT_EQ(remembered_.All().front().source, file.toStdString());
}

TEST_F(ShopsOfThisComputer, AreBroughtUpToDateAndSaySo)
{
    const std::string file = system::TextOf(Folder() / "antiga.db");
    kova::test::MakeFirstShop(file);
    std::string notice, again = "not looked at";
    receptionist->WaitsFor(List).Looks([&] { notice = Notice(); }).Leaves();
    EXPECT_EQ(RunShops(file), EXIT_SUCCESS);
    EXPECT_NE(notice.find("A loja foi atualizada da versão 1 para a versão "), std::string::npos) << notice;
    EXPECT_NE(notice.find(file + ".antes-da-versao-"), std::string::npos) << notice;

    receptionist->WaitsFor(List).Looks([&] { again = Notice(); }).Leaves();
    EXPECT_EQ(RunShops(file), EXIT_SUCCESS);
    EXPECT_EQ(again, "");
}

TEST_F(ShopsOfThisComputer, AreLeftWhereTheQuestionIsLeft)
{
    receptionist->WaitsUntil("a shop is asked for", [] { return Question() != nullptr; }).Does("leave", [] {
        QTest::keyClick(Question(), Qt::Key_Escape);
    });
    EXPECT_EQ(RunShops(), EXIT_SUCCESS);
    EXPECT_TRUE(remembered_.All().empty());
}

TEST_F(ShopsOfThisComputer, AreTurnedToByTheMenu)
{
    remembered_.Remember({system::TextOf(host::DemonstrationDatabase()), "Outra"});
    remembered_.Remember({Database(), "Esta"});
    std::string before, tip, after;
    receptionist->WaitsFor(List).Looks([&] { before = Title(); }).Presses("F10");
    receptionist->WaitsUntil("the menu is open", [] { return Menu() != nullptr; })
        .Does("rest", [&] { tip = TipOf("Outra"); })
        .Picks("Outra");
    receptionist->WaitsUntil("the other shop is open",
                             [] { return Title().find("(demonstração)") != std::string::npos; });
    receptionist->WaitsFor(List).Looks([&] { after = Title(); }).Leaves();
    EXPECT_EQ(RunShops(), EXIT_SUCCESS);
    EXPECT_EQ(before.find("(demonstração)"), std::string::npos) << before;
    EXPECT_EQ(tip, system::TextOf(host::DemonstrationDatabase()));
    EXPECT_NE(after.find("(demonstração)"), std::string::npos) << after;
    EXPECT_EQ(remembered_.All().front().source, system::TextOf(host::DemonstrationDatabase()));
}

TEST_F(ShopsOfThisComputer, StayOpenWhereTheQuestionForAnotherIsLeftOrAnsweredWithThem)
{
    remembered_.Remember({system::TextOf(host::DemonstrationDatabase()), "Demonstração"});
    QPointer<QWidget> window;
    bool stayedWhenLeft = false, stayedWhenChosen = false;
    receptionist->WaitsFor(List)
        .Looks([&] { window = Window(); })
        .Presses("F10")
        .Picks("&Abrir outra loja...");
    receptionist->WaitsUntil("a shop is asked for", [] { return Question() != nullptr; }).Does("leave", [] {
        QTest::keyClick(Question(), Qt::Key_Escape);
    });
    receptionist->WaitsFor(List).Looks([&] { stayedWhenLeft = window && window->isVisible(); });
    receptionist->Presses("F10").Picks("&Abrir outra loja...");
    PressesInTheQuestion("demonstracao");
    receptionist->WaitsFor(List).Looks([&] { stayedWhenChosen = window && window->isVisible(); }).Leaves();
    EXPECT_EQ(RunShops(), EXIT_SUCCESS);
    EXPECT_TRUE(stayedWhenLeft);
    EXPECT_TRUE(stayedWhenChosen);
}

TEST_F(ShopsOfThisComputer, AreNotAskedForWhereOneIsGiven)
{
    remembered_.Remember({system::TextOf(host::DemonstrationDatabase()), "Outra"});
    std::string title;
    receptionist->WaitsFor(List).Looks([&] { title = Title(); }).Leaves();
    EXPECT_EQ(RunShops(Database()), EXIT_SUCCESS);
    EXPECT_EQ(title.find("(demonstração)"), std::string::npos) << title;
    EXPECT_EQ(remembered_.All().front().source, Database());
}

TEST_F(ShopsOfThisComputer, AreNotAskedForWhereTheDemonstrationIs)
{
    remembered_.Remember({Database(), "Esta"});
    host::Options options;
    options.demonstration = true;
    std::string title;
    receptionist->WaitsFor(List).Looks([&] { title = Title(); }).Leaves();
    EXPECT_EQ(Run(options), EXIT_SUCCESS);
    EXPECT_NE(title.find("(demonstração)"), std::string::npos) << title;
}

TEST_F(ShopsOfThisComputer, TellWhyTheirAgendaCannotBeOpenedAndSayInTheirWindowThatItIsNot)
{
    remembered_.Remember({Database(), "Esta"});
    remembered_.Remember({system::TextOf(host::DemonstrationDatabase()), "Outra"});
    Execute("update funcionario set situacao = 2");
    std::string hint;
    receptionist->WaitsFor(List).Presses("F10").Picks("Esta").Answers("Return");
    receptionist->WaitsUntil("the window says something", [] { return !Hint().empty(); }).Does("close", [&] {
        hint = Hint();
        Window()->close();
    });
    EXPECT_EQ(RunShops(), EXIT_FAILURE);
    ASSERT_EQ(receptionist->Boxes().size(), 1U);
    EXPECT_TRUE(receptionist->Boxes().front().starts_with("Nenhum funcionário cadastrado."));
    EXPECT_EQ(
        hint,
        "A agenda não pôde ser aberta.\n\nCorrija a causa que foi mostrada e abra o programa novamente.");
}

TEST_F(ShopsOfThisComputer, ThatCannotBeOpenedAreToldAndAnotherIsAskedFor)
{
    remembered_.Remember({"/não/há/loja.db", "Perdida"});
    remembered_.Remember({Database(), "Esta"});
    std::string told;
    receptionist->WaitsFor(List).Presses("F10").Picks("Perdida");
    receptionist->WaitsUntil("a shop is asked for", [] { return Question() != nullptr; }).Does("look", [&] {
        told = Question()->findChild<QLabel*>(QStringLiteral("recado"))->text().toStdString();
    });
    PressesInTheQuestion("demonstracao");
    receptionist->WaitsFor(List).Leaves();
    EXPECT_EQ(RunShops(), EXIT_SUCCESS);
    EXPECT_NE(told.find("/não/há/loja.db"), std::string::npos) << told;
}

} // namespace kova::window_test
