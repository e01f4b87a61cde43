#include "host/components/component_library.hpp"
#include "tests/unit/host/program_run.hpp"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

namespace kova::host::test {

namespace {

constexpr const char* DimmingClass = "{7B1E0D0C-52C4-4F2B-9B77-0D9C6B6A51E2}";

class LoneHost : public ServerHost {
public:
    bool Register(const ClassRegistration&) override { return true; }
    bool Unregister(std::string_view) override { return true; }
    Platform& GetPlatform() override { throw Failure(FailureNumber::NoObject); }
    std::string DataSource() const override { return {}; }
};

} // namespace

TEST(PresentationLibrary, StaysLoadedWhileAWindowIsDimmedByIt)
{
    int count = 1;
    char name[] = "test_host";
    char* words[] = {name, nullptr};
    const QApplication application(count, words);
    const std::string path = BuildFolder() / "libKOVA_A_Familia.so";
    LoneHost host;
    LibraryCache libraries(host);
    auto window = std::make_unique<QWidget>();
    {
        ClassFactory* factory = nullptr;
        ASSERT_EQ(libraries.Load(path).GetClassObject(DimmingClass, &factory), ServerStatus::Ok);
        ComponentRef dimming;
        ASSERT_EQ(factory->CreateInstance(nullptr, &dimming), ServerStatus::Ok);
        dimming->Call("Aplicar", std::vector<Argument>{static_cast<Long>(window->winId()), Integer{0}});
    }
    EXPECT_FALSE(libraries.Unload(path));
    window.reset();
    EXPECT_TRUE(libraries.Unload(path));
}

} // namespace kova::host::test
