#include "host/toolkit_words.hpp"

#include "system/path_text.hpp"
#include "system/program_path.hpp"
#include "system/temporary_folder.hpp"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QPushButton>

#include <gtest/gtest.h>

#include <filesystem>

namespace kova::host {

namespace {

/// Each test has an application of its own, which speaks English at first.
class TheToolkitsWords : public testing::Test {
protected:
    ~TheToolkitsWords() override { QLocale::setDefault(former_); }

    static QString CancelButton()
    {
        const QDialogButtonBox box(QDialogButtonBox::Cancel);
        return box.button(QDialogButtonBox::Cancel)->text().remove(QLatin1Char('&'));
    }

    QString Folder() const { return QString::fromStdString(system::TextOf(folder_.Path())); }

    const QLocale former_;
    const system::TemporaryFolder folder_{"palavras"};
    int count_ = 1;
    char name_[10] = "test_host";
    char* words_[2] = {name_, nullptr};
    QApplication application_{count_, words_};
};

} // namespace

TEST_F(TheToolkitsWords, ArePortugueseWhateverTheDesktopSpeaks)
{
    EXPECT_EQ(CancelButton(), QStringLiteral("Cancel"));
    SpeakPortuguese(application_);
    EXPECT_EQ(CancelButton(), QStringLiteral("Cancelar"));
    EXPECT_EQ(QLocale().name(), QStringLiteral("pt_BR"));
}

TEST_F(TheToolkitsWords, AreLookedForBesideTheOwnFileToo)
{
    EXPECT_EQ(system::PathOf(FoldersOfToolkitWords().last().toStdString()),
              system::OwnPath().parent_path() / "translations");
}

TEST_F(TheToolkitsWords, AreTakenFromTheFirstFolderThatHasThem)
{
    const QString words = QStringLiteral("/qtbase_pt_BR.qm");
    ASSERT_TRUE(QFile::copy(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + words, Folder() + words));
    SpeakPortuguese(application_, {Folder() + QStringLiteral("/falta"), Folder()});
    EXPECT_EQ(CancelButton(), QStringLiteral("Cancelar"));
}

TEST_F(TheToolkitsWords, StayAsTheyAreWhereNoFolderHasThem)
{
    SpeakPortuguese(application_, {Folder()});
    EXPECT_EQ(CancelButton(), QStringLiteral("Cancel"));
}

} // namespace kova::host
