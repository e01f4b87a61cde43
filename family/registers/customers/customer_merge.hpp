#pragma once

#include "family/registers/description/register.hpp"

/// Two customers who are the same person, brought together: the one goes on, the other goes.
namespace kova::family::registers {

/// Two animals of the same name and species, one of each customer.
struct AlikeAnimals {
    Key kept = 0, other = 0;
    std::string name, species;
};

/// What a merge does, and what whoever decides on it has seen.
struct CustomerMerge {
    /// The customer who goes on, and the one whose row goes.
    Key kept = 0, other = 0;
    /// What their forms show.
    Texts shown{}, shownOfOther{};
    /// What the other one has and the kept one gets.
    long long appointments = 0, animals = 0, packages = 0;
    /// Fields of the kept one that are filled from the other. They are empty before, but for contact
    /// channels, which are added, and for an address, which is completed where the other's is the same one.
    std::vector<ChangedField> filled{};
    /// Fields in which the kept one has something else (`before`) than the other (`after`), and keeps it.
    std::vector<ChangedField> lost{};
    std::vector<AlikeAnimals> alike{};
};

/// What a merge of those two would do; nothing where one of them is not there, or both are one. Fails with a
/// DatabaseFailure.
std::optional<CustomerMerge> PlanCustomerMerge(Database& database, Key kept, Key other);

/// What has become of one of two customers who is not there any more; see Register::WhatBecameOf.
std::string WhatBecameOfEither(Database& database, Key kept, Key other);

/// What a merge answers, technical failures aside. Nothing was written unless it is Done.
struct MergeAnswer {
    enum class Outcome {
        Done,
        /// Somebody has changed one of the rows since they were shown; `text` says what.
        Changed,
        /// One of the customers is not there any more; `text` says what has become of that one.
        Gone,
    };

    bool IsDone() const { return outcome == Outcome::Done; }

    Outcome outcome = Outcome::Done;
    std::string text{};
    /// What has gone to the kept one.
    long long appointments = 0, animals = 0;
};

/// Does what was planned, in one transaction, as WriteSafely does: whatever refers to the other customer
/// refers to the kept one from then on, and the other's row goes, since nothing refers to it any more and it
/// would only be taken for a double again; the audit keeps it. Each appointment gets a version of its own, so
/// that a desk that has it on show notices. Every row that changes leaves its line in the audit, and the
/// merge a line under either customer. Of the pairs in `joined` only the first animal stays, with the
/// second's appointments; all other animals of the other customer go on as they are. Refused where one of
/// the customers, or an animal of a pair, is not as it was planned. Fails with RightDenied where the author
/// may not change registers.
MergeAnswer MergeCustomers(Database& database, const CustomerMerge& plan,
                           std::span<const AlikeAnimals> joined, const Author& author);

} // namespace kova::family::registers
