#include "bench/measure.hpp"

#include <algorithm>
#include <iostream>
#include <sstream>

namespace kova::bench {

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

namespace {

void PrintWithRatio(const std::string& what, const Comparison& comparison, const std::string& unit,
                    double ratio, const std::string& limit)
{
    std::cout << "line\t" << what << '\t' << comparison.measured << '\t' << comparison.floor << '\t' << unit
              << '\t' << ratio << '\t' << limit << std::endl;
}

std::string InDigits(double value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}

} // namespace

void PrintLine(const std::string& what, const Comparison& comparison, const std::string& unit, double limit)
{
    PrintWithRatio(what, comparison, unit, comparison.Ratio(), InDigits(limit));
}

void PrintRates(const std::string& what, const Comparison& comparison, const std::string& unit, double limit)
{
    PrintWithRatio(what, comparison, unit, 1 / comparison.Ratio(), InDigits(limit));
}

void PrintTold(const std::string& what, const Comparison& comparison, const std::string& unit)
{
    PrintWithRatio(what, comparison, unit, comparison.Ratio(), "-");
}

void PrintNote(const std::string& text) { std::cout << "note\t" << text << std::endl; }

} // namespace kova::bench
