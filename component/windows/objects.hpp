#pragma once

#include "agenda/contracts/value.hpp"
#include "component/windows/held.hpp"

namespace kova::component {

/// What other programs see of an object of ours: always the same for the same object, as long as anybody
/// sees it. An object of theirs is seen as what it is. Null of null.
Held<IDispatch> DispatchOf(const ObjectRef& object);

/// What we see of an object of other programs: what it stands for where it is one of ours, else a component,
/// or a record set where it has what one has; always the same for the same object. Null of null. Fails with
/// 13 where nothing of it is found by name.
ObjectRef ObjectOf(IUnknown* object);

/// How many of our objects other programs see through this library, and how many of theirs it sees.
long SeenObjects();
long ForeignObjects();

/// The system's own name for the interface that lists members; its libraries lack it.
inline constexpr IID ListingId = {
    0xa6ef9860, 0xc720, 0x11d0, {0x93, 0x37, 0x00, 0xa0, 0xc9, 0x0d, 0xca, 0xa9}};

/// By what an object of ours is known from others, whichever library of the family has made it. Libraries
/// that lie side by side are made together, so that they mean the same by an object.
class OwnObject : public IUnknown {
public:
    virtual ObjectRef Own() = 0;
};
inline constexpr IID OwnObjectId = {
    0x9b5d3c60, 0x1f3e, 0x4a4e, {0x8c, 0x57, 0x6e, 0x2b, 0x10, 0x7d, 0xa9, 0x44}};

} // namespace kova::component
