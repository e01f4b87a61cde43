#include "component/windows/class_object.hpp"

#include "agenda/contracts/support/component_library.hpp"
#include "component/windows/failures.hpp"
#include "component/windows/objects.hpp"
#include "component/windows/own_host.hpp"
#include "system/windows/wide_text.hpp"

#include <atomic>

namespace kova::component {

namespace {

std::atomic<long> held = 0;

class ClassObject : public IClassFactory {
public:
    explicit ClassObject(ClassFactory& factory) : factory_(factory) { ++held; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** found) override
    {
        if (!found)
            return E_POINTER;
        *found = nullptr;
        if (!IsEqualIID(interfaceId, IID_IUnknown) && !IsEqualIID(interfaceId, IID_IClassFactory))
            return E_NOINTERFACE;
        AddRef();
        *found = static_cast<IClassFactory*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override
    {
        return static_cast<ULONG>(::InterlockedIncrement(&references_));
    }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const auto left = static_cast<ULONG>(::InterlockedDecrement(&references_));
        if (left == 0)
            delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID interfaceId, void** made) override
    {
        if (!made)
            return E_POINTER;
        *made = nullptr;
        if (outer)
            return CLASS_E_NOAGGREGATION;
        try {
            RequireHost();
            ComponentRef object;
            const ServerStatus status = factory_.CreateInstance(nullptr, &object);
            return object ? DispatchOf(object)->QueryInterface(interfaceId, made)
                          : static_cast<HRESULT>(status);
        } catch (...) {
            return RaiseLast(CaughtFailure());
        }
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override
    {
        factory_.LockServer(lock);
        return S_OK;
    }

private:
    virtual ~ClassObject() { --held; }

    ClassFactory& factory_;
    LONG references_ = 0;
};

std::string TextOfId(const CLSID& classId)
{
    wchar_t text[39];
    ::StringFromGUID2(classId, text, 39);
    return system::Narrow(text);
}

} // namespace

Held<IClassFactory> ClassObjectOf(const CLSID& classId)
{
    ClassFactory* factory = nullptr;
    ServedLibrary::Get().GetClassObject(TextOfId(classId).c_str(), &factory);
    return Held<IClassFactory>(factory ? new ClassObject(*factory) : nullptr);
}

long ClassObjects() { return held; }

} // namespace kova::component
