#include "family/registers/contacts/channel_kinds.hpp"

#include "family/data/engine/fold_text.hpp"
#include "family/registers/contacts/phone_numbers.hpp"

#include <optional>

namespace kova::family::registers {

namespace {

/// A word in the name of a kind, folded. The first that is found counts: "Telefone fixo" is fixed.
struct PhoneWord {
    std::string_view word;
    PhoneKind kind;
};
constexpr PhoneWord PhoneWords[] = {
    {"celular", PhoneKind::Mobile}, {"fixo", PhoneKind::Fixed}, {"telefone", PhoneKind::Any},
    {"whatsapp", PhoneKind::Any},   {"zap", PhoneKind::Any},
};

std::optional<PhoneKind> PhoneOf(const std::string& foldedKind)
{
    for (const PhoneWord& one : PhoneWords) {
        if (foldedKind.find(one.word) != std::string::npos)
            return one.kind;
    }
    return std::nullopt;
}

bool IsMail(const std::string& foldedKind)
{
    return foldedKind.find("e-mail") != std::string::npos || foldedKind.find("email") != std::string::npos;
}

} // namespace

bool IsMailAddress(const std::string& text)
{
    const std::size_t at = text.find('@');
    if (at == 0 || at == std::string::npos || text.find('@', at + 1) != std::string::npos)
        return false;
    if (text.find_first_of(" ,;:()<>\"\\") != std::string::npos)
        return false;
    const std::string domain = "." + text.substr(at + 1) + ".";
    const bool hasPoint = domain.find('.', 1) != domain.size() - 1;
    return hasPoint && domain.find("..") == std::string::npos;
}

KeptChannel ReadChannel(const std::string& kind, const std::string& typed)
{
    const std::string folded = FoldText(kind);
    if (const auto phone = PhoneOf(folded)) {
        PhoneText read = ReadPhone(typed, *phone);
        return {std::move(read.kept), std::move(read.why)};
    }
    if (IsMail(folded) && !IsMailAddress(typed))
        return {{}, "o e-mail " + typed + " não é um endereço, como ana@exemplo.com."};
    return {typed, {}};
}

} // namespace kova::family::registers
