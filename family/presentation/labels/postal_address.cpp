#include "family/presentation/labels/postal_address.hpp"

#include "agenda/contracts/text.hpp"

namespace kova::family {

namespace {

/// Both, with the separator between them where neither is empty.
Text Joined(const Text& first, const char* separator, const Text& second)
{
    return first.empty() || second.empty() ? first + second : first + separator + second;
}

Text StreetLine(const PostalAddress& address)
{
    return Joined(Joined(Trim(address.street), ", ", Trim(address.number)), " - ", Trim(address.complement));
}

Text PostalCodeLine(const Text& digits)
{
    if (digits.empty())
        return {};
    return "CEP " + (digits.size() == 8 ? digits.substr(0, 5) + "-" + digits.substr(5) : digits);
}

} // namespace

bool PostalAddress::IsComplete() const { return !Trim(street).empty() && !Trim(town).empty(); }

std::vector<LabelLine> LinesOf(const PostalAddress& address, bool withNickname)
{
    const Text name = Trim(address.name);
    const Text nickname = Trim(address.nickname);
    std::vector<LabelLine> lines;
    const auto add = [&](const Text& text, bool bold = false) {
        if (!text.empty())
            lines.push_back({text, bold});
    };
    if (name.empty() || (withNickname && nickname != name))
        add(nickname, true);
    add(name, true);
    add(StreetLine(address));
    add(Trim(address.district));
    add(Joined(Trim(address.town), "/", Trim(address.state)));
    add(PostalCodeLine(Trim(address.postalCode)));
    return lines;
}

} // namespace kova::family
