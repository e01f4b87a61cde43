#pragma once

#include "family/data/rows/people_rows.hpp"

namespace kova::family::registers {

/// The digits of a contact channel that is a phone number; "" of any other.
std::string PhoneDigits(const ChannelRow& channel);

/// The same text for channels that are the same however they are written: numbers are compared by their
/// digits, everything else without case and accents.
std::string ComparableChannel(const ChannelRow& channel);

/// The channels of `kept`, and behind them those of `other` that it has not.
std::vector<ChannelRow> JoinChannels(const std::vector<ChannelRow>& kept,
                                     const std::vector<ChannelRow>& other);

} // namespace kova::family::registers
