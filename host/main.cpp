#include "family/data/engine/secrets_in_text.hpp"
#include "host/application.hpp"
#include "host/arguments/call.hpp"
#include "system/command_line.hpp"

#include <iostream>

int main(int count, char** words)
{
    using namespace kova::host;
    kova::system::UseUtf8Streams();
    try {
        const Options options = ParseOptions(kova::system::Arguments(count, words));
        if (!options.answer)
            return RunApplication(words[0], options);
        std::cout << *options.answer;
        return 0;
    } catch (const kova::arguments::BadArguments& refusal) {
        std::cerr << "Kovaris: " << kova::family::WithoutSecrets(refusal.what()) << std::endl;
        return 2;
    }
}
