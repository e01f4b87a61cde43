#include "tools/agenda-data/author.hpp"

#include "family/data/engine/iso_text.hpp"
#include "host/session/computer_user.hpp"
#include "system/computer_name.hpp"

namespace kova::data {

namespace {

/// The code of whoever is not a user of the agenda.
constexpr const char* NoUser = "0";

} // namespace

family::Author AuthorOf(const Call& call, const Surroundings& surroundings)
{
    return {.code = NoUser,
            .name = call.Option("--user").value_or(host::NameOfThisUser()),
            .moment = family::IsoMoment(surroundings.now),
            .desk = system::ComputerName(),
            .isOwner = true,
            .isByComputersClock = surroundings.isByComputersClock};
}

} // namespace kova::data
