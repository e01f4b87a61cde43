#include "component/windows/arrays.hpp"

#include "component/windows/variants.hpp"

#include <algorithm>

namespace kova::component {

namespace {

/// More than any screen or import has; an index far from 0 would be as many elements.
constexpr LONGLONG MostElements = 1 << 24;

void Require(HRESULT status)
{
    if (status == E_OUTOFMEMORY)
        throw Failure(FailureNumber::OutOfMemory);
    if (FAILED(status))
        throw Failure(FailureNumber::TypeMismatch);
}

/// The bounds of both dimensions.
struct Bounds {
    LONG lower[2] = {};
    LONG upper[2] = {};
};

Bounds BoundsOf(SAFEARRAY* array)
{
    if (!array || ::SafeArrayGetDim(array) != 2)
        throw Failure(FailureNumber::TypeMismatch);
    Bounds bounds;
    for (UINT dimension = 0; dimension < 2; ++dimension) {
        Require(::SafeArrayGetLBound(array, dimension + 1, &bounds.lower[dimension]));
        Require(::SafeArrayGetUBound(array, dimension + 1, &bounds.upper[dimension]));
    }
    if (std::min(bounds.lower[0], bounds.lower[1]) < 0)
        throw Failure(FailureNumber::IndexOutOfRange);
    if ((LONGLONG{bounds.upper[0]} + 1) * (LONGLONG{bounds.upper[1]} + 1) > MostElements)
        throw Failure(FailureNumber::OutOfMemory);
    return bounds;
}

VARTYPE TypeOf(SAFEARRAY* array)
{
    VARTYPE type = VT_EMPTY;
    Require(::SafeArrayGetVartype(array, &type));
    return type;
}

/// Calls `use` with the place of each element, while the array stays where it is.
template <class Use> void ForEachElement(SAFEARRAY* array, const Bounds& bounds, Use use)
{
    void* data = nullptr;
    Require(::SafeArrayAccessData(array, &data));
    const struct Lock {
        SAFEARRAY* array;
        ~Lock() { ::SafeArrayUnaccessData(array); }
    } lock{array};
    LONG at[2];
    for (at[0] = bounds.lower[0]; at[0] <= bounds.upper[0]; ++at[0])
        for (at[1] = bounds.lower[1]; at[1] <= bounds.upper[1]; ++at[1]) {
            void* element = nullptr;
            Require(::SafeArrayPtrOfIndex(array, at, &element));
            use(at[0], at[1], element);
        }
}

bool HasSameBounds(const Array& array, const Bounds& bounds)
{
    return array.UpperBound(1) == bounds.upper[0] && array.UpperBound(2) == bounds.upper[1];
}

} // namespace

ArrayRef ArrayOf(SAFEARRAY* array)
{
    const Bounds bounds = BoundsOf(array);
    auto made = std::make_shared<Array>(bounds.upper[0], bounds.upper[1]);
    VARIANT reference;
    ::VariantInit(&reference);
    reference.vt = static_cast<VARTYPE>(TypeOf(array) | VT_BYREF);
    ForEachElement(array, bounds, [&](LONG first, LONG second, void* element) {
        reference.byref = element;
        made->At(first, second) = ValueOf(reference);
    });
    return made;
}

SAFEARRAY* SafeArrayOf(const Array& array)
{
    SAFEARRAYBOUND bounds[2] = {{static_cast<ULONG>(array.UpperBound(1) + 1), 0},
                                {static_cast<ULONG>(array.UpperBound(2) + 1), 0}};
    SAFEARRAY* made = ::SafeArrayCreate(VT_VARIANT, 2, bounds);
    if (!made)
        throw Failure(FailureNumber::OutOfMemory);
    try {
        CopyInto(made, array);
    } catch (...) {
        ::SafeArrayDestroy(made);
        throw;
    }
    return made;
}

void CopyInto(SAFEARRAY*& to, const Array& from)
{
    const Bounds bounds = BoundsOf(to);
    const VARTYPE type = TypeOf(to);
    if (!HasSameBounds(from, bounds)) {
        Require(type == VT_VARIANT ? S_OK : DISP_E_TYPEMISMATCH);
        SAFEARRAY* copy = SafeArrayOf(from);
        const HRESULT status = ::SafeArrayDestroy(to);
        if (FAILED(status))
            ::SafeArrayDestroy(copy);
        Require(status);
        to = copy;
        return;
    }
    ForEachElement(to, bounds, [&](LONG first, LONG second, void* element) {
        Store(from.At(first, second), type, element);
    });
}

bool CopyInto(Array& to, const Array& from)
{
    if (to.UpperBound(1) != from.UpperBound(1) || to.UpperBound(2) != from.UpperBound(2))
        return false;
    for (Long first = 0; first <= from.UpperBound(1); ++first)
        for (Long second = 0; second <= from.UpperBound(2); ++second)
            to.At(first, second) = from.At(first, second);
    return true;
}

} // namespace kova::component
