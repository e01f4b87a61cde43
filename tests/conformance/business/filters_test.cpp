#include "tests/conformance/business/suite.hpp"

namespace kova::conformance {

class Filters : public BusinessTest {
protected:
    void ExpectFound(const DayRequest& request, const std::vector<int>& numbers)
    {
        EXPECT_EQ(NumbersOf(*Selected(request, numbers)), numbers);
    }
};
KOVA_OVER_EVERY_ENGINE(Filters);

TEST_P(Filters, TakeTheDayAlone)
{
    ExpectFound({}, WholeDay());
    ExpectFound({.date = QuietDay}, {8});
    ExpectFound({.date = EmptyDay}, {});
}

TEST_P(Filters, TakeOneStatus)
{
    ExpectFound({.status = 1}, {1, 2, 4, 7});
    ExpectFound({.status = 2}, {3});
    ExpectFound({.status = 3}, {5});
    ExpectFound({.status = 4}, {6});
}

TEST_P(Filters, TakeOneTypeAndOneEmployee)
{
    ExpectFound({.type = 1}, {1, 3, 7});
    ExpectFound({.type = 4}, {5, 2, 4, 6});
    ExpectFound({.employee = 2}, {5, 2, 4, 6});
    ExpectFound({.employee = 3}, {});
}

TEST_P(Filters, FindAPartOfAWordWithoutCaseAndAccents)
{
    ExpectFound({.text = "jose"}, {1, 2, 7});
    ExpectFound({.text = "CEU"}, {5, 3, 6});
    ExpectFound({.text = "íris"}, {4});
    ExpectFound({.text = "bidu"}, {4});
    ExpectFound({.text = "%"}, {});
}

TEST_P(Filters, ApplyTogether)
{
    ExpectFound({.status = 1, .text = "paçoca", .type = 4, .employee = 2, .transport = Double(1)}, {2});
    ExpectFound({.status = 2, .text = "paçoca"}, {});
    ExpectFound({.status = 1, .type = 1, .employee = 2}, {});
}

} // namespace kova::conformance
