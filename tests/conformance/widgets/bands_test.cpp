// The header band and the navigation bar.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class HeaderBand : public WidgetsTest { };
KOVA_ON_EVERY_BENCH(HeaderBand);

TEST_P(HeaderBand, KeepsItsThreeTexts)
{
    Has(WidgetKind::KVTheme, "KVTheme").caption = "Agendamento";
    Open();
    auto& band = Get<KVTheme>("KVTheme");
    EXPECT_EQ(band.Caption(), "Agendamento");
    EXPECT_EQ(band.DataOfInclusion(), "");
    EXPECT_EQ(band.DataOfAlteration(), "");
    band.Caption("Consulta");
    band.DataOfInclusion("Incluído em 20/11/2026");
    band.DataOfAlteration("Alterado em 21/11/2026");
    EXPECT_EQ(band.Caption(), "Consulta");
    EXPECT_EQ(band.DataOfInclusion(), "Incluído em 20/11/2026");
    EXPECT_EQ(band.DataOfAlteration(), "Alterado em 21/11/2026");
}

TEST_P(HeaderBand, TakesNoFocus)
{
    Has(WidgetKind::KVTextBox, "kvtxt");
    Has(WidgetKind::KVTheme, "KVTheme");
    Open();
    Get<KVTheme>("KVTheme").SetFocus();
    EXPECT_EQ(Focused(), "kvtxt");
}

class NavigationBar : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVNavigationBar, "kvnb");
        Open();
        bar_ = &Get<KVNavigationBar>("kvnb");
        bar_->OnClick([this](Integer& button) { events_.push_back("click " + std::to_string(button)); });
    }

    void Write(Double first, Double last, Double count)
    {
        bar_->FirstRecord(first);
        bar_->LastRecord(last);
        bar_->RecordCount(count);
        bar_->PageSize(15);
    }
    std::string Offered()
    {
        std::string offered;
        for (const int button : {1, 2, 3, 4})
            offered += User().Offers(*bar_, button) ? std::to_string(button) : "";
        return offered;
    }

    KVNavigationBar* bar_ = nullptr;
};
KOVA_ON_EVERY_BENCH(NavigationBar);

TEST_P(NavigationBar, IsAllZerosByDesign)
{
    EXPECT_EQ(bar_->FirstRecord(), 0);
    EXPECT_EQ(bar_->LastRecord(), 0);
    EXPECT_EQ(bar_->RecordCount(), 0);
    EXPECT_EQ(bar_->PageSize(), 0);
    EXPECT_EQ(Offered(), "");
}

TEST_P(NavigationBar, OffersTheButtonsThatItsNumbersAllow)
{
    Write(1, 15, 42);
    bar_->Refresh();
    EXPECT_EQ(Offered(), "34");
    Write(16, 30, 42);
    bar_->Refresh();
    EXPECT_EQ(Offered(), "1234");
    Write(31, 42, 42);
    bar_->Refresh();
    EXPECT_EQ(Offered(), "12");
    Write(1, 7, 7);
    bar_->Refresh();
    EXPECT_EQ(Offered(), "");
}

TEST_P(NavigationBar, ShowsItsNumbers)
{
    Write(16, 30, 1042);
    bar_->Refresh();
    EXPECT_EQ(User().BarText(*bar_), "16 - 30 de 1042");
}

TEST_P(NavigationBar, TakesItsNumbersToTheScreenWithRefreshOnly)
{
    Write(16, 30, 42);
    bar_->Refresh();
    Write(1, 15, 99);
    EXPECT_EQ(bar_->FirstRecord(), 1);
    EXPECT_EQ(bar_->LastRecord(), 15);
    EXPECT_EQ(bar_->RecordCount(), 99);
    EXPECT_EQ(bar_->PageSize(), 15);
    EXPECT_EQ(User().BarText(*bar_), "16 - 30 de 42");
    EXPECT_EQ(Offered(), "1234");
    bar_->Refresh();
    EXPECT_EQ(User().BarText(*bar_), "1 - 15 de 99");
    EXPECT_EQ(Offered(), "34");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(NavigationBar, TellsWhichButtonWasPressedAndChangesNoNumber)
{
    Write(16, 30, 45);
    bar_->Refresh();
    for (const int button : {1, 2, 3, 4})
        User().PressBar(*bar_, button);
    EXPECT_EQ(TakeEvents(), (Events{"click 1", "click 2", "click 3", "click 4"}));
    EXPECT_EQ(bar_->FirstRecord(), 16);
    EXPECT_EQ(User().BarText(*bar_), "16 - 30 de 45");
}

TEST_P(NavigationBar, KeepsTheFocusOnTheButtonThatWasPressed)
{
    Write(1, 15, 42);
    bar_->Refresh();
    User().PressBar(*bar_, 3);
    Write(16, 30, 42);
    bar_->Refresh();
    EXPECT_EQ(User().ButtonWithFocus(*bar_), 3);
    TakeEvents();
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), (Events{"click 3"}));
}

TEST_P(NavigationBar, ComesBackToItsButtonWhenThatIsOfferedAgain)
{
    Write(16, 30, 42);
    bar_->Refresh();
    User().PressBar(*bar_, 3);
    Write(0, 0, 0);
    bar_->Refresh();
    EXPECT_EQ(User().ButtonWithFocus(*bar_), 0);
    EXPECT_EQ(Focused(), "kvnb");
    Write(31, 42, 42);
    bar_->Refresh();
    TakeEvents();
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), Events());
    User().WalkBar(*bar_, false);
    EXPECT_EQ(User().ButtonWithFocus(*bar_), 2);
    Write(16, 30, 42);
    bar_->Refresh();
    User().WalkBar(*bar_, true);
    EXPECT_EQ(User().ButtonWithFocus(*bar_), 3);
}

TEST_P(NavigationBar, StartsAtTheFirstButtonOnOfferAndStaysInsideByArrowKeys)
{
    Write(1, 15, 42);
    bar_->Refresh();
    bar_->SetFocus();
    EXPECT_EQ(User().ButtonWithFocus(*bar_), 3);
    User().WalkBar(*bar_, false);
    EXPECT_EQ(User().ButtonWithFocus(*bar_), 3);
    User().WalkBar(*bar_, true);
    User().WalkBar(*bar_, true);
    EXPECT_EQ(User().ButtonWithFocus(*bar_), 4);
}

TEST_P(NavigationBar, HasTheFocusItselfWhereItHasNeverOfferedAButton)
{
    bar_->SetFocus();
    Write(0, 0, 0);
    bar_->Refresh();
    EXPECT_EQ(Focused(), "kvnb");
    EXPECT_EQ(User().ButtonWithFocus(*bar_), 0);
}

TEST_P(NavigationBar, TakesNoPressOfAButtonThatIsNotOffered)
{
    Write(1, 15, 42);
    bar_->Refresh();
    User().PressBar(*bar_, 1);
    User().PressBar(*bar_, 2);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(NavigationBar, MayBeWrittenInsideItsClick)
{
    Write(1, 15, 30);
    bar_->Refresh();
    bar_->OnClick([this](Integer& button) {
        button = 9;
        Write(16, 30, 30);
        bar_->Refresh();
    });
    User().PressBar(*bar_, 3);
    EXPECT_EQ(User().BarText(*bar_), "16 - 30 de 30");
    EXPECT_EQ(Offered(), "12");
}

TEST_P(NavigationBar, TakesNoPressWhileItIsDisabled)
{
    Write(16, 30, 45);
    bar_->Refresh();
    bar_->Enabled(false);
    User().PressBar(*bar_, 3);
    EXPECT_EQ(TakeEvents(), Events());
}

} // namespace kova::conformance
