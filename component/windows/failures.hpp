#pragma once

#include "agenda/contracts/failure.hpp"

#include <windows.h>

namespace kova::component {

/// The code of a failure among the system's: a negative number is one itself, a small one stands in the place
/// that the system keeps for the numbers of run-time failures.
HRESULT CodeOf(const Failure& failure);

/// What has been caught, whatever it is, as a failure of ours. To be asked where something was.
Failure CaughtFailure();

/// Answers what `act` does; the code of the failure that ends it otherwise.
template <class Act> HRESULT Guarded(Act act)
{
    try {
        return act();
    } catch (...) {
        return CodeOf(CaughtFailure());
    }
}

/// Tells the caller of a member that failed. Answers what the member has to answer.
HRESULT Raise(const Failure& failure, EXCEPINFO* exception);

/// Tells the caller of what is no member; whoever asks the system for the last failure gets its text.
HRESULT RaiseLast(const Failure& failure);

/// What a member of another maker's object has answered, as a failure of ours with its number and its text.
/// Takes over what the exception holds.
Failure FailureOf(HRESULT status, EXCEPINFO& exception);
/// The same where there is no more than the code.
Failure FailureOf(HRESULT status);

} // namespace kova::component
