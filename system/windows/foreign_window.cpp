#include "system/foreign_window.hpp"

#include <windows.h>

#include <commctrl.h>

namespace kova::system {

namespace {

class WatchedWindow : public ForeignWindow {
public:
    WatchedWindow(HWND window, Listener listener) : window_(window), listener_(std::move(listener))
    {
        ::SetWindowSubclass(window_, Hear, reinterpret_cast<UINT_PTR>(this), 0);
    }
    ~WatchedWindow() override { LetGo(); }

    int Width() const override { return Inner().right; }
    int Height() const override { return Inner().bottom; }

private:
    RECT Inner() const
    {
        RECT inner = {};
        ::GetClientRect(window_, &inner);
        return inner;
    }

    void LetGo() { ::RemoveWindowSubclass(window_, Hear, reinterpret_cast<UINT_PTR>(this)); }

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
        return ::DefSubclassProc(window, message, word, data);
    }

    HWND window_;
    Listener listener_;
};

} // namespace

std::unique_ptr<ForeignWindow> ForeignWindow::Of(std::int64_t number, Listener listener)
{
    const auto window = reinterpret_cast<HWND>(static_cast<std::intptr_t>(number));
    const DWORD thread = ::GetWindowThreadProcessId(window, nullptr);
    if (!::IsWindow(window) || thread != ::GetCurrentThreadId())
        return nullptr;
    return std::make_unique<WatchedWindow>(window, std::move(listener));
}

} // namespace kova::system
