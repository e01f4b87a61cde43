// A library that exports two functions. Its target exports all that is visible.

#include "system/path_text.hpp"
#include "system/program_path.hpp"

extern "C" {
__attribute__((visibility("default"))) int Answer();
int Answer() { return 42; }

__attribute__((visibility("default"))) const char* OwnFile();
const char* OwnFile()
{
    static const std::string file = kova::system::TextOf(kova::system::OwnPath());
    return file.c_str();
}
}
