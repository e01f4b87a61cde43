#include "component/windows/objects.hpp"

#include "component/windows/dispatch.hpp"
#include "component/windows/foreign_component.hpp"
#include "component/windows/foreign_record_set.hpp"

namespace kova::component {

Held<IDispatch> DispatchOf(const ObjectRef& object)
{
    if (!object)
        return {};
    if (const auto* foreign = dynamic_cast<const Foreign*>(object.get()))
        return foreign->Dispatched();
    return Dispatch::Of(object);
}

ObjectRef ObjectOf(IUnknown* object)
{
    if (!object)
        return nullptr;
    const Held<IUnknown> held(object);
    if (const auto own = held.As<OwnObject>(OwnObjectId))
        return own->Own();
    const auto dispatch = held.As<IDispatch>(IID_IDispatch);
    if (!dispatch)
        throw Failure(FailureNumber::TypeMismatch);
    return ForeignObjectOf(dispatch);
}

long SeenObjects() { return Dispatch::Count(); }

long ForeignObjects() { return Foreign::Count(); }

} // namespace kova::component
