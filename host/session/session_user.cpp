#include "host/session/session_user.hpp"

#include <utility>

namespace kova::host {

SessionUser::SessionUser(Long code, Text name) : code_(code), name_(std::move(name)) { }

void SessionUser::Become(Long code, Text name)
{
    code_ = code;
    name_ = std::move(name);
}

std::span<const Property<SessionUser>> SessionUser::Properties()
{
    static constexpr Property<SessionUser> properties[] = {
        {"Codigo", &SessionUser::Codigo},
        {"Nome", &SessionUser::Nome},
    };
    return properties;
}

} // namespace kova::host
