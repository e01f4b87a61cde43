#include "component/windows/registration.hpp"

#include <gtest/gtest.h>

namespace kova::component {

namespace {

const std::vector<ClassRegistration> Classes = {
    {"KOVA_T_Cofre.clsCofre", "{5B0E7E52-6B0C-4E0B-9E57-0C6A2C3D4E01}", "C:\\Salão\\KOVA_T_Cofre.dll"},
    {"KOVA_T_Cofre.clsChave", "{5B0E7E52-6B0C-4E0B-9E57-0C6A2C3D4E02}", "C:\\Salão\\KOVA_T_Cofre.dll"},
};

/// While it lives, what is everybody's and what is this user's lie in two keys below that one.
class RootsApart {
public:
    explicit RootsApart(HKEY key)
    {
        Put(HKEY_LOCAL_MACHINE, key, L"Todos");
        Put(HKEY_CURRENT_USER, key, L"Um");
    }
    ~RootsApart()
    {
        ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    }
    RootsApart(const RootsApart&) = delete;
    RootsApart& operator=(const RootsApart&) = delete;

private:
    static void Put(HKEY root, HKEY key, const wchar_t* name)
    {
        HKEY made = nullptr;
        ::RegCreateKeyExW(key, name, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &made, nullptr);
        ::RegOverridePredefKey(root, made);
        ::RegCloseKey(made);
    }
};

/// A place of the test's own in the registry.
class Registration : public testing::Test {
protected:
    Registration()
    {
        ::RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\Kovaris-Teste", 0, nullptr, 0, KEY_ALL_ACCESS,
                          nullptr, &key, nullptr);
    }
    ~Registration() override
    {
        ::RegCloseKey(key);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Kovaris-Teste");
    }

    std::wstring Text(const wchar_t* path, const wchar_t* name = nullptr) const
    {
        wchar_t text[200] = L"";
        DWORD size = sizeof text;
        return ::RegGetValueW(key, path, name, RRF_RT_REG_SZ, nullptr, text, &size) == ERROR_SUCCESS ? text
                                                                                                     : L"-";
    }
    DWORD Keys(const wchar_t* path) const
    {
        HKEY below = nullptr;
        DWORD count = 0;
        if (::RegOpenKeyExW(key, path, 0, KEY_READ, &below) != ERROR_SUCCESS)
            return 0;
        ::RegQueryInfoKeyW(below, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr,
                           nullptr, nullptr, nullptr);
        ::RegCloseKey(below);
        return count;
    }

    HKEY key = nullptr;
};

} // namespace

TEST_F(Registration, NamesTheLibraryOfEachClassAndTheRuleOfThreads)
{
    ASSERT_EQ(RegisterClasses(key, Classes), ERROR_SUCCESS);
    EXPECT_EQ(Text(L"KOVA_T_Cofre.clsChave\\CLSID"), L"{5B0E7E52-6B0C-4E0B-9E57-0C6A2C3D4E02}");
    const wchar_t* library = L"CLSID\\{5B0E7E52-6B0C-4E0B-9E57-0C6A2C3D4E01}\\InprocServer32";
    EXPECT_EQ(Text(library), L"C:\\Salão\\KOVA_T_Cofre.dll");
    EXPECT_EQ(Text(library, L"ThreadingModel"), L"Apartment");
    EXPECT_EQ(Text(L"CLSID\\{5B0E7E52-6B0C-4E0B-9E57-0C6A2C3D4E01}\\ProgID"), L"KOVA_T_Cofre.clsCofre");
}

TEST_F(Registration, GoesForThisUserAloneWhereItMayNotGoForAll)
{
    std::vector<HKEY> roots;
    const auto writing = [&](LSTATUS forAll, LSTATUS forOne) {
        roots.clear();
        return ForAllElseForOne([&, forAll, forOne](HKEY root) {
            roots.push_back(root);
            return root == HKEY_LOCAL_MACHINE ? forAll : forOne;
        });
    };
    EXPECT_TRUE(writing(ERROR_SUCCESS, ERROR_ACCESS_DENIED));
    EXPECT_EQ(roots, (std::vector<HKEY>{HKEY_LOCAL_MACHINE}));
    EXPECT_TRUE(writing(ERROR_ACCESS_DENIED, ERROR_SUCCESS));
    EXPECT_EQ(roots, (std::vector<HKEY>{HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}));
    EXPECT_FALSE(writing(ERROR_ACCESS_DENIED, ERROR_ACCESS_DENIED));
    EXPECT_FALSE(writing(ERROR_DISK_FULL, ERROR_SUCCESS));
    EXPECT_EQ(roots, (std::vector<HKEY>{HKEY_LOCAL_MACHINE}));
}

TEST_F(Registration, ThatIsAskedForThisUserAloneLeavesWhatAllHave)
{
    const RootsApart roots(key);
    ASSERT_TRUE(RegisterForSystem(Classes));
    ASSERT_TRUE(RegisterForUser(Classes));
    const std::wstring name = L"\\Software\\Classes\\KOVA_T_Cofre.clsChave\\CLSID";
    const std::wstring classId = L"{5B0E7E52-6B0C-4E0B-9E57-0C6A2C3D4E02}";
    EXPECT_EQ(Text((L"Todos" + name).c_str()), classId);
    EXPECT_EQ(Text((L"Um" + name).c_str()), classId);
    EXPECT_TRUE(UnregisterForUser(Classes));
    EXPECT_EQ(Text((L"Todos" + name).c_str()), classId);
    EXPECT_EQ(Text((L"Um" + name).c_str()), L"-");
}

TEST_F(Registration, ThatIsAskedForThisUserAloneWritesNothingForAll)
{
    const RootsApart roots(key);
    ASSERT_TRUE(RegisterForUser(Classes));
    EXPECT_EQ(Keys(L"Todos"), 0U);
    EXPECT_EQ(Keys(L"Um\\Software\\Classes"), 3U);
}

TEST_F(Registration, LeavesNothingOfItsOwnBehindAndEverythingElse)
{
    HKEY other = nullptr;
    ::RegCreateKeyExW(key, L"CLSID\\{00000000-0000-0000-0000-000000000001}", 0, nullptr, 0, KEY_ALL_ACCESS,
                      nullptr, &other, nullptr);
    ::RegCloseKey(other);
    RegisterClasses(key, Classes);
    EXPECT_EQ(Keys(L""), 3U);
    EXPECT_EQ(Keys(L"CLSID"), 3U);
    EXPECT_EQ(UnregisterClasses(key, Classes), ERROR_SUCCESS);
    EXPECT_EQ(Keys(L""), 1U);
    EXPECT_EQ(Keys(L"CLSID"), 1U);
    EXPECT_EQ(UnregisterClasses(key, Classes), ERROR_SUCCESS) << "what is not there is no failure";
}

TEST_F(Registration, TakesBackWhatWasWrittenWhereTheRestCannotBe)
{
    auto classes = Classes;
    // A name that is too long for a key.
    classes[1].className = std::string(300, 'x');
    EXPECT_NE(RegisterClasses(key, classes), ERROR_SUCCESS);
    EXPECT_EQ(Text(L"KOVA_T_Cofre.clsCofre"), L"-");
    EXPECT_EQ(Keys(L"CLSID"), 0U);
}

} // namespace kova::component
