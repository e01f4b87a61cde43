// The palette has every colour of the module, and each once. The sources are read as text, so a form drawn
// tomorrow is held to it today.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string TextOf(const fs::path& file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Colours written as numbers: three parts, or one number given to a colour of a design or a widget.
std::vector<std::string> ColoursIn(const std::string& text)
{
    static const std::regex pattern(
        R"(Rgb\([^)]*\)|\w*[cC]olou?r\w*( \w+)? = (0x)?[0-9]\w*|\w*Color\w*\((0x)?[0-9]\w*\))");
    return {std::sregex_token_iterator(text.begin(), text.end(), pattern), {}};
}

TEST(ThePalette, HasEveryColourOfTheModule)
{
    int sources = 0;
    for (const auto& entry : fs::recursive_directory_iterator(MODULE_SOURCES)) {
        const fs::path& file = entry.path();
        const bool defines =
            file.filename() == "palette.hpp" || file.string().find("contracts") != std::string::npos;
        if (!entry.is_regular_file() || defines)
            continue;
        ++sources;
        EXPECT_EQ(ColoursIn(TextOf(file)), std::vector<std::string>()) << file;
    }
    EXPECT_GT(sources, 50);
}

TEST(ThePalette, HasEachColourOnce)
{
    std::map<std::string, int> count;
    for (const std::string& colour : ColoursIn(TextOf(fs::path(MODULE_SOURCES) / "shared/palette.hpp")))
        ++count[colour];
    EXPECT_GT(count.size(), 10U);
    for (const auto& [colour, times] : count)
        EXPECT_EQ(times, 1) << colour;
}

TEST(ThePalette, IsMissedWhereverAColourIsANumber)
{
    for (const char* line :
         {"constexpr Colour Fundo = 255;", ".backColor = 14277081,", "campo.backColor = 0xF9F9F9;",
          "grade.GridColor(15724527);", "grade.BackColor(Rgb(1, 2, 3));"})
        EXPECT_EQ(ColoursIn(line).size(), 1U) << line;
    for (const char* line :
         {".backColor = cores::Cinza,", "grade.GridColor(cores::CinzaDeGrade);", ".width = 217,"})
        EXPECT_TRUE(ColoursIn(line).empty()) << line;
}

} // namespace
