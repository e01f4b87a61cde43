#include "family/registers/contacts/channel_texts.hpp"

#include "agenda/contracts/text.hpp"
#include "family/registers/contacts/channel_kinds.hpp"
#include "family/registers/description/column_kinds.hpp"

#include <algorithm>

namespace kova::family::registers {

namespace {

constexpr std::size_t WidthOfKind = 50;
constexpr std::size_t WidthOfChannel = 100;

std::string Escaped(const std::string& text, std::string_view marks)
{
    std::string escaped;
    for (const char letter : text) {
        if (letter == '\\' || marks.find(letter) != std::string_view::npos)
            escaped += '\\';
        escaped += letter;
    }
    return escaped;
}

/// Takes the text up to the mark, and the mark itself, away from `rest`.
std::string TakeUntil(char mark, std::string_view& rest)
{
    std::string taken;
    std::size_t at = 0;
    for (; at < rest.size() && rest[at] != mark; ++at) {
        if (rest[at] == '\\' && at + 1 < rest.size())
            ++at;
        taken += rest[at];
    }
    rest.remove_prefix(std::min(rest.size(), at + 1));
    return Trim(taken);
}

bool IsAmong(std::span<const ChannelRow> channels, const std::string& kind, const std::string& channel)
{
    return std::ranges::any_of(
        channels, [&](const ChannelRow& one) { return one.tipo == kind && one.canal == channel; });
}

} // namespace

std::string WriteChannels(const std::vector<ChannelRow>& channels)
{
    std::string cell;
    for (const ChannelRow& channel : channels) {
        cell.append(cell.empty() ? "" : "; ").append(Escaped(channel.tipo, ":;"));
        cell.append(": ").append(Escaped(channel.canal, ";"));
    }
    return cell;
}

std::string AddChannel(std::string kind, std::string channel, std::vector<ChannelRow>& channels,
                       std::span<const ChannelRow> former)
{
    if (kind.empty() || channel.empty())
        return "não é uma lista de canais. Escreva como \"Celular: (11) 91234-5678; E-mail: "
               "ze@example.com\".";
    std::string why = CheckWidth(kind, WidthOfKind);
    if (why.empty())
        why = CheckWidth(channel, WidthOfChannel);
    if (why.empty() && !IsAmong(former, kind, channel)) {
        KeptChannel kept = ReadChannel(kind, channel);
        why = std::move(kept.why);
        if (why.empty())
            channel = std::move(kept.text);
    }
    channels.push_back({0, 0, std::move(kind), std::move(channel)});
    return why;
}

std::vector<ChannelRow> ShownChannels(std::string_view shown)
{
    constexpr std::string_view Between = "; ", BehindKind = ": ";
    std::vector<ChannelRow> channels;
    while (!shown.empty()) {
        const std::size_t end = std::min(shown.find(Between), shown.size());
        const std::string_view part = shown.substr(0, end);
        shown.remove_prefix(std::min(end + Between.size(), shown.size()));
        const std::size_t kind = part.find(BehindKind);
        if (kind != std::string_view::npos)
            channels.push_back({0, 0, std::string(part.substr(0, kind)),
                                std::string(part.substr(kind + BehindKind.size()))});
        else if (!channels.empty())
            channels.back().canal.append(Between).append(part);
    }
    return channels;
}

std::string ReadChannels(const std::string& cell, std::vector<ChannelRow>& channels,
                         std::span<const ChannelRow> former)
{
    std::string why;
    for (std::string_view rest = cell; !rest.empty();) {
        if (rest.find_first_not_of("; ") == std::string_view::npos)
            break;
        std::string kind = TakeUntil(':', rest);
        std::string channel = TakeUntil(';', rest);
        std::string wrong = AddChannel(std::move(kind), std::move(channel), channels, former);
        if (why.empty())
            why = std::move(wrong);
    }
    return why;
}

} // namespace kova::family::registers
