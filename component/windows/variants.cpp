#include "component/windows/variants.hpp"

#include "agenda/contracts/date_time.hpp"
#include "component/windows/arrays.hpp"
#include "component/windows/objects.hpp"
#include "system/windows/wide_text.hpp"

#include <cmath>
#include <cstdio>
#include <limits>

namespace kova::component {

namespace {

[[noreturn]] void Mismatch() { throw Failure(FailureNumber::TypeMismatch); }

void Require(HRESULT status)
{
    if (status == DISP_E_OVERFLOW)
        throw Failure(FailureNumber::Overflow);
    if (FAILED(status))
        Mismatch();
}

Text DateText(DATE date)
{
    SYSTEMTIME moment;
    if (std::isnan(date) || !::VariantTimeToSystemTime(date, &moment))
        Mismatch();
    const Date day = {moment.wYear, moment.wMonth, moment.wDay};
    const bool hasDay = DayNumber(day) != 0;
    const bool hasTime = moment.wHour != 0 || moment.wMinute != 0 || moment.wSecond != 0;
    if (hasDay && !hasTime)
        return FormatDate(day);
    char time[9];
    std::snprintf(time, sizeof time, "%02d:%02d:%02d", moment.wHour % 100, moment.wMinute % 100,
                  moment.wSecond % 100);
    return hasDay ? FormatDate(day) + ' ' + time : Text(time);
}

template <class Number> Value WholeNumber(Number number)
{
    if (std::in_range<Integer>(number) && sizeof(Number) < sizeof(Long))
        return static_cast<Integer>(number);
    if (std::in_range<Long>(number))
        return static_cast<Long>(number);
    return static_cast<Double>(number);
}

Value Currency(CY amount)
{
    Double number = 0;
    Require(::VarR8FromCy(amount, &number));
    return number;
}

Value Decimal(DECIMAL& amount)
{
    Double number = 0;
    Require(::VarR8FromDec(&amount, &number));
    return number;
}

/// The value of a type at that place.
Value ValueAt(VARTYPE type, void* place)
{
    if ((type & VT_ARRAY) != 0)
        return ArrayOf(*static_cast<SAFEARRAY**>(place));
    switch (type) {
    case VT_BOOL: return *static_cast<VARIANT_BOOL*>(place) != VARIANT_FALSE;
    case VT_I1: return WholeNumber(*static_cast<signed char*>(place));
    case VT_UI1: return WholeNumber(*static_cast<BYTE*>(place));
    case VT_I2: return Value(Integer(*static_cast<SHORT*>(place)));
    case VT_UI2: return Value(Long(*static_cast<USHORT*>(place)));
    case VT_INT:
    case VT_I4: return Value(Long(*static_cast<LONG*>(place)));
    case VT_UINT:
    case VT_UI4: return WholeNumber(*static_cast<ULONG*>(place));
    case VT_I8: return WholeNumber(*static_cast<LONGLONG*>(place));
    case VT_UI8: return WholeNumber(*static_cast<ULONGLONG*>(place));
    case VT_R4: return Value(Double(*static_cast<FLOAT*>(place)));
    case VT_R8: return *static_cast<DOUBLE*>(place);
    case VT_CY: return Currency(*static_cast<CY*>(place));
    case VT_DECIMAL: return Decimal(*static_cast<DECIMAL*>(place));
    case VT_DATE: return DateText(*static_cast<DATE*>(place));
    case VT_BSTR: return TextOf(*static_cast<BSTR*>(place));
    case VT_UNKNOWN:
    case VT_DISPATCH: return ObjectOf(*static_cast<IUnknown**>(place));
    case VT_VARIANT: return ValueOf(*static_cast<VARIANT*>(place));
    default: Mismatch();
    }
}

/// Where a variant has its own value.
void* PlaceIn(const VARIANT& variant)
{
    auto& own = const_cast<VARIANT&>(variant);
    return variant.vt == VT_DECIMAL ? static_cast<void*>(&own.decVal) : static_cast<void*>(&own.llVal);
}

/// Numbers of kinds that there are none of here, by the system's own conversions. False for another type.
bool StoreForeignNumber(const Value& value, VARTYPE type, void* variable)
{
    const auto number = [&] { return value.ToDouble(); };
    switch (type) {
    case VT_I1: Require(::VarI1FromR8(number(), static_cast<CHAR*>(variable))); return true;
    case VT_UI1: Require(::VarUI1FromR8(number(), static_cast<BYTE*>(variable))); return true;
    case VT_UI2: Require(::VarUI2FromR8(number(), static_cast<USHORT*>(variable))); return true;
    case VT_UINT:
    case VT_UI4: Require(::VarUI4FromR8(number(), static_cast<ULONG*>(variable))); return true;
    case VT_I8: Require(::VarI8FromR8(number(), static_cast<LONG64*>(variable))); return true;
    case VT_UI8: Require(::VarUI8FromR8(number(), static_cast<ULONG64*>(variable))); return true;
    case VT_R4: Require(::VarR4FromR8(number(), static_cast<FLOAT*>(variable))); return true;
    case VT_CY: Require(::VarCyFromR8(number(), static_cast<CY*>(variable))); return true;
    case VT_DECIMAL: {
        DECIMAL made = {};
        Require(::VarDecFromR8(number(), &made));
        // Within a variant its type lies there.
        auto& decimal = *static_cast<DECIMAL*>(variable);
        made.wReserved = decimal.wReserved;
        decimal = made;
        return true;
    }
    default: return false;
    }
}

/// A dropped reference empties the variable; everything else must be an object.
void StoreObject(const Value& value, IUnknown*& variable)
{
    const ObjectRef object = value == Value(ObjectRef()) ? ObjectRef() : value.ToObject();
    Held<IUnknown>::Counted(std::exchange(variable, DispatchOf(object).Release()));
}

template <class Type> Value Written(void* place, Type value)
{
    *static_cast<Type*>(place) = value;
    return value;
}

} // namespace

Text TextOf(BSTR text)
{
    return text ? system::Narrow(std::wstring_view(text, ::SysStringLen(text))) : Text();
}

BSTR BstrOf(std::string_view text)
{
    const std::wstring wide = system::Wide(text);
    BSTR made = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (!made)
        throw Failure(FailureNumber::OutOfMemory);
    return made;
}

Variable VariableOf(const VARIANT& reference)
{
    // More would be a ring.
    constexpr int mostSteps = 8;
    const VARIANT* at = &reference;
    for (int step = 0; step < mostSteps && at->byref; ++step) {
        const auto type = static_cast<VARTYPE>(at->vt & ~VT_BYREF);
        if (type != VT_VARIANT || (at->pvarVal->vt & VT_BYREF) == 0)
            return {type, at->byref};
        at = at->pvarVal;
    }
    Mismatch();
}

Value ValueOf(const VARIANT& variant)
{
    if ((variant.vt & VT_BYREF) != 0) {
        const Variable variable = VariableOf(variant);
        return ValueAt(variable.type, variable.place);
    }
    switch (variant.vt) {
    case VT_EMPTY: return {};
    case VT_NULL: return Null();
    case VT_ERROR:
        if (variant.scode == DISP_E_PARAMNOTFOUND)
            return {};
        Mismatch();
    default: return ValueAt(variant.vt, PlaceIn(variant));
    }
}

void Put(const Value& value, VARIANT& variant)
{
    VARIANT made;
    ::VariantInit(&made);
    switch (value.GetType()) {
    case ValueType::Empty: break;
    case ValueType::Null: made.vt = VT_NULL; break;
    case ValueType::Boolean:
        made.vt = VT_BOOL;
        made.boolVal = value.ToBoolean() ? VARIANT_TRUE : VARIANT_FALSE;
        break;
    case ValueType::Integer:
        made.vt = VT_I2;
        made.iVal = value.ToInteger();
        break;
    case ValueType::Long:
        made.vt = VT_I4;
        made.lVal = value.ToLong();
        break;
    case ValueType::Double:
        made.vt = VT_R8;
        made.dblVal = value.ToDouble();
        break;
    case ValueType::Text:
        made.vt = VT_BSTR;
        made.bstrVal = BstrOf(value.ToText());
        break;
    case ValueType::Object:
        made.vt = VT_DISPATCH;
        made.pdispVal = DispatchOf(value.HeldObject()).Release();
        break;
    case ValueType::Array:
        made.vt = VT_ARRAY | VT_VARIANT;
        made.parray = SafeArrayOf(*value.ToArray());
        break;
    }
    variant = made;
}

Value Store(const Value& value, VARTYPE type, void* variable)
{
    switch (type) {
    case VT_BOOL: {
        const bool truth = value.ToBoolean();
        *static_cast<VARIANT_BOOL*>(variable) = truth ? VARIANT_TRUE : VARIANT_FALSE;
        return truth;
    }
    case VT_I2: return Written<Integer>(variable, value.ToInteger());
    case VT_INT:
    case VT_I4: return Value(Long(*static_cast<LONG*>(variable) = value.ToLong()));
    case VT_R8: return Written<Double>(variable, value.ToDouble());
    case VT_DATE: *static_cast<DATE*>(variable) = DateOf(value.ToText()); break;
    case VT_BSTR: {
        BSTR made = BstrOf(value.ToText());
        ::SysFreeString(std::exchange(*static_cast<BSTR*>(variable), made));
        break;
    }
    case VT_UNKNOWN:
    case VT_DISPATCH: StoreObject(value, *static_cast<IUnknown**>(variable)); break;
    case VT_VARIANT: {
        Variant made;
        Put(value, made);
        std::swap(static_cast<VARIANT&>(made), *static_cast<VARIANT*>(variable));
        return value;
    }
    default:
        if (!StoreForeignNumber(value, type, variable))
            Mismatch();
    }
    return ValueAt(type, variable);
}

DATE DateOf(const Text& text)
{
    const DateTime moment = RequireDateTime(text);
    SYSTEMTIME parts = {};
    parts.wYear = static_cast<WORD>(moment.date.year);
    parts.wMonth = static_cast<WORD>(moment.date.month);
    parts.wDay = static_cast<WORD>(moment.date.day);
    parts.wHour = static_cast<WORD>(moment.time.hour);
    parts.wMinute = static_cast<WORD>(moment.time.minute);
    parts.wSecond = static_cast<WORD>(moment.time.second);
    DATE date = 0;
    if (!::SystemTimeToVariantTime(&parts, &date))
        Mismatch();
    return date;
}

} // namespace kova::component
