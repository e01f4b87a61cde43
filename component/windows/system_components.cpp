#include "component/windows/system_components.hpp"

#include "component/windows/failures.hpp"
#include "component/windows/objects.hpp"
#include "component/windows/variants.hpp"
#include "system/windows/wide_text.hpp"

namespace kova::component {

namespace {

[[noreturn]] void Fail(std::string_view className, const Text& cause)
{
    throw Failure(FailureNumber::ClassCannotBeCreated, "O componente '" + Text(className) + "' " + cause);
}

/// What the maker has said of the last failure; else the system's words for the code.
Text CauseOf(HRESULT status)
{
    IErrorInfo* last = nullptr;
    if (::GetErrorInfo(0, &last) == S_OK) {
        const auto error = Held<IErrorInfo>::Counted(last);
        BSTR description = nullptr;
        error->GetDescription(&description);
        const Text text = TextOf(description);
        ::SysFreeString(description);
        if (!text.empty())
            return text;
    }
    return FailureOf(status).Description();
}

} // namespace

ComponentRef SystemComponents::CreateObject(std::string_view className)
{
    CLSID classId;
    if (FAILED(::CLSIDFromProgID(system::Wide(className).c_str(), &classId)))
        Fail(className, "não está registrado neste computador. Instale o programa novamente.");
    void* made = nullptr;
    ::SetErrorInfo(0, nullptr);
    const HRESULT status = ::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                              IID_IDispatch, &made);
    if (FAILED(status))
        Fail(className, "não pode ser criado. " + CauseOf(status));
    const auto dispatch = Held<IDispatch>::Counted(static_cast<IDispatch*>(made));
    auto component = std::dynamic_pointer_cast<Component>(ObjectOf(dispatch.Get()));
    if (!component)
        Fail(className, "não pode ser criado. A classe não é de componentes.");
    return component;
}

} // namespace kova::component
