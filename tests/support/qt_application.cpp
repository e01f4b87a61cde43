#include "tests/support/qt_application.hpp"

#include "tests/support/platform_remarks.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSysInfo>
#include <QTimer>

#include <memory>

namespace kova::test {

namespace {

void FailOnWarning(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !IsRemarkOfThePlatform(text))
        ADD_FAILURE() << "Qt says: " << text.toStdString();
}

/// The application, made at its first need and gone before the program ends.
class Application : public testing::Environment {
public:
    void Need()
    {
        if (application_)
            return;
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QApplication>(count_, arguments_);
        QApplication::setQuitOnLastWindowClosed(false);
        if (QSysInfo::kernelType() == QLatin1String("winnt"))
            LookAgain();
        qInstallMessageHandler(&FailOnWarning);
    }
    void TearDown() override { application_.reset(); }

private:
    /// There the platform that draws into memory forgets that a loop was ended where another one has run
    /// inside it since, and waits for the next event: here is one.
    void LookAgain()
    {
        auto* const events = new QTimer(application_.get());
        events->start(5);
    }

    int count_ = 1;
    char name_[8] = "kovaris";
    char* arguments_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
};

Application& TheApplication()
{
    static auto* const application = new Application;
    return *application;
}
[[maybe_unused]] testing::Environment* const registered =
    testing::AddGlobalTestEnvironment(&TheApplication());

} // namespace

void NeedApplication() { TheApplication().Need(); }

} // namespace kova::test
