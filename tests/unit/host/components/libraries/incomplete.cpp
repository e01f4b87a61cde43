// A shared object that is no component library: DllGetClassObject and what follows it are missing.

#include <cstdint>

extern "C" __attribute__((visibility("default"))) std::int32_t KovaAttachHost(void*) { return 0; }
