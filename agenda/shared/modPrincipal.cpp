#include "agenda/shared/modPrincipal.hpp"

namespace kova::agenda {

constinit modPrincipal Principal;

} // namespace kova::agenda
