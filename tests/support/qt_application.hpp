#pragma once

namespace kova::test {

/// Makes the application where there is none yet; it is gone before the program ends. Offscreen unless
/// the environment names another platform. Each warning of Qt fails the test that runs.
void NeedApplication();

} // namespace kova::test
