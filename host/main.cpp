#include "host/application.hpp"

#include <iostream>

int main(int count, char** words)
{
    using namespace kova::host;
    try {
        const Options options = ParseOptions(std::vector<std::string>(words + 1, words + count));
        if (options.showHelp)
            std::cout << HelpText();
        else if (options.showVersion)
            std::cout << VersionText();
        else
            return RunApplication(words[0], options);
        return 0;
    } catch (const BadOptions& refusal) {
        std::cerr << "Kovaris: " << refusal.what() << std::endl;
        return 2;
    }
}
