#pragma once

#include "agenda/contracts/business_services.hpp"

#include <string>
#include <string_view>

/// The entry points of a component library, and what passes through them.
///
/// Every library of the family (this module, business components, presentation components) is a shared
/// object that exports these five C functions and nothing else:
///
///   int32_t KovaAttachHost(kova::ServerHost* host);
///       Hands over the host before anything else is called. A null pointer detaches. Answers Ok, or
///       Refused while objects live or what they have put on the screen, unless that host is attached
///       already.
///   int32_t DllGetClassObject(const char* classId, kova::ClassFactory** factory);
///       Called KovaClasses on Windows, where the system has a function of the first name. The factory of the
///       class with that identifier. `*factory` is null on any failure: ClassNotAvailable for an unknown
///       identifier, InvalidArgument for a null pointer. The factory belongs to the library.
///   int32_t DllCanUnloadNow();
///       Ok where no object of the library lives, nothing of it is on the screen and nobody locks it, else
///       Busy.
///   int32_t DllRegisterServer();
///       Writes the library's classes through ServerHost::Register. Ok, or RegistrationFailed.
///   int32_t DllUnregisterServer();
///       Removes them. Ok also where they were not there, or RegistrationFailed.
///
/// On Windows the library is one of the system's components too: DllGetClassObject is there with the system's
/// own signature, and without a host the last two write into the system's registry. component/ has all that.
namespace kova {

class Platform;

/// Results of the entry points, with the values that hosts of such servers know.
enum class ServerStatus : std::int32_t {
    Ok = 0,
    Busy = 1,
    InvalidArgument = static_cast<std::int32_t>(0x80070057),
    NoAggregation = static_cast<std::int32_t>(0x80040110),
    ClassNotAvailable = static_cast<std::int32_t>(0x80040111),
    RegistrationFailed = static_cast<std::int32_t>(0x80040201),
    Refused = static_cast<std::int32_t>(0x8000FFFF),
};

/// One line of the registry: class name, its identifier "{8-4-4-4-12}", the library's path.
struct ClassRegistration {
    std::string className;
    std::string classId;
    std::string libraryPath;
};

/// What a host hands to every component library.
class ServerHost {
public:
    virtual ~ServerHost() = default;

    /// Writes or replaces a class in the registry file. The library's path is the one the host loaded
    /// it from, so a library passes it empty. False where the file cannot be written.
    virtual bool Register(const ClassRegistration& registration) = 0;
    /// Removes a class from the registry file; true also where it is not there.
    virtual bool Unregister(std::string_view className) = 0;

    /// What the module and the components run on; valid as long as the host is attached.
    virtual Platform& GetPlatform() = 0;
    /// Where business components keep their data: the path of a database file or a connection text.
    virtual std::string DataSource() const = 0;
};

class ClassFactory {
public:
    virtual ~ClassFactory() = default;
    /// `outer` must be null (NoAggregation otherwise). `*object` is null on any failure.
    virtual ServerStatus CreateInstance(Object* outer, ComponentRef* object) = 0;
    /// Keeps the library loaded without an object.
    virtual void LockServer(bool lock) = 0;
};

} // namespace kova

extern "C" {
using KovaAttachHostFunction = std::int32_t (*)(kova::ServerHost*);
using DllGetClassObjectFunction = std::int32_t (*)(const char*, kova::ClassFactory**);
using DllCanUnloadNowFunction = std::int32_t (*)();
using DllRegisterServerFunction = std::int32_t (*)();
using DllUnregisterServerFunction = std::int32_t (*)();
}
