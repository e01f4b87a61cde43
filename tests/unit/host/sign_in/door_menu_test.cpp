// What the menu offers whom about users, and what it leads to.

#include "host/sign_in/door_menu.hpp"

#include "tests/unit/host/sign_in/door_fixture.hpp"

#include <QMenu>

#include <string>
#include <vector>

namespace kova::host::test {

namespace {

class TheDoorInTheMenu : public TheDoor {
protected:
    using Entries = std::vector<std::string>;

    /// As somebody finds them who opens the menu.
    Entries Offered()
    {
        emit window_.Menu().aboutToShow();
        Entries texts;
        for (const QAction* entry : window_.Menu().actions()) {
            if (entry->isVisible() && !entry->isSeparator())
                texts.push_back(entry->text().toStdString());
        }
        return texts;
    }
    void Pick(const char* text)
    {
        for (QAction* entry : window_.Menu().actions()) {
            if (entry->text() == QString::fromUtf8(text))
                return entry->trigger();
        }
        ADD_FAILURE() << text;
    }
    static std::string Title()
    {
        const QWidget* const dialog = QApplication::activeModalWidget();
        return dialog == nullptr ? "" : dialog->windowTitle().toStdString();
    }

    const std::string changeUser_ = "&Trocar usuário...\tCtrl+Shift+U",
                      lock_ = "&Bloquear agora\tCtrl+Shift+L", secrets_ = "&Mudar minha senha...",
                      idle_ = "Bloqueio por &inatividade...", begin_ = "&Começar a usar usuários...";
};

} // namespace

TEST_F(TheDoorInTheMenu, OffersUsersToBeginWithWhereThereAreNoneAndNotInADemonstration)
{
    MakeShop(false);
    Door& door = Open();
    AddDoorToMenu(door, window_, true);
    EXPECT_EQ(Offered(), Entries{begin_});
    MainWindow demonstration({"Céu", true, "Recepção"});
    AddDoorToMenu(door, demonstration, false);
    for (const QAction* entry : demonstration.Menu().actions())
        EXPECT_TRUE(!entry->isVisible() || entry->isSeparator()) << entry->text().toStdString();
}

TEST_F(TheDoorInTheMenu, OffersAUserWhatHisRightsAllow)
{
    Door& door = AnaAtWork();
    AddDoorToMenu(door, window_, true);
    EXPECT_EQ(Offered(), (Entries{changeUser_, lock_, secrets_, idle_}));
    AddBia();
    EXPECT_EQ(family::SaveAccount(*family::OpenDatabase(file_), {1, "Ana", 3, true}, nullptr, owner_).why,
              "");
    window_.onTurned();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !door.IsAdministrator(); }));
    EXPECT_EQ(Offered(), (Entries{changeUser_, lock_, secrets_}));
}

TEST_F(TheDoorInTheMenu, LeadsToAnotherUserAndToTheLock)
{
    Door& door = AnaAtWork();
    AddDoorToMenu(door, window_, true);
    Pick(changeUser_.c_str());
    EXPECT_EQ(Title(), "Trocar usuário");
    Pick(lock_.c_str());
    EXPECT_EQ(Title(), "Bloqueado - Kovaris");
    door_.reset();
}

} // namespace kova::host::test
