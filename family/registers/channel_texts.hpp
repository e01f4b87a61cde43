#pragma once

#include "family/data/rows/people_rows.hpp"

namespace kova::family::registers {

/// Contact channels as one cell: "Celular: (11) 91234-5678; E-mail: ze@example.com". A semicolon or a
/// backslash inside a channel, and a colon inside its kind, has a backslash before it.
std::string WriteChannels(const std::vector<ChannelRow>& channels);

/// Adds the cell's channels. Answers why they cannot be read, or nothing.
std::string ReadChannels(const std::string& cell, std::vector<ChannelRow>& channels);

/// The channels of a text as lists show it, without the backslashes. What follows a semicolon and names no
/// kind belongs to the channel before it.
std::vector<ChannelRow> ShownChannels(std::string_view shown);

/// Adds one channel; the same answers.
std::string AddChannel(std::string kind, std::string channel, std::vector<ChannelRow>& channels);

} // namespace kova::family::registers
