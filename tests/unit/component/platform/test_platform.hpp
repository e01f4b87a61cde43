#pragma once

#include "toolkits/headless/toolkit.hpp"

extern "C" {
/// The screen of the platform that the tests put beside the module: it lives in memory, with one container.
using KovaTestToolkitFunction = kova::headless::HeadlessToolkit* (*)();
/// The container's handle.
using KovaTestContainerFunction = kova::Long (*)();
}
