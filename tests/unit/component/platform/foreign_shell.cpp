// A shell in small, written against the system's own interfaces alone: creates the registered component by
// name, opens the list in a window of its own, draws the window into a file, closes it and lets the library
// go.
//   foreign_shell FILE.bmp

#include <windows.h>

#include <cstdio>
#include <initializer_list>
#include <string>
#include <vector>

namespace {

constexpr int Width = 1024;
constexpr int Height = 700;

VARIANT Number(LONG number)
{
    VARIANT variant;
    variant.vt = VT_I4;
    variant.lVal = number;
    return variant;
}

/// Calls a member with arguments in their order; prints its code.
void Invoke(IDispatch& object, const wchar_t* name, WORD flags, std::initializer_list<VARIANT> arguments)
{
    auto* asked = const_cast<wchar_t*>(name);
    DISPID id = 0;
    HRESULT status = object.GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
    if (SUCCEEDED(status)) {
        std::vector<VARIANT> passed(std::rbegin(arguments), std::rend(arguments));
        DISPID put = DISPID_PROPERTYPUT;
        const bool isPut = flags != DISPATCH_METHOD;
        DISPPARAMS parameters = {passed.data(), isPut ? &put : nullptr, static_cast<UINT>(passed.size()),
                                 isPut ? 1U : 0U};
        status =
            object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, nullptr, nullptr, nullptr);
    }
    std::printf("%ls %08lx\n", name, static_cast<unsigned long>(status));
}

/// The program's loop, until nothing has come for a second.
void RunLoop()
{
    constexpr DWORD quiet = 1000;
    MSG message;
    while (::MsgWaitForMultipleObjects(0, nullptr, FALSE, quiet, QS_ALLINPUT) != WAIT_TIMEOUT)
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
}

bool Draw(HWND window, const char* file)
{
    HDC screen = ::GetDC(window);
    HDC memory = ::CreateCompatibleDC(screen);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, Width, Height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, Width, Height, screen, 0, 0, SRCCOPY);
    ::GdiFlush();
    const DWORD size = Width * Height * 4;
    BITMAPFILEHEADER header = {0x4D42, static_cast<DWORD>(sizeof header + sizeof info.bmiHeader + size), 0, 0,
                               static_cast<DWORD>(sizeof header + sizeof info.bmiHeader)};
    bool done = false;
    if (std::FILE* out = std::fopen(file, "wb")) {
        done = std::fwrite(&header, sizeof header, 1, out) == 1
            && std::fwrite(&info.bmiHeader, sizeof info.bmiHeader, 1, out) == 1
            && std::fwrite(bits, size, 1, out) == 1;
        done = std::fclose(out) == 0 && done;
    }
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(window, screen);
    return done;
}

void UseAgenda(HWND window, const char* file)
{
    CLSID classId;
    IDispatch* agenda = nullptr;
    if (FAILED(::CLSIDFromProgID(L"KOVA_A_Agenda.clsAgenda", &classId))
        || FAILED(::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                     reinterpret_cast<void**>(&agenda)))) {
        std::printf("not created\n");
        return;
    }
    VARIANT name;
    name.vt = VT_BSTR;
    name.bstrVal = ::SysAllocString(L"Casca de teste");
    Invoke(*agenda, L"NomeDaAplicacao", DISPATCH_PROPERTYPUT, {name});
    ::SysFreeString(name.bstrVal);
    const auto handle = static_cast<LONG>(reinterpret_cast<INT_PTR>(window));
    Invoke(*agenda, L"AbrirLista", DISPATCH_METHOD, {Number(handle), Number(handle)});
    RunLoop();
    std::printf("windows within: %s\n", ::GetWindow(window, GW_CHILD) ? "yes" : "no");
    std::printf("drawn: %s\n", Draw(window, file) ? "yes" : "no");
    ::SetWindowPos(window, nullptr, 0, 0, Width - 200, Height - 100, SWP_NOMOVE | SWP_NOZORDER);
    RunLoop();
    agenda->Release();
}

} // namespace

int main(int count, char** words)
{
    if (count != 2)
        return 2;
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    HWND window = ::CreateWindowExW(0, L"STATIC", L"Casca de teste", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
                                    0, 0, Width, Height, nullptr, nullptr, nullptr, nullptr);
    UseAgenda(window, words[1]);
    ::DestroyWindow(window);
    RunLoop();
    ::CoFreeUnusedLibrariesEx(0, 0);
    std::printf("%s\n", ::GetModuleHandleW(L"KOVA_A_Agenda.dll") ? "loaded" : "unloaded");
    ::CoUninitialize();
    return 0;
}
