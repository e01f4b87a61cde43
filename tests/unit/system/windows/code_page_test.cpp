#include <windows.h>

#include <gtest/gtest.h>

namespace kova::system {

/// Libraries hand names of files to the system as narrow texts.
TEST(CodePage, IsUtf8) { EXPECT_EQ(::GetACP(), static_cast<UINT>(CP_UTF8)); }

} // namespace kova::system
