#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/grid/navigation_bar.hpp"
#include "toolkits/qt/look/flat_button.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QLabel>

namespace kova::qt::test {
namespace {

class PagingBar : public QtTest { };

TEST_F(PagingBar, FramesItsNumbersWhereNoneOfItsButtonsHasTheFocus)
{
    FormRef form = Show({Design(WidgetKind::KVTextBox, "kvtxt", 0, 600, 3000, 510),
                         Design(WidgetKind::KVNavigationBar, "kvnb", 0, 0, 5220, 510)});
    auto& bar = Bind<KVNavigationBar>(form, "kvnb");
    auto& window = dynamic_cast<NavigationWindow&>(*WindowOf(bar));
    const QRect numbers = window.Numbers().geometry();
    const auto edge = [&] { return Picture(&window).pixelColor(numbers.center().x(), numbers.top()); };
    EXPECT_NE(edge(), look::Accent);
    bar.SetFocus();
    ASSERT_TRUE(window.hasFocus()) << "nothing is on offer";
    EXPECT_EQ(edge(), look::Accent);
    bar.FirstRecord(16);
    bar.Refresh();
    EXPECT_TRUE(window.Button(1).hasFocus());
    EXPECT_NE(edge(), look::Accent);
}

} // namespace
} // namespace kova::qt::test
