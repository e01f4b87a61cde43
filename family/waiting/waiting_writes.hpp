#pragma once

#include "family/business/appointments/write_answer.hpp"
#include "family/data/stores/waiting_list.hpp"

#include <string>

/// The waiting list's writes. Each is a transaction of its own, asks for its right and leaves its lines in
/// the audit. A version is the one that the caller has shown: where it is another one by then, the answer is
/// Refused and tells who has done what, and nothing was written. They fail with a DatabaseFailure.
namespace kova::family::waiting {

struct WaitingAnswer : WriteAnswer {
    /// Of the entry, as it is once it is written.
    Key code = 0, version = 0;
};

/// A new one, whose row needs no more than what people say. Invalid names the column at fault, "servicos" or
/// "funcionarios".
WaitingAnswer Add(Database& database, const WaitingEntry& entry, const Author& author);

/// What people say of the entry with that code and version; its state stays.
WaitingAnswer Change(Database& database, const WaitingEntry& entry, const Author& author);

/// The customer waits no longer.
WaitingAnswer GiveUp(Database& database, Key code, Key version, const Author& author);

/// A desk is going to book it: until it has, or has put it back, no other desk can take it. Refused where
/// another one has it in hand, for less than LongestInHand minutes.
WaitingAnswer Take(Database& database, Key code, const Author& author);
/// The desk that has taken it, by the version that it got, has not booked it after all.
WaitingAnswer PutBack(Database& database, Key code, Key version, const Author& author);
/// That appointment, which is stored and the customer's, is what came of it.
WaitingAnswer MarkBooked(Database& database, Key code, Key version, Key appointment, const Author& author);

/// A desk that was shut down while it had one in hand keeps it no longer.
inline constexpr int LongestInHand = 15;
/// Whether a desk has it in hand at that moment, "yyyy-mm-dd hh:mm:ss".
bool IsInHand(const WaitingRow& row, const std::string& moment);

} // namespace kova::family::waiting
