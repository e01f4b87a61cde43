#pragma once

#include "family/data/rows/people_rows.hpp"

#include <span>

namespace kova::family::registers {

/// Contact channels as one cell: "Celular: (11) 91234-5678; E-mail: ze@example.com". A semicolon or a
/// backslash inside a channel, and a colon inside its kind, has a backslash before it.
std::string WriteChannels(const std::vector<ChannelRow>& channels);

/// Adds the cell's channels as they are kept (channel_kinds.hpp). Answers why the first that cannot be read
/// is none, or nothing; what is none is added as it stands.
/// One that is among the `former` is not judged: it may be older than the rules.
std::string ReadChannels(const std::string& cell, std::vector<ChannelRow>& channels,
                         std::span<const ChannelRow> former = {});

/// The channels of a text as lists show it, without the backslashes. What follows a semicolon and names no
/// kind belongs to the channel before it.
std::vector<ChannelRow> ShownChannels(std::string_view shown);

/// Adds one channel; the same answers.
std::string AddChannel(std::string kind, std::string channel, std::vector<ChannelRow>& channels,
                       std::span<const ChannelRow> former = {});

} // namespace kova::family::registers
