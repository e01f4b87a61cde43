// What the leak check at the end of a process leaves aside, in the builds that have one. The check's library
// asks for it by name.

#define KOVARIS_ASKED_BY_NAME extern "C" __attribute__((visibility("default")))

// The configuration that the font library reads as long as a process lives is not given back by Qt, and some
// of its blocks are reached only by addresses that point into their middle.
KOVARIS_ASKED_BY_NAME const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }

// A run that lets a script's errors be compared prints nothing of its own.
KOVARIS_ASKED_BY_NAME const char* __lsan_default_options() { return "print_suppressions=0"; }
