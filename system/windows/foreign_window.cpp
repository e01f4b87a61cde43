#include "system/foreign_window.hpp"

#include <windows.h>

#include <commctrl.h>

namespace kova::system {

namespace {

HWND WindowOf(std::int64_t number) { return reinterpret_cast<HWND>(static_cast<std::intptr_t>(number)); }

class WatchedWindow final : public ForeignWindow {
public:
    WatchedWindow(HWND window, Listener listener) : window_(window), listener_(std::move(listener))
    {
        ::SetWindowSubclass(window_, Hear, reinterpret_cast<UINT_PTR>(this), 0);
    }
    ~WatchedWindow() override
    {
        Block(false);
        LetGo();
    }

    int Width() const override { return Inner().right; }
    int Height() const override { return Inner().bottom; }

    void Hold(std::int64_t inner) override
    {
        LetGoOfHeld();
        held_ = WindowOf(inner);
        ::SetWindowSubclass(held_, AnswerForHeld, reinterpret_cast<UINT_PTR>(this), 0);
    }

    void Block(bool blocks) override
    {
        // One that the program has shut itself stays so.
        const HWND top = ::GetAncestor(window_, GA_ROOT);
        if (blocks)
            blocked_ = ::IsWindowEnabled(top) ? top : nullptr;
        if (blocked_)
            ::EnableWindow(blocked_, blocks ? FALSE : TRUE);
        if (!blocks)
            blocked_ = nullptr;
    }

private:
    RECT Inner() const
    {
        RECT inner = {};
        ::GetClientRect(window_, &inner);
        return inner;
    }

    void LetGo()
    {
        LetGoOfHeld();
        ::RemoveWindowSubclass(window_, Hear, reinterpret_cast<UINT_PTR>(this));
    }

    void LetGoOfHeld()
    {
        if (held_)
            ::RemoveWindowSubclass(held_, AnswerForHeld, reinterpret_cast<UINT_PTR>(this));
        held_ = nullptr;
    }

    static LRESULT CALLBACK AnswerForHeld(HWND window, UINT message, WPARAM word, LPARAM data, UINT_PTR id,
                                          DWORD_PTR)
    {
        if (message == WM_GETDLGCODE)
            return DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTTAB | DLGC_WANTCHARS;
        if (message == WM_NCDESTROY)
            reinterpret_cast<WatchedWindow*>(id)->LetGoOfHeld();
        return ::DefSubclassProc(window, message, word, data);
    }

    static LRESULT CALLBACK Hear(HWND window, UINT message, WPARAM word, LPARAM data, UINT_PTR id, DWORD_PTR)
    {
        auto* self = reinterpret_cast<WatchedWindow*>(id);
        if (message == WM_SIZE && word != SIZE_MINIMIZED)
            self->listener_.resized(LOWORD(data), HIWORD(data));
        if (message == WM_DESTROY) {
            self->LetGo();
            // The listener may do away with this object.
            const auto ends = self->listener_.ends;
            ends();
        }
        if (message == WM_SETFOCUS && self->held_) {
            ::SetFocus(self->held_);
            return 0;
        }
        return ::DefSubclassProc(window, message, word, data);
    }

    HWND window_;
    HWND held_ = nullptr;
    HWND blocked_ = nullptr;
    Listener listener_;
};

} // namespace

std::unique_ptr<ForeignWindow> ForeignWindow::Of(std::int64_t number, Listener listener)
{
    const HWND window = WindowOf(number);
    const DWORD thread = ::GetWindowThreadProcessId(window, nullptr);
    if (!::IsWindow(window) || thread != ::GetCurrentThreadId())
        return nullptr;
    return std::make_unique<WatchedWindow>(window, std::move(listener));
}

} // namespace kova::system
