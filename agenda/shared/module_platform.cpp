#include "agenda/shared/module_platform.hpp"

namespace kova::agenda {

namespace {

Platform* attached = nullptr;

} // namespace

Platform& ThePlatform()
{
    if (!attached)
        throw Failure(FailureNumber::NoObject);
    return *attached;
}

void AttachPlatform(Platform* platform) { attached = platform; }

ComponentRef CreateObject(std::string_view className)
{
    return ThePlatform().Components().CreateObject(className);
}

} // namespace kova::agenda
