// A shell in small, written against the system's own interfaces alone: a window with a field of its own and a
// pane, a loop that hands keys out among its controls. It creates the registered component by name, opens the
// list in the pane, works with it by keys, closes its window and lets the library go. Tells what it sees;
// what stood in the windows lies in FOLDER as pictures. Without a folder it is a person who works with it.
//   foreign_shell [FOLDER]

#include "tests/unit/component/platform/late_bound.hpp"
#include "tests/unit/component/platform/window_picture.hpp"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr UINT_PTR Clock = 1;
constexpr int FieldHeight = 28;
/// Of the list and of a form; letters, which are smoothed, alone have more than an empty window.
constexpr size_t ColoursOfTexts = 60;

struct Step {
    const char* what;
    /// It has come to that: what the user does next is done.
    std::function<bool()> isReached;
    std::function<void()> act;
};

HWND shell = nullptr;
HWND field = nullptr;
HWND pane = nullptr;
std::vector<Step> steps;
size_t at = 0;
int ticksAtStep = 0;
int status = 0;
std::string folder;
WindowPicture former;
WindowPicture settled;

void Say(const char* what, bool isSo)
{
    std::printf("%s: %s\n", what, isSo ? "yes" : "no");
    std::fflush(stdout);
    if (!isSo)
        status = 1;
}

bool Fills(HWND inner, HWND outer)
{
    RECT has = {};
    RECT room = {};
    ::GetWindowRect(inner, &has);
    ::GetClientRect(outer, &room);
    ::MapWindowPoints(outer, nullptr, reinterpret_cast<POINT*>(&room), 2);
    return inner && ::EqualRect(&has, &room);
}

HWND List() { return ::GetWindow(pane, GW_CHILD); }

/// The window of a form over the shell's; null where there is none.
HWND Form()
{
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            const bool isForm = window != shell && ::IsWindowVisible(window)
                && ::GetWindowTextLengthW(window) > 0 && ::GetForegroundWindow() == window;
            if (isForm)
                *reinterpret_cast<HWND*>(result) = window;
            return !isForm;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

/// Twice in a row the same, and written upon.
bool IsSettled(HWND window)
{
    const WindowPicture now = WindowPicture::Of(window);
    const bool isSame = now == former;
    former = now;
    return isSame && now.Colours() > ColoursOfTexts;
}

/// Settled, and not what it was before.
bool HasChanged() { return IsSettled(pane) && former != settled; }

void Keep(const char* name)
{
    settled = former;
    if (!settled.Save(folder + name))
        Say(name, false);
}

void Press(WORD key)
{
    INPUT inputs[2] = {};
    for (INPUT& input : inputs) {
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = key >= VK_PRIOR && key <= VK_DELETE ? KEYEVENTF_EXTENDEDKEY : 0;
    }
    inputs[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    ::SendInput(2, inputs, sizeof *inputs);
}

void TellForm()
{
    wchar_t title[100] = {};
    ::GetWindowTextW(Form(), title, 100);
    std::printf("form: %ls\n", title);
    Say("shut meanwhile", !::IsWindowEnabled(shell));
    Keep("form.bmp");
    Press(VK_ESCAPE);
}

bool IsBack() { return !Form() && ::IsWindowEnabled(shell) && ::GetFocus() == List() && IsSettled(pane); }

void MakeSteps()
{
    steps = {
        {"the list is drawn", [] { return IsSettled(pane); },
         [] {
             Say("fills the pane", Fills(List(), pane));
             Keep("list.bmp");
             ::SetWindowPos(shell, nullptr, 0, 0, 1240, 660, SWP_NOMOVE | SWP_NOZORDER);
         }},
        {"it follows the window", [] { return Fills(List(), pane) && HasChanged(); },
         [] {
             Keep("larger.bmp");
             ::SetFocus(pane);
         }},
        {"it has the keyboard", [] { return ::GetFocus() == List() && IsSettled(pane); },
         [] {
             Keep("focus.bmp");
             Press(VK_DOWN);
         }},
        {"an arrow moves in it", HasChanged,
         [] {
             Keep("arrow.bmp");
             Press(VK_TAB);
         }},
        {"a tab moves in it, too", [] { return ::GetFocus() == List() && HasChanged(); },
         [] {
             Keep("tab.bmp");
             Press(VK_F7);
             Press(VK_RETURN);
         }},
        {"Enter opens a record", [] { return Form() && IsSettled(Form()); }, TellForm},
        {"Esc closes it", IsBack,
         [] {
             Keep("back.bmp");
             ::PostMessageW(shell, WM_CLOSE, 0, 0);
         }},
    };
}

/// One look in a tick: time passes in whoever's loop runs.
void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD)
{
    constexpr int patience = 300;
    if (at >= steps.size())
        return;
    if (steps[at].isReached()) {
        Say(steps[at].what, true);
        ticksAtStep = 0;
        steps[at++].act();
    } else if (++ticksAtStep > patience) {
        Say(steps[at].what, false);
        former.Save(folder + "gave-up.bmp");
        std::exit(status);
    }
}

LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM word, LPARAM data)
{
    if (message == WM_SIZE && pane) {
        ::MoveWindow(field, 0, 0, LOWORD(data), FieldHeight, TRUE);
        ::MoveWindow(pane, 0, FieldHeight, LOWORD(data), HIWORD(data) - FieldHeight, TRUE);
    }
    if (message == WM_DESTROY)
        ::PostQuitMessage(0);
    return ::DefWindowProcW(window, message, word, data);
}

HWND MakeChild(const wchar_t* kind, const wchar_t* text, DWORD style)
{
    return ::CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 10, 10, shell, nullptr,
                             nullptr, nullptr);
}

void MakeShell()
{
    WNDCLASSW kind = {};
    kind.lpfnWndProc = Answer;
    kind.lpszClassName = L"Casca";
    kind.hCursor = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    ::RegisterClassW(&kind);
    shell = ::CreateWindowExW(0, kind.lpszClassName, L"Casca de teste", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                              20, 20, 1100, 600, nullptr, nullptr, nullptr, nullptr);
    field = MakeChild(L"EDIT", L"Campo da casca", WS_TABSTOP | WS_BORDER);
    pane = MakeChild(L"STATIC", L"", WS_TABSTOP | WS_CLIPCHILDREN);
    ::ShowWindow(shell, SW_SHOW);
    RECT inner = {};
    ::GetClientRect(shell, &inner);
    ::SendMessageW(shell, WM_SIZE, 0, MAKELPARAM(inner.right, inner.bottom));
}

void RunLoop()
{
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (::IsWindow(shell) && ::IsDialogMessageW(shell, &message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

LONG NumberOf(HWND window) { return static_cast<LONG>(reinterpret_cast<INT_PTR>(window)); }

/// Until the user, or the last step, has closed the window.
void UseAgenda(ShellUser& user)
{
    IDispatch* agenda = CreateLateBound(L"KOVA_A_Agenda.clsAgenda");
    Say("created", agenda != nullptr);
    if (!agenda)
        return;
    VARIANT name;
    name.vt = VT_BSTR;
    name.bstrVal = ::SysAllocString(L"Casca de teste");
    Say("name", CallLateBound(*agenda, L"NomeDaAplicacao", DISPATCH_PROPERTYPUT, {name}) == S_OK);
    ::SysFreeString(name.bstrVal);
    Say("user", CallLateBound(*agenda, L"DadosDoUsuario", DISPATCH_PROPERTYPUTREF, {Object(user)}) == S_OK);
    Say("AbrirLista",
        CallLateBound(*agenda, L"AbrirLista", DISPATCH_METHOD,
                      {Number(NumberOf(shell)), Number(NumberOf(pane))})
            == S_OK);
    RunLoop();
    agenda->Release();
}

} // namespace

int main(int count, char** words)
{
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    MakeShell();
    if (count == 2) {
        folder = std::string(words[1]) + "/";
        MakeSteps();
        ::SetTimer(nullptr, Clock, 100, Tick);
    }
    ShellUser user(L"Ana", 7);
    UseAgenda(user);
    if (!steps.empty())
        Say("all was done", at == steps.size());
    ::CoFreeUnusedLibrariesEx(0, 0);
    Say("unloaded", !::GetModuleHandleW(L"KOVA_A_Agenda.dll"));
    Say("nobody has the user any more", user.References() == 0);
    ::CoUninitialize();
    return status;
}
