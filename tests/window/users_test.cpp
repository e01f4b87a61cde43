// Users of the shop: the first of them, their registers and their secrets, in the application's own window.

#include "tests/window/shop_with_users.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/users/accounts.hpp"
#include "family/users/user_rights.hpp"
#include "host/session/session.hpp"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <cstdlib>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";

using UsersOfTheShop = ShopWithUsers;

} // namespace

TEST_F(UsersOfTheShop, BeginsWithTheFirstByTheMenu)
{
    int offered = 0;
    std::string title;
    receptionist->WaitsFor(List).Presses("Ctrl+Shift+U").Presses("Ctrl+Shift+L").WaitsFor(List).Looks([&] {
        offered = Question() != nullptr;
    });
    receptionist->Presses("F10").Picks("&Começar a usar usuários...");
    receptionist->WaitsUntil("the first is asked for", [] { return Dialog("SenhaEPin") != nullptr; })
        .Does("answer", [] {
            QWidget* dialog = Dialog("SenhaEPin");
            Fill(In<QLineEdit>(dialog, "nome"), QStringLiteral("Antônia"));
            for (const char* box : {"senha", "senhaDeNovo"})
                Fill(In<QLineEdit>(dialog, box), QStringLiteral("Gato-Preto 1"));
            for (const char* box : {"pin", "pinDeNovo"})
                Fill(In<QLineEdit>(dialog, box), QStringLiteral("2580"));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
    receptionist->WaitsFor(List).Presses("Ctrl+Shift+U");
    Enters("Antônia", "2580");
    receptionist->WaitsFor(List).Looks([&] { title = Title(); }).Leaves();
    host::Options options;
    options.database = Database();
    options.size = host::WindowSize{1366, 768};
    EXPECT_EQ(host::RunSession(options, host::Outlet::Window).status, EXIT_SUCCESS);
    EXPECT_EQ(offered, 0);
    EXPECT_EQ(title, "Pet Shop Amigo Fiel - Antônia - Kovaris");
    EXPECT_TRUE(family::HasUsers(*family::OpenDatabase(Database())));
}

/// Another desk makes the first user of a name that was written down before.
TEST_F(UsersOfTheShop, LeavesNobodysRightsToADeskThatWasOpenBefore)
{
    Execute("update agendamento set situacao = 1");
    const std::string former = Value("select nome from usuario where codigo = 1");
    // At once, before this desk can hear of it; then it asks who is there.
    receptionist->WaitsFor(List).Presses("F7").Presses("Down").WaitsFor(List).Does("write", [&] {
        const auto database = family::OpenDatabase(Database());
        const family::Secret secret{std::string("Gato-Preto 1")};
        EXPECT_EQ(family::SaveAccount(*database, {1, former, Administration, true}, &secret, owner_).why, "");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_2, Qt::ControlModifier);
    });
    Enters(former.c_str(), "Gato-Preto 1");
    receptionist->Answers("Return").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes().size(), 1U);
    EXPECT_EQ(Value("select count(*) from auditoria where tabela = 'agendamento' and operacao = 'alteracao'"),
              "0");
    EXPECT_EQ(Value("select usuario from auditoria where operacao = 'direito_negado'"), "0 - Antônia");
}

TEST_F(UsersOfTheShop, ShowsItsUsersToThoseWhoAdministerThemAlone)
{
    AddAnaAndLia();
    Enters("Lia", "Laço Azul 22");
    const auto shown = [] {
        const auto& names = In<QListWidget>(Window(), "cadastros");
        std::string titles;
        for (int row = 0; row < names.count(); ++row) {
            if (!names.item(row)->isHidden() && row > 10)
                titles += names.item(row)->text().toStdString() + ";";
        }
        return titles;
    };
    std::string toLia, toAna;
    receptionist->WaitsFor(List).Presses("Alt+2");
    const auto isOpen = [] {
        return Window()->findChild<QListWidget*>(QStringLiteral("cadastros")) != nullptr;
    };
    receptionist->WaitsUntil("the registers are there", isOpen).Does("change", [&, shown] {
        toLia = shown();
        QTest::keyClick(Window()->windowHandle(), Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
    });
    Enters("Ana", "Gato-Preto 1");
    receptionist
        ->WaitsUntil("Ana is there",
                     [] { return Question() == nullptr && Title().find("Ana") != std::string::npos; })
        .Does("look", [&, shown] {
            toAna = shown();
            Window()->close();
        });
    Run();
    EXPECT_EQ(toLia, "Empresa;");
    EXPECT_EQ(toAna, "Empresa;Usuários;Papéis;");
}

TEST_F(UsersOfTheShop, GetANewPinFromWhoeverAdministersThem)
{
    AddAnaAndLia();
    Enters("Ana", "Gato-Preto 1");
    receptionist->WaitsFor(List).Presses("Alt+2");
    const auto isOpen = [] {
        return Window()->findChild<QListWidget*>(QStringLiteral("cadastros")) != nullptr;
    };
    receptionist->WaitsUntil("the registers are there", isOpen).Does("turn to Lia", [] {
        auto& names = In<QListWidget>(Window(), "cadastros");
        const auto users = names.findItems(QStringLiteral("Usuários"), Qt::MatchExactly);
        ASSERT_EQ(users.size(), 1);
        QTest::mouseClick(names.viewport(), Qt::LeftButton, {}, names.visualItemRect(users.front()).center());
        for (QTableView* list : Window()->findChildren<QTableView*>()) {
            for (int row = 0; list->isVisible() && row < list->model()->rowCount(); ++row) {
                if (list->model()->index(row, 0).data() == QStringLiteral("Lia"))
                    list->selectRow(row);
            }
        }
        for (QPushButton* more : Window()->findChildren<QPushButton*>(QStringLiteral("mais"))) {
            if (more->isVisible())
                QTest::mouseClick(more, Qt::LeftButton);
        }
    });
    receptionist->Picks("&Senha e PIN...");
    std::string title;
    receptionist->WaitsUntil("the secrets are asked for", [] { return Dialog("SenhaEPin") != nullptr; })
        .Does("answer", [&] {
            QWidget* dialog = Dialog("SenhaEPin");
            title = dialog->windowTitle().toStdString();
            for (const char* box : {"pin", "pinDeNovo"})
                Fill(In<QLineEdit>(dialog, box), QStringLiteral("9753"));
            QTest::mouseClick(&In<QPushButton>(dialog, "salvar"), Qt::LeftButton);
            QTest::keyClick(Window()->windowHandle(), Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
        });
    Enters("Lia", "9753");
    receptionist
        ->WaitsUntil("Lia is there",
                     [] { return Question() == nullptr && Title().find("Lia") != std::string::npos; })
        .Does("leave", [] { Window()->close(); });
    Run();
    EXPECT_EQ(title, "Senha e PIN: Lia");
    EXPECT_EQ(Value("select count(*) from auditoria where usuario like '% - Ana' and tabela = 'usuario'"
                    " and depois like '%definida%'"),
              "1");
}

TEST_F(UsersOfTheShop, ChangeTheirOwnPasswordByTheMenu)
{
    AddAnaAndLia();
    Enters("Lia", "Laço Azul 22");
    std::string refused;
    receptionist->WaitsFor(List).Presses("F10").Picks("&Mudar minha senha...");
    receptionist->WaitsUntil("the secrets are asked for", [] { return Dialog("SenhaEPin") != nullptr; })
        .Does("answer", [&] {
            QWidget* dialog = Dialog("SenhaEPin");
            Fill(In<QLineEdit>(dialog, "senhaAtual"), QStringLiteral("errada 123"));
            for (const char* box : {"senha", "senhaDeNovo"})
                Fill(In<QLineEdit>(dialog, box), QStringLiteral("Laço Verde 33"));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            refused = In<QLabel>(dialog, "falha").text().toStdString();
            Fill(In<QLineEdit>(dialog, "senhaAtual"), QStringLiteral("Laço Azul 22"));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
    receptionist->WaitsFor(List).Presses("Ctrl+Shift+L");
    Enters("", "Laço Verde 33");
    receptionist->WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(refused, "A senha atual não confere.");
}

} // namespace kova::window_test
