#pragma once

#include "agenda/contracts/value.hpp"

namespace kova::agenda {

/// Why a customer in that state cannot be booked, as the user is told; "" for one who can.
Text MotivoDaRecusaDoCliente(Long situacao);

} // namespace kova::agenda
