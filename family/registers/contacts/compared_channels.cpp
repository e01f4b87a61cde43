#include "family/registers/contacts/compared_channels.hpp"

#include "family/data/engine/fold_text.hpp"

#include <algorithm>
#include <iterator>

namespace kova::family::registers {

std::string PhoneDigits(const ChannelRow& channel)
{
    constexpr std::size_t FewestDigits = 6;
    std::string digits;
    std::ranges::copy_if(channel.canal, std::back_inserter(digits),
                         [](char letter) { return letter >= '0' && letter <= '9'; });
    const bool isNumber = channel.canal.find('@') == std::string::npos && digits.size() >= FewestDigits;
    return isNumber ? digits : "";
}

std::string ComparableChannel(const ChannelRow& channel)
{
    std::string digits = PhoneDigits(channel);
    return digits.empty() ? FoldText(channel.canal) : digits;
}

std::vector<ChannelRow> JoinChannels(const std::vector<ChannelRow>& kept,
                                     const std::vector<ChannelRow>& other)
{
    std::vector<ChannelRow> joined = kept;
    for (const ChannelRow& channel : other) {
        if (std::ranges::find(joined, ComparableChannel(channel), ComparableChannel) == joined.end())
            joined.push_back(channel);
    }
    return joined;
}

} // namespace kova::family::registers
