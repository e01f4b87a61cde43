#pragma once

#include "family/registers/customers/customer_merge.hpp"

#include <QString>

namespace kova::registers {

/// What a merge does, in lines for whoever decides on it.
QString TextOf(const family::registers::CustomerMerge& merge);

/// What one has done.
QString TextOf(const family::registers::MergeAnswer& answer);

} // namespace kova::registers
