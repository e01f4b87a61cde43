// The module's library as a program meets it that is not of the family: by the system's own entry points,
// with a platform beside it.

#include "component/windows/held.hpp"
#include "component/windows/variants.hpp"
#include "system/path_text.hpp"
#include "system/program_path.hpp"
#include "system/temporary_folder.hpp"
#include "tests/unit/component/platform/test_platform.hpp"
#include "tests/unit/component/windows/stranger.hpp"
#include "toolkits/common/form.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <thread>

namespace kova::component {

using test::Stranger;

namespace {

namespace fs = std::filesystem;

constexpr CLSID AgendaId = {0x6C1F0B52, 0x3E7D, 0x4C58, {0x9B, 0x7A, 0x2F, 0x0C, 0x4D, 0x8E, 0x51, 0xA3}};

using DllGetClassObjectOfSystem = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
using DllCanUnloadNowOfSystem = HRESULT(STDAPICALLTYPE*)();

/// A loaded library, as the system loads those of components.
class Loaded {
public:
    explicit Loaded(const fs::path& file)
        : module_(::LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH))
    {
    }
    ~Loaded() { ::FreeLibrary(module_); }
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;

    bool IsLoaded() const { return module_ != nullptr; }
    template <class Function> Function Find(const char* name) const
    {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module_, name)));
    }

private:
    HMODULE module_;
};

class ModuleSeenFromOutside : public testing::Test {
protected:
    ModuleSeenFromOutside()
    {
        ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        toolkit = platform.Find<KovaTestToolkitFunction>("KovaTestToolkit")();
        container = platform.Find<KovaTestContainerFunction>("KovaTestContainer")();
    }
    ~ModuleSeenFromOutside() override
    {
        ::SysFreeString(exception.bstrSource);
        ::SysFreeString(exception.bstrDescription);
    }

    static fs::path Folder() { return system::PathOf(INSTALLED_FOLDER); }

    static HRESULT ClassOf(const Loaded& library, const CLSID& classId, Held<IClassFactory>& made)
    {
        void* found = nullptr;
        const HRESULT status =
            library.Find<DllGetClassObjectOfSystem>("DllGetClassObject")(classId, IID_IClassFactory, &found);
        made = Held<IClassFactory>::Counted(static_cast<IClassFactory*>(found));
        return status;
    }
    HRESULT CanUnloadNow() const { return module.Find<DllCanUnloadNowOfSystem>("DllCanUnloadNow")(); }

    static HRESULT Create(const Held<IClassFactory>& factory, Held<IDispatch>& made)
    {
        void* found = nullptr;
        const HRESULT status = factory->CreateInstance(nullptr, IID_IDispatch, &found);
        made = Held<IDispatch>::Counted(static_cast<IDispatch*>(found));
        return status;
    }
    Held<IDispatch> Agenda() const
    {
        Held<IClassFactory> factory;
        EXPECT_EQ(ClassOf(module, AgendaId, factory), S_OK);
        Held<IDispatch> agenda;
        EXPECT_EQ(Create(factory, agenda), S_OK) << LastText();
        return agenda;
    }

    /// What the maker has said of the last failure.
    static Text LastText()
    {
        IErrorInfo* last = nullptr;
        if (::GetErrorInfo(0, &last) != S_OK)
            return {};
        BSTR description = nullptr;
        Held<IErrorInfo>::Counted(last)->GetDescription(&description);
        const Text text = TextOf(description);
        ::SysFreeString(description);
        return text;
    }

    HRESULT Invoke(const Held<IDispatch>& object, const wchar_t* name, WORD flags,
                   std::vector<VARIANT> lastFirst)
    {
        auto* asked = const_cast<wchar_t*>(name);
        DISPID id = 0;
        EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id), S_OK);
        DISPID put = DISPID_PROPERTYPUT;
        const bool isPut = flags != DISPATCH_METHOD;
        DISPPARAMS parameters = {lastFirst.data(), isPut ? &put : nullptr,
                                 static_cast<UINT>(lastFirst.size()), isPut ? 1U : 0U};
        return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, nullptr, &exception,
                              nullptr);
    }
    static VARIANT Number(LONG number)
    {
        VARIANT variant;
        variant.vt = VT_I4;
        variant.lVal = number;
        return variant;
    }

    const Loaded platform{Folder() / "kovaris-platform.dll"};
    const Loaded module{Folder() / "KOVA_A_Agenda.dll"};
    headless::HeadlessToolkit* toolkit = nullptr;
    Long container = 0;
    EXCEPINFO exception = {};
};

} // namespace

TEST_F(ModuleSeenFromOutside, HasItsOneClass)
{
    Held<IClassFactory> factory;
    EXPECT_EQ(ClassOf(module, IID_IUnknown, factory), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_FALSE(factory);
    ASSERT_EQ(ClassOf(module, AgendaId, factory), S_OK);
    void* made = this;
    Held<IDispatch> outer(new Stranger({}));
    EXPECT_EQ(factory->CreateInstance(outer.Get(), IID_IUnknown, &made), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, &made), E_NOINTERFACE);
}

TEST_F(ModuleSeenFromOutside, OpensTheListInAContainerAndCanGoWhenItIsClosed)
{
    EXPECT_EQ(CanUnloadNow(), S_OK);
    Held<IDispatch> agenda = Agenda();
    EXPECT_EQ(CanUnloadNow(), S_FALSE);
    VARIANT user;
    user.vt = VT_DISPATCH;
    user.pdispVal = new Stranger({});
    user.pdispVal->AddRef();
    EXPECT_EQ(Invoke(agenda, L"dadosdousuario", DISPATCH_PROPERTYPUTREF, {user}), S_OK);
    ::VariantClear(&user);
    EXPECT_EQ(Stranger::alive, 1) << "the module keeps the user";
    VARIANT name;
    name.vt = VT_BSTR;
    name.bstrVal = BstrOf("Salão da Ana");
    EXPECT_EQ(Invoke(agenda, L"NOMEDAAPLICACAO", DISPATCH_PROPERTYPUT, {name}), S_OK);
    ::VariantClear(&name);
    toolkit->ClearLog();
    EXPECT_EQ(Invoke(agenda, L"AbrirLista", DISPATCH_METHOD, {Number(container), Number(1)}), S_OK);
    EXPECT_EQ(std::count(toolkit->Log().begin(), toolkit->Log().end(), "show frmLista"), 1);

    agenda = {};
    EXPECT_EQ(CanUnloadNow(), S_FALSE) << "the list on the screen needs the library";
    EXPECT_EQ(Stranger::alive, 1);
    toolkit->FindForm("frmLista")->Unload();
    EXPECT_EQ(CanUnloadNow(), S_OK);
    EXPECT_EQ(Stranger::alive, 0) << "nothing of the caller's is kept by a library that may go";
}

TEST_F(ModuleSeenFromOutside, TellsFailuresByNumberAndText)
{
    const Held<IDispatch> agenda = Agenda();
    EXPECT_EQ(Invoke(agenda, L"AbrirLista", DISPATCH_METHOD, {Number(1)}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, static_cast<SCODE>(0x800A0000 + 450));
    EXPECT_STREQ(exception.bstrDescription, L"Número de argumentos incorreto");
    EXPECT_EQ(Invoke(agenda, L"DadosDoUsuario", DISPATCH_PROPERTYPUT, {Number(1)}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, static_cast<SCODE>(0x800A0000 + 13));
}

TEST_F(ModuleSeenFromOutside, IsKeptByItsClassAndByALock)
{
    Held<IClassFactory> factory;
    ASSERT_EQ(ClassOf(module, AgendaId, factory), S_OK);
    EXPECT_EQ(CanUnloadNow(), S_FALSE);
    EXPECT_EQ(factory->LockServer(TRUE), S_OK);
    factory = {};
    EXPECT_EQ(CanUnloadNow(), S_FALSE);
    ASSERT_EQ(ClassOf(module, AgendaId, factory), S_OK);
    EXPECT_EQ(factory->LockServer(FALSE), S_OK);
    factory = {};
    EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST_F(ModuleSeenFromOutside, ServesOneThreadAtATime)
{
    Held<IDispatch> agenda = Agenda();
    Held<IClassFactory> factory;
    ASSERT_EQ(ClassOf(module, AgendaId, factory), S_OK);
    const auto createElsewhere = [&] {
        HRESULT status = S_OK;
        HRESULT unload = S_OK;
        std::thread([&] {
            Held<IDispatch> made;
            status = Create(factory, made);
            unload = CanUnloadNow();
        }).join();
        EXPECT_EQ(unload, S_FALSE);
        return status;
    };
    EXPECT_EQ(createElsewhere(), RPC_E_WRONG_THREAD);
    agenda = {};
    EXPECT_EQ(createElsewhere(), S_OK) << "nothing of the first thread's lives any more";
    EXPECT_EQ(Create(factory, agenda), S_OK);
    agenda = {};
    factory = {};
    EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST_F(ModuleSeenFromOutside, SaysThatThePlatformIsMissing)
{
    const system::TemporaryFolder alone("kovaris-sozinha-");
    for (const fs::directory_entry& entry : fs::directory_iterator(Folder()))
        if (entry.path().filename() != "kovaris-platform.dll")
            fs::copy(entry.path(), alone.Path() / entry.path().filename());
    {
        const Loaded library(alone.Path() / "KOVA_A_Agenda.dll");
        ASSERT_TRUE(library.IsLoaded());
        Held<IClassFactory> factory;
        ASSERT_EQ(ClassOf(library, AgendaId, factory), S_OK);
        Held<IDispatch> agenda;
        EXPECT_EQ(Create(factory, agenda), static_cast<HRESULT>(0x800A0000 + 429));
    }
    const Text text = LastText();
    EXPECT_NE(text.find("kovaris-platform.dll' não pode ser carregada"), Text::npos) << text;
}

} // namespace kova::component
