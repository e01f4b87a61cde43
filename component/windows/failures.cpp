#include "component/windows/failures.hpp"

#include "agenda/contracts/foreign_failure.hpp"
#include "component/windows/held.hpp"
#include "component/windows/variants.hpp"

#include <limits>
#include <optional>
#include <string_view>
#include <system_error>

namespace kova::component {

namespace {

/// Where a failure comes from, for the caller's messages.
constexpr std::string_view Source = "Kovaris";

// The system's numbers for run-time failures of programs lie here.
constexpr HRESULT RunTimeCodes = static_cast<HRESULT>(0x800A0000);

std::optional<FailureNumber> NumberOf(HRESULT status)
{
    switch (status) {
    case DISP_E_UNKNOWNNAME:
    case DISP_E_MEMBERNOTFOUND: return FailureNumber::NoSuchMember;
    case DISP_E_BADPARAMCOUNT:
    case DISP_E_PARAMNOTOPTIONAL: return FailureNumber::WrongArgumentCount;
    case DISP_E_TYPEMISMATCH:
    case DISP_E_BADVARTYPE: return FailureNumber::TypeMismatch;
    case DISP_E_OVERFLOW: return FailureNumber::Overflow;
    case DISP_E_BADINDEX: return FailureNumber::IndexOutOfRange;
    case DISP_E_DIVBYZERO: return FailureNumber::DivisionByZero;
    case E_OUTOFMEMORY: return FailureNumber::OutOfMemory;
    case E_INVALIDARG: return FailureNumber::InvalidArgument;
    default: return std::nullopt;
    }
}

std::int32_t NumberIn(HRESULT code)
{
    const bool isRunTime = (code & static_cast<HRESULT>(0xFFFF0000)) == RunTimeCodes;
    return isRunTime ? code & 0xFFFF : code;
}

/// Null where there is no room for it.
BSTR TriedBstr(std::string_view text)
{
    try {
        return BstrOf(text);
    } catch (const std::exception&) {
        return nullptr;
    }
}

/// Everything of what was raised, given back at the end of its scope.
struct OwnedTexts {
    EXCEPINFO& exception;
    ~OwnedTexts()
    {
        for (BSTR text : {exception.bstrSource, exception.bstrDescription, exception.bstrHelpFile})
            ::SysFreeString(text);
        exception = {};
    }
};

} // namespace

HRESULT CodeOf(const Failure& failure)
{
    const std::int32_t number = failure.Number();
    if (number < 0)
        return number;
    return number > 0 && number <= std::numeric_limits<WORD>::max() ? RunTimeCodes | number : E_FAIL;
}

Failure CaughtFailure()
{
    try {
        throw;
    } catch (const std::exception& error) {
        return AsFailure(error);
    } catch (...) {
        return Failure(FailureNumber::InvalidArgument);
    }
}

HRESULT Raise(const Failure& failure, EXCEPINFO* exception)
{
    if (!exception)
        return CodeOf(failure);
    *exception = {};
    exception->scode = CodeOf(failure);
    exception->bstrSource = TriedBstr(Source);
    exception->bstrDescription = TriedBstr(failure.Description());
    return DISP_E_EXCEPTION;
}

HRESULT RaiseLast(const Failure& failure)
{
    ICreateErrorInfo* made = nullptr;
    if (SUCCEEDED(::CreateErrorInfo(&made))) {
        const auto error = Held<ICreateErrorInfo>::Counted(made);
        error->SetSource(OwnBstr(Source).Get());
        error->SetDescription(OwnBstr(failure.Description()).Get());
        ::SetErrorInfo(0, error.As<IErrorInfo>(IID_IErrorInfo).Get());
    }
    return CodeOf(failure);
}

Failure FailureOf(HRESULT status, EXCEPINFO& exception)
{
    const OwnedTexts texts{exception};
    if (status != DISP_E_EXCEPTION)
        return FailureOf(status);
    if (exception.pfnDeferredFillIn)
        exception.pfnDeferredFillIn(&exception);
    std::int32_t number = exception.wCode != 0 ? exception.wCode : NumberIn(exception.scode);
    if (number == 0)
        number = E_FAIL;
    const Text description = TextOf(exception.bstrDescription);
    return description.empty() ? Failure(number, FailureOf(exception.scode).Description())
                               : Failure(number, description);
}

Failure FailureOf(HRESULT status)
{
    if (const auto number = NumberOf(status))
        return Failure(*number);
    const std::int32_t number = NumberIn(status);
    if (number != status)
        return Failure(static_cast<FailureNumber>(number));
    return Failure(number, std::error_code(status, std::system_category()).message());
}

} // namespace kova::component
