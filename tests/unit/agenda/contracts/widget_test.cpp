#include "agenda/contracts/widgets/widget.hpp"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace kova {

TEST(WidgetKind, HasANameOfItsOwn)
{
    std::set<std::string> names;
    const int last = static_cast<int>(WidgetKind::Shape);
    for (int kind = 0; kind <= last; ++kind)
        names.insert(NameOf(static_cast<WidgetKind>(kind)));
    EXPECT_EQ(names.size(), static_cast<std::size_t>(last) + 1);
    EXPECT_STREQ(NameOf(WidgetKind::KVFind), "KVFind");
    EXPECT_STREQ(NameOf(WidgetKind::MSFlexGrid), "MSFlexGrid");
}

} // namespace kova
