#pragma once

#include "family/privacy/anonymise.hpp"

namespace kova::family::privacy {

/// "2 canais de comunicação, 1 animal, 6 agendamentos, 3 linhas da auditoria"
std::string CountsInWords(const AnonymiseAnswer& answer);

/// What was done to whom, and where former values still are; sentences in lines.
std::string DoneInWords(const std::string& source, Key code, const AnonymiseAnswer& answer);

} // namespace kova::family::privacy
