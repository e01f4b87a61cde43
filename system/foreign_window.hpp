#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace kova::system {

/// A window of this thread's that another maker's code has made, by its number: how large it is within, in
/// the screen's own pixels, and word of what becomes of it. Where windows of several makers do not share a
/// process there is none.
class ForeignWindow {
public:
    struct Listener {
        std::function<void(int width, int height)> resized;
        /// It is about to go; what lies in it has to be out of it when this returns. The last that is heard.
        std::function<void()> ends;
    };

    /// Null where there is no window of that number in this thread.
    static std::unique_ptr<ForeignWindow> Of(std::int64_t number, Listener listener);

    virtual ~ForeignWindow() = default;
    virtual int Width() const = 0;
    virtual int Height() const = 0;

    /// The window of that number fills this one from now on: it gets the keyboard whenever this one does, and
    /// every key, where the program hands them out among its controls.
    virtual void Hold(std::int64_t inner) = 0;
    /// Keeps the user out of the whole window of the program's that this one is a part of, or lets him back.
    virtual void Block(bool blocks) = 0;
};

} // namespace kova::system
