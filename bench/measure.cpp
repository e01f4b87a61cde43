#include "bench/measure.hpp"

#include <algorithm>
#include <iostream>

namespace kova::bench {

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void PrintLine(const std::string& what, const Comparison& comparison, const std::string& unit, double limit)
{
    std::cout << "line\t" << what << '\t' << comparison.measured << '\t' << comparison.floor << '\t' << unit
              << '\t' << comparison.Ratio() << '\t' << limit << std::endl;
}

void PrintNote(const std::string& text) { std::cout << "note\t" << text << std::endl; }

} // namespace kova::bench
