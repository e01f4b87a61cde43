// A library that exports one function. Its target exports all that is visible.

extern "C" {
__attribute__((visibility("default"))) int Answer();
int Answer() { return 42; }
}
