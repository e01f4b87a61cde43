// What a window that prints asks of the desktop.

#include "reports/qt/paper_desk.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTimer>

namespace kova::qt::test {
namespace {

class Desk final : public paper::PaperDesk {
public:
    void Tell(QWidget*, MessageKind, const QString&) override { }
};

/// The answer where the user ends the dialog so.
QString AskedPath(const QString& proposal, bool isAccepted)
{
    QTimer::singleShot(0, qApp, [isAccepted] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QMetaObject::invokeMethod(dialog, isAccepted ? "accept" : "reject");
    });
    return Desk().AskPdfPath(nullptr, proposal);
}

TEST(PaperDesk, AnswersThePathThatTheUserAgreesTo)
{
    const QTemporaryDir folder;
    EXPECT_EQ(AskedPath(folder.filePath(QStringLiteral("lista.pdf")), true),
              folder.filePath(QStringLiteral("lista.pdf")));
    EXPECT_EQ(AskedPath(folder.filePath(QStringLiteral("lista")), true),
              folder.filePath(QStringLiteral("lista.pdf")));
}

TEST(PaperDesk, AnswersNoPathWhereTheUserThinksBetterOfIt)
{
    const QTemporaryDir folder;
    EXPECT_EQ(AskedPath(folder.filePath(QStringLiteral("lista.pdf")), false), QString());
}

} // namespace
} // namespace kova::qt::test
