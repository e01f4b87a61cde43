#include "host/host_toolkit.hpp"

#include "host/session/session_clock.hpp"
#include "tests/unit/host/with_application.hpp"

namespace kova::host {

namespace {

/// Of a window of 800 pixels that is drawn into memory: nobody sits in front of it.
class TheToolkitOfAPicture : public WithApplication {
protected:
    const SessionClock clock_;
    HostToolkit toolkit_{clock_, 800};
};

} // namespace

TEST_F(TheToolkitOfAPicture, AnswersAMessageAsIfItsBoxHadBeenClosed)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(toolkit_.MessageBox(MessageKind::Question, "Confirma?\r\nÉ feriado.", "Kovaris"), Reply::No);
    EXPECT_EQ(toolkit_.MessageBox(MessageKind::Information, "Feito.", "Kovaris"), Reply::Ok);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Kovaris: Confirma?\nÉ feriado.\nKovaris: Feito.\n");
}

TEST_F(TheToolkitOfAPicture, TellsAFailureThatNobodyHasTakenOnTheStandardErrorOutput)
{
    testing::internal::CaptureStderr();
    toolkit_.UnhandledFailure(Failure(FailureNumber::Overflow, "Grande demais."));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Kovaris: Grande demais.\n");
}

TEST_F(TheToolkitOfAPicture, TakesThePictureForItsScreen)
{
    EXPECT_EQ(toolkit_.ScreenWidth(), 800 * toolkit_.TwipsPerPixelX());
}

} // namespace kova::host
