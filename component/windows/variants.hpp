#pragma once

#include "agenda/contracts/value.hpp"

#include <windows.h>

#include <string_view>

namespace kova::component {

/// A variant of the system, emptied at the end of its scope.
class Variant : public VARIANT {
public:
    Variant() { ::VariantInit(this); }
    ~Variant() { ::VariantClear(this); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
};

/// UTF-8 and the system's own texts. A null text is "".
Text TextOf(BSTR text);
/// The caller's own. Fails with 7.
BSTR BstrOf(std::string_view text);

/// A variable by its type and where it lies.
struct Variable {
    VARTYPE type;
    void* place;
};
/// The one at which a variant by reference ends, however many variants refer to each other on the way. Fails
/// with 13 where it ends nowhere.
Variable VariableOf(const VARIANT& reference);

/// What a variant holds, wherever it refers to. A date becomes the text that forms show, "dd/mm/yyyy",
/// "hh:mm:ss" or both, and midnight without a day is a time; numbers of kinds that there are none of here
/// become the next larger one. A missing argument reads as Empty. Fails with 13 on what has no counterpart.
Value ValueOf(const VARIANT& variant);

/// Writes a value into an empty variant.
void Put(const Value& value, VARIANT& variant);

/// Writes a value into a variable of the type and answers what it holds then. Fails with 6, 13, 91 and 94, as
/// conversions do.
Value Store(const Value& value, VARTYPE type, void* variable);

/// A date by the text that ValueOf makes of it. Fails with 13.
DATE DateOf(const Text& text);

/// A text of the system's own, given back at the end of its scope.
class OwnBstr {
public:
    explicit OwnBstr(std::string_view text) : text_(BstrOf(text)) { }
    ~OwnBstr() { ::SysFreeString(text_); }
    OwnBstr(const OwnBstr&) = delete;
    OwnBstr& operator=(const OwnBstr&) = delete;

    BSTR Get() const { return text_; }

private:
    BSTR text_;
};

} // namespace kova::component
