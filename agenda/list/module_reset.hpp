#pragma once

namespace kova::agenda {

/// Back to the state of a library that was just loaded. Closes the lists that are still open.
void ReiniciarModulo();

} // namespace kova::agenda
