#pragma once

#include "agenda/contracts/component_server.hpp"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

/// Put before each entry point: exported under its plain name.
#define KOVA_ENTRY_POINT extern "C" __attribute__((visibility("default")))

namespace kova {

/// What a library has of its own beside its classes; either may be missing.
struct LibraryHooks {
    /// Whether the library is needed although no object of it lives.
    std::function<bool()> isInUse = nullptr;
    /// Told of each host that is attached, and of null where none is any more.
    std::function<void(ServerHost*)> hostChanged = nullptr;
};

/// What every component library has: the host that is attached, its classes, and how many of their
/// objects live. The library's entry points forward to the members of one such object, which lives as
/// long as the library is loaded.
class ComponentLibrary {
public:
    /// One class of the library.
    class Entry {
    public:
        /// `create(ServerHost&)` makes one object for the attached host and hands it over as a unique_ptr
        /// to its class. A Failure that it throws reaches the caller of CreateInstance; a null pointer
        /// refuses. The class identifier is written "{8-4-4-4-12}".
        template <class Create>
        requires std::is_invocable_v<Create, ServerHost&> Entry(std::string className, std::string classId,
                                                                Create create)
            : className_(std::move(className)),
              classId_(std::move(classId)),
              create_(
                  [create](ServerHost& host, std::atomic<long>& live) { return Counted(create(host), live); })
        {
        }

    private:
        friend class ComponentLibrary;

        /// The object counts as live until its destructor has run, however it is referred to.
        template <class T> static ComponentRef Counted(std::unique_ptr<T> object, std::atomic<long>& live)
        {
            if (!object)
                return nullptr;
            ++live;
            return std::shared_ptr<T>(object.release(), [&live](T* last) {
                delete last;
                --live;
            });
        }

        std::string className_;
        std::string classId_;
        std::function<ComponentRef(ServerHost&, std::atomic<long>&)> create_;
    };

    explicit ComponentLibrary(std::vector<Entry> classes, LibraryHooks hooks = {});
    ~ComponentLibrary();
    ComponentLibrary(const ComponentLibrary&) = delete;
    ComponentLibrary& operator=(const ComponentLibrary&) = delete;

    /// The entry points, as component_server.hpp tells them. Attaching the host that is attached already
    /// is Ok also while objects live.
    std::int32_t AttachHost(ServerHost* host);
    std::int32_t GetClassObject(const char* classId, ClassFactory** factory);
    std::int32_t CanUnloadNow() const;
    /// RegistrationFailed also without a host. The first class that cannot be written ends it.
    std::int32_t RegisterServer();
    std::int32_t UnregisterServer();

    /// Names and identifiers, without a path.
    std::vector<ClassRegistration> Classes() const;

    /// Keeps the library loaded while any copy of it lives, as an object does: for what the library has put
    /// on the screen and its object does not own.
    std::shared_ptr<void> Hold();

    /// Null where none is attached.
    ServerHost* Host() const { return host_; }
    /// Copies of Hold count too.
    long LiveObjects() const { return live_; }

private:
    class Factory;

    bool IsInUse() const { return live_ > 0 || (hooks_.isInUse && hooks_.isInUse()); }

    std::vector<std::unique_ptr<Factory>> factories_;
    LibraryHooks hooks_;
    ServerHost* host_ = nullptr;
    std::atomic<long> live_ = 0;
    long locks_ = 0;
};

/// Tells the entry points which library is theirs. Each component library has one such object, made while it
/// is loaded; the function is asked when the first entry point is called.
class ServedLibrary {
public:
    using Function = ComponentLibrary& (*)();

    explicit ServedLibrary(Function library) { library_ = library; }

    static ComponentLibrary& Get() { return library_(); }

private:
    static Function library_;
};

} // namespace kova
