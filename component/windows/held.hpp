#pragma once

#include <windows.h>

#include <utility>

namespace kova::component {

/// A counted reference to an object of the system's kind.
template <class T> class Held {
public:
    Held() = default;
    explicit Held(T* object) : object_(object)
    {
        if (object_)
            object_->AddRef();
    }
    Held(const Held& other) : Held(other.object_) { }
    Held(Held&& other) noexcept : object_(std::exchange(other.object_, nullptr)) { }
    Held& operator=(Held other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Held()
    {
        if (object_)
            object_->Release();
    }

    /// A reference that was counted already.
    static Held Counted(T* object)
    {
        Held held;
        held.object_ = object;
        return held;
    }

    /// The same object by another of its interfaces; null where it has none so called.
    template <class Other> Held<Other> As(REFIID interfaceId) const
    {
        void* found = nullptr;
        if (object_)
            object_->QueryInterface(interfaceId, &found);
        return Held<Other>::Counted(static_cast<Other*>(found));
    }

    T* Get() const { return object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }
    /// Hands the count over to the caller.
    T* Release() { return std::exchange(object_, nullptr); }

private:
    T* object_ = nullptr;
};

} // namespace kova::component
