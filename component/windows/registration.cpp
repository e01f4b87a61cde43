#include "component/windows/registration.hpp"

#include "system/windows/wide_text.hpp"

#include <string>

namespace kova::component {

namespace {

constexpr const wchar_t* ClassesKey = L"Software\\Classes";

/// An open key of the registry, closed at the end of its scope.
class Key {
public:
    Key() = default;
    ~Key()
    {
        if (key_)
            ::RegCloseKey(key_);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    LSTATUS Make(HKEY parent, const std::wstring& path, REGSAM access)
    {
        return ::RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, access, nullptr, &key_, nullptr);
    }
    HKEY Get() const { return key_; }

private:
    HKEY key_ = nullptr;
};

/// Writes a text of a key below the parent; a null name is the key's own.
LSTATUS Write(HKEY parent, const std::wstring& path, const wchar_t* name, const std::wstring& text)
{
    Key key;
    if (const LSTATUS status = key.Make(parent, path, KEY_SET_VALUE); status != ERROR_SUCCESS)
        return status;
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return ::RegSetValueExW(key.Get(), name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), size);
}

LSTATUS WriteClass(HKEY classesKey, const ClassRegistration& registration)
{
    const std::wstring name = system::Wide(registration.className);
    const std::wstring classId = system::Wide(registration.classId);
    const std::wstring identified = L"CLSID\\" + classId;
    const struct {
        std::wstring path;
        const wchar_t* name;
        std::wstring text;
    } lines[] = {
        {name, nullptr, name},
        {name + L"\\CLSID", nullptr, classId},
        {identified, nullptr, name},
        {identified + L"\\ProgID", nullptr, name},
        {identified + L"\\InprocServer32", nullptr, system::Wide(registration.libraryPath)},
        {identified + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
    };
    for (const auto& line : lines)
        if (const LSTATUS status = Write(classesKey, line.path, line.name, line.text);
            status != ERROR_SUCCESS)
            return status;
    return ERROR_SUCCESS;
}

LSTATUS Remove(HKEY parent, const std::wstring& path)
{
    const LSTATUS status = ::RegDeleteTreeW(parent, path.c_str());
    return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

/// Does something with the classes of all users, or of this one.
template <class Act> LSTATUS With(HKEY root, Act act, const std::vector<ClassRegistration>& classes)
{
    Key key;
    const LSTATUS status = key.Make(root, ClassesKey, KEY_READ | KEY_WRITE);
    return status == ERROR_SUCCESS ? act(key.Get(), classes) : status;
}

} // namespace

LSTATUS RegisterClasses(HKEY classesKey, const std::vector<ClassRegistration>& classes)
{
    for (const ClassRegistration& registration : classes)
        if (const LSTATUS status = WriteClass(classesKey, registration); status != ERROR_SUCCESS) {
            UnregisterClasses(classesKey, classes);
            return status;
        }
    return ERROR_SUCCESS;
}

LSTATUS UnregisterClasses(HKEY classesKey, const std::vector<ClassRegistration>& classes)
{
    LSTATUS worst = ERROR_SUCCESS;
    for (const ClassRegistration& registration : classes)
        for (const std::wstring& path :
             {system::Wide(registration.className), L"CLSID\\" + system::Wide(registration.classId)})
            if (const LSTATUS status = Remove(classesKey, path); status != ERROR_SUCCESS)
                worst = status;
    return worst;
}

bool ForAllElseForOne(const std::function<LSTATUS(HKEY root)>& write)
{
    const LSTATUS status = write(HKEY_LOCAL_MACHINE);
    return (status == ERROR_ACCESS_DENIED ? write(HKEY_CURRENT_USER) : status) == ERROR_SUCCESS;
}

bool RegisterForSystem(const std::vector<ClassRegistration>& classes)
{
    // What this user has registered for himself would go before what all have.
    return With(HKEY_CURRENT_USER, UnregisterClasses, classes) == ERROR_SUCCESS
        && ForAllElseForOne([&](HKEY root) { return With(root, RegisterClasses, classes); });
}

bool UnregisterForSystem(const std::vector<ClassRegistration>& classes)
{
    const LSTATUS ofAll = With(HKEY_LOCAL_MACHINE, UnregisterClasses, classes);
    const LSTATUS own = With(HKEY_CURRENT_USER, UnregisterClasses, classes);
    // Who may not write for all has registered nothing there.
    return own == ERROR_SUCCESS && (ofAll == ERROR_SUCCESS || ofAll == ERROR_ACCESS_DENIED);
}

bool RegisterForUser(const std::vector<ClassRegistration>& classes)
{
    return With(HKEY_CURRENT_USER, RegisterClasses, classes) == ERROR_SUCCESS;
}

bool UnregisterForUser(const std::vector<ClassRegistration>& classes)
{
    return With(HKEY_CURRENT_USER, UnregisterClasses, classes) == ERROR_SUCCESS;
}

} // namespace kova::component
