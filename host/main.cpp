#include "host/application.hpp"
#include "system/command_line.hpp"

#include <iostream>

int main(int count, char** words)
{
    using namespace kova::host;
    try {
        const Options options = ParseOptions(kova::system::Arguments(count, words));
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
