#include "host/shell/help.hpp"

#include "host/shell/main_window.hpp"
#include "host/shell/tab_row.hpp"
#include "system/path_text.hpp"
#include "system/whole_file.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kova::host {

namespace {

/// A window with two tabs beside the agenda's, whose help is opened by nobody but this test.
class TheHelp : public WithApplication {
protected:
    TheHelp()
    {
        for (const char* name : {"Cadastros", "Outra"})
            window_.AddTab(QString::fromUtf8(name), [](QWidget& parent) { return new QLineEdit(&parent); });
        agenda_ = new QLineEdit(&window_.Container());
        AddHelp(window_, GuideFile(), [this](const QUrl& page) {
            opened_.push_back(page);
            return hasReader_;
        });
        window_.Open(WindowSize{1000, 700});
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    void TurnTo(int tab) { window_.findChild<TabRow*>()->GetTabs().setCurrentIndex(tab); }
    void Press(Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(&window_, key, with); }

    std::string Notice() const
    {
        const auto* notice = window_.findChild<QLabel*>(QStringLiteral("aviso"));
        return notice->isVisible() ? notice->text().toStdString() : "";
    }

    MainWindow window_{{"Pet Shop Céu", false, "Maria"}};
    QLineEdit* agenda_ = nullptr;
    bool hasReader_ = true;
    std::vector<QUrl> opened_;
};

/// The guide as it is opened.
std::string Guide()
{
    std::error_code error;
    return system::ReadWholeFile(system::TextOf(GuideFile()), error).value_or("");
}

} // namespace

TEST_F(TheHelp, OpensTheGuideAtTheTabThatIsTurnedTo)
{
    TurnTo(1);
    Press(Qt::Key_F1);
    TurnTo(2);
    Press(Qt::Key_F1);
    ASSERT_EQ(opened_.size(), 2U);
    EXPECT_EQ(opened_[0].toLocalFile().toStdString(), system::TextOf(GuideFile()));
    EXPECT_EQ(opened_[0].fragment().toStdString(), "cadastros");
    EXPECT_EQ(opened_[1].fragment().toStdString(), "");
    EXPECT_EQ(Notice(), "");
}

TEST_F(TheHelp, LeavesF1ToTheDaysListAndOpensByAnotherKeyThere)
{
    Press(Qt::Key_F1);
    EXPECT_TRUE(opened_.empty());
    Press(Qt::Key_F1, Qt::ControlModifier);
    ASSERT_EQ(opened_.size(), 1U);
    EXPECT_EQ(opened_[0].fragment().toStdString(), "a-lista-do-dia");
    TurnTo(1);
    TurnTo(0);
    Press(Qt::Key_F1);
    EXPECT_EQ(opened_.size(), 1U);
}

TEST_F(TheHelp, StandsInTheMenu)
{
    const auto entries = window_.Menu().actions();
    const auto help = std::find_if(entries.begin(), entries.end(),
                                   [](const QAction* entry) { return entry->text() == "A&juda"; });
    ASSERT_NE(help, entries.end());
    (*help)->trigger();
    EXPECT_EQ(opened_.size(), 1U);
}

TEST_F(TheHelp, SaysWhereTheGuideLiesWhenNothingCanOpenIt)
{
    hasReader_ = false;
    Press(Qt::Key_F1, Qt::ControlModifier);
    EXPECT_NE(Notice().find(system::TextOf(GuideFile())), std::string::npos) << Notice();
}

TEST_F(TheHelp, SaysThatTheGuideIsMissing)
{
    MainWindow other({"Outra", false, "Maria"});
    bool opened = false;
    AddHelp(other, "/não/há/guia.html", [&](const QUrl&) { return opened = true; });
    other.Open(WindowSize{1000, 700});
    other.Menu().actions().front()->trigger();
    EXPECT_FALSE(opened);
    const std::string notice = other.findChild<QLabel*>(QStringLiteral("aviso"))->text().toStdString();
    EXPECT_NE(notice.find("/não/há/guia.html"), std::string::npos) << notice;
}

TEST_F(TheHelp, NamesHeadingsThatTheGuideHas)
{
    const std::string guide = Guide();
    for (const char* tab : {"Agenda", "Cadastros", "Histórico", "Horários"}) {
        const std::string section = GuideSection(QString::fromUtf8(tab)).toStdString();
        ASSERT_NE(section, "");
        EXPECT_NE(guide.find(" id=\"" + section + "\""), std::string::npos) << section;
    }
}

} // namespace kova::host
