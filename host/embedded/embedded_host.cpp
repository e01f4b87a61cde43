#include "host/embedded/embedded_host.hpp"

#include "host/folders.hpp"
#include "host/session/remembered_shops.hpp"

namespace kova::host {

std::string EmbeddedHost::DataSource() const
{
    const auto shops = RememberedShops(SettingsFile()).All();
    if (shops.empty())
        throw Failure(FailureNumber::ClassCannotBeCreated,
                      "Nenhuma loja foi aberta por este usuário. Abra a agenda uma vez e escolha a loja.");
    return shops.front().source;
}

} // namespace kova::host
