#include "tools/scenario/language/script_file.hpp"

#include "system/path_text.hpp"
#include "system/whole_file.hpp"

namespace kova::scenario {

namespace {

std::optional<std::string> SetupAbove(std::filesystem::path folder, const std::string& name)
{
    for (;;) {
        std::error_code error;
        const std::string file = system::TextOf(folder / system::PathOf(name));
        if (auto content = system::ReadWholeFile(file, error))
            return content;
        if (error != std::errc::no_such_file_or_directory)
            throw std::invalid_argument("Não foi possível ler a preparação " + file + ".");
        const std::filesystem::path above = folder.parent_path();
        if (above == folder)
            return std::nullopt;
        folder = above;
    }
}

} // namespace

Script ReadScript(const std::string& file)
{
    std::error_code error;
    const auto text = system::ReadWholeFile(file, error);
    if (!text)
        throw std::invalid_argument("Não foi possível ler o roteiro " + file + ".");
    const std::filesystem::path folder = std::filesystem::absolute(system::PathOf(file)).parent_path();
    return ParseScript(*text, [&](const std::string& name) { return SetupAbove(folder, name); });
}

} // namespace kova::scenario
