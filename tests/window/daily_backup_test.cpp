#include "tests/window/shop.hpp"

#include "toolkits/qt/system_clock.hpp"

#include <QApplication>
#include <QLabel>

#include <cstdio>

namespace kova::window_test {

namespace fs = std::filesystem;

namespace {

/// What the application's window tells below the list; "" where it tells nothing.
std::string Notice()
{
    for (QWidget* top : QApplication::topLevelWidgets()) {
        const auto* notice = top->findChild<QLabel*>(QStringLiteral("aviso"));
        if (notice != nullptr && notice->isVisible())
            return notice->text().toStdString();
    }
    return "";
}

class DailyBackup : public Shop {
protected:
    /// The copies of today, and of yesterday where midnight has passed meanwhile.
    std::vector<fs::path> Copies() const
    {
        std::vector<fs::path> copies;
        const Date today = qt::SystemClock().Now().date;
        for (const Date date : {AddDays(today, -1), today})
            if (fs::is_regular_file(CopyOf(date)))
                copies.push_back(CopyOf(date));
        return copies;
    }

    fs::path CopyOf(Date date) const
    {
        char name[60];
        std::snprintf(name, sizeof name, "loja.db.copia-%04d-%02d-%02d.bak", date.year, date.month, date.day);
        return Folder() / name;
    }
};

} // namespace

TEST_F(DailyBackup, IsMadeBesideTheDatabaseWhileTheAgendaIsInUse)
{
    receptionist->WaitsFor("frmLista").Presses("F7").Presses("Down").Presses("Ctrl+2");
    receptionist->WaitsUntil("the copy is there", [this] { return !Copies().empty(); }).Leaves();
    Run();
    ASSERT_EQ(Copies().size(), 1U);
    test::SqliteFile copy(Copies().front());
    EXPECT_EQ(copy.Run("pragma integrity_check"), std::vector<std::string>{"ok"});
    EXPECT_EQ(copy.Run("select count(*) from cliente"), Query("select count(*) from cliente"));
}

TEST_F(DailyBackup, ThatFailsIsToldWithoutTakingTheKeyboard)
{
    const Date today = qt::SystemClock().Now().date;
    for (const Date date : {today, AddDays(today, 1)})
        fs::create_directory(CopyOf(date).string() + ".parcial");
    std::string notice, before, after;
    receptionist->WaitsFor("frmLista").Presses("F7").Looks([&] { before = Receptionist::Focused(); });
    receptionist->WaitsUntil("the failure is told", [] { return !Notice().empty(); });
    receptionist->Looks([&] {
        notice = Notice();
        after = Receptionist::Focused();
    });
    receptionist->Presses("Down").Presses("Ctrl+2").WaitsFor("frmLista").Leaves();
    Run();
    EXPECT_NE(notice.find("A cópia de segurança de hoje não foi feita."), std::string::npos) << notice;
    EXPECT_EQ(before, after);
    EXPECT_TRUE(receptionist->Boxes().empty());
}

} // namespace kova::window_test
