#pragma once

#include "agenda/contracts/value.hpp"

#include <windows.h>

namespace kova::component {

/// The system's arrays with two dimensions. Indexes stay what they are: of one that is counted from 1 the
/// elements 0 are Empty. Fails with 13 on another count of dimensions and on elements without a counterpart,
/// with 9 on one that is counted from below 0, with 7 where counting from 0 would make it enormous.
ArrayRef ArrayOf(SAFEARRAY* array);

/// An array of variants, the caller's own. Fails with 7.
SAFEARRAY* SafeArrayOf(const Array& array);

/// Writes the elements of `from` into an array with the same bounds; another one, of variants, becomes a
/// copy. The elements' type may be any that Store knows.
void CopyInto(SAFEARRAY*& to, const Array& from);

/// The same into one of ours. False where the bounds differ, and nothing was written.
bool CopyInto(Array& to, const Array& from);

} // namespace kova::component
