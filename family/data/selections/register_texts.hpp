#pragma once

#include "family/data/selections/audited_texts.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kova::family {

/// A folded text that holds a digit without the marks that stand in numbers, "(11) 91234-5678" as
/// "11912345678"; one without a digit as it stands.
std::string WithoutNumberMarks(std::string_view folded);

/// Whether a list that shows only what is active leaves rows of that situation out: 2 inactive, 4 deleted.
constexpr bool IsHiddenSituation(int situation) { return situation == 2 || situation == 4; }

/// What every customer is looked for by, by name, then code: nickname and name, document, contact channels as
/// they are written and by their digits. About 220 bytes for a customer.
struct CustomerTexts : AuditedTexts {
    explicit CustomerTexts(Database& database);

private:
    void Shape(TextOfRow& row) override;
};

/// The names of all animals, active or not, each with its customer as owner.
struct AnimalNamesOfCustomers : AuditedTexts {
    explicit AnimalNamesOfCustomers(Database& database);

private:
    void Shape(TextOfRow& row) override;
};

/// What every animal is looked for by, active or not, by name, then code: its name, its microchip, nickname
/// and name of its customer.
struct AnimalTexts : AuditedTexts {
    explicit AnimalTexts(Database& database);

private:
    void Shape(TextOfRow& row) override;
};

/// Codes of the customers whose own texts, or the names of whose animals, hold one of the parts, or that have
/// that code; by name, then code. Those that are inactive or deleted are left out where only the active ones
/// are wanted. Fails as Database::With.
std::vector<Key> CustomersWith(Database& database, const std::vector<std::string>& parts, Key code,
                               bool activeOnly);
/// The same of animals by their texts.
std::vector<Key> AnimalsWith(Database& database, const std::vector<std::string>& parts, Key code,
                             bool activeOnly);

} // namespace kova::family
