// Creates the registered component in threads of both kinds and tells what it sees: in one that has objects
// of its own, in a second one after the first, and in one without, where the system puts something between.

#include <windows.h>

#include <cstdio>
#include <thread>

namespace {

HRESULT Create(IDispatch** agenda)
{
    CLSID classId;
    const HRESULT status = ::CLSIDFromProgID(L"KOVA_A_Agenda.clsAgenda", &classId);
    return FAILED(status) ? status
                          : ::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                               reinterpret_cast<void**>(agenda));
}

HRESULT Open(IDispatch* agenda, EXCEPINFO& exception)
{
    wchar_t name[] = L"abrirlista";
    wchar_t* asked = name;
    DISPID id = 0;
    const HRESULT status = agenda->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(status))
        return status;
    VARIANT argument;
    argument.vt = VT_I4;
    argument.lVal = 1;
    DISPPARAMS parameters = {&argument, nullptr, 1, 0};
    return agenda->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr,
                          &exception, nullptr);
}

void Use(const char* who, DWORD kind)
{
    ::CoInitializeEx(nullptr, kind);
    IDispatch* agenda = nullptr;
    std::printf("%s: created %08lx\n", who, static_cast<unsigned long>(Create(&agenda)));
    if (agenda) {
        EXCEPINFO exception = {};
        const HRESULT status = Open(agenda, exception);
        std::printf("%s: one argument %08lx %08lx %u\n", who, static_cast<unsigned long>(status),
                    static_cast<unsigned long>(exception.scode), ::SysStringLen(exception.bstrDescription));
        ::SysFreeString(exception.bstrDescription);
        ::SysFreeString(exception.bstrSource);
        agenda->Release();
    }
    // What the system has put between belongs to a thread of its own.
    if (kind == COINIT_APARTMENTTHREADED) {
        ::CoFreeUnusedLibrariesEx(0, 0);
        std::printf("%s: %s\n", who, ::GetModuleHandleW(L"KOVA_A_Agenda.dll") ? "loaded" : "unloaded");
    }
    ::CoUninitialize();
}

} // namespace

int main()
{
    std::thread([] { Use("first", COINIT_APARTMENTTHREADED); }).join();
    std::thread([] { Use("second", COINIT_APARTMENTTHREADED); }).join();
    std::thread([] { Use("free", COINIT_MULTITHREADED); }).join();
}
