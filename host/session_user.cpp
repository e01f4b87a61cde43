#include "host/session_user.hpp"

#include <utility>

namespace kova::host {

namespace {

[[noreturn]] void FailOnMember(std::string_view member)
{
    throw Failure(FailureNumber::NoSuchMember,
                  "O usuário da sessão não aceita a propriedade ou método '" + Text(member) + "'.");
}

} // namespace

SessionUser::SessionUser(Long code, Text name) : code_(code), name_(std::move(name)) { }

Value SessionUser::Get(std::string_view member)
{
    if (member == "Codigo")
        return code_;
    if (member == "Nome")
        return name_;
    FailOnMember(member);
}

void SessionUser::Set(std::string_view member, const Value&)
{
    if (member == "Codigo" || member == "Nome")
        throw Failure(FailureNumber::WrongArgumentCount, "O usuário da sessão não pode ser alterado.");
    FailOnMember(member);
}

Value SessionUser::Call(std::string_view member, std::span<Argument>) { FailOnMember(member); }

} // namespace kova::host
