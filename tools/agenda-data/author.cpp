#include "tools/agenda-data/author.hpp"

#include "family/data/engine/iso_text.hpp"
#include "host/session/computer_user.hpp"
#include "system/computer_name.hpp"

namespace kova::data {

namespace {

/// The code of whoever is not a user of the agenda.
constexpr const char* NoUser = "0";

} // namespace

family::Author AuthorOf(const Call& call, DateTime now)
{
    return {.code = NoUser,
            .name = call.Option("--user").value_or(host::NameOfThisUser()),
            .moment = family::IsoMoment(now),
            .desk = system::ComputerName(),
            .isOwner = true};
}

} // namespace kova::data
