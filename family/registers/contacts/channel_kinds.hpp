#pragma once

#include <string>

namespace kova::family::registers {

/// A contact channel as it is kept: a phone number is written in the usual way. `why` tells, in lower case
/// and with a full stop, what speaks against it. What it must be follows from the words of its kind:
/// "Celular" and its like a mobile number, "Telefone" and "WhatsApp" a mobile or a fixed one, "Fixo" a fixed
/// one, "E-mail" an address; of other kinds it is any text.
struct KeptChannel {
    std::string text;
    std::string why;
};
KeptChannel ReadChannel(const std::string& kind, const std::string& typed);

/// Something before an @, and behind it parts with points between them.
bool IsMailAddress(const std::string& text);

} // namespace kova::family::registers
