#include "family/business/current_author.hpp"

#include "family/business/clean_text.hpp"
#include "family/data/engine/iso_text.hpp"
#include "system/computer_name.hpp"

namespace kova::family {

Author CurrentAuthor(const ObjectRef& user, const Clock& clock)
{
    const Failure missing(FailureNumber::NoObject, "Usuário não informado.");
    const auto session = std::dynamic_pointer_cast<Component>(user);
    if (!session)
        throw missing;
    Author author{.code = CleanText(session->Get("Codigo").ToText()),
                  .name = CleanText(session->Get("Nome").ToText()),
                  .moment = IsoMoment(clock.Now()),
                  .desk = system::ComputerName(),
                  .isByComputersClock = clock.IsComputersOwn()};
    if (author.name.empty())
        throw missing;
    return author;
}

} // namespace kova::family
