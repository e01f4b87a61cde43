#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/privacy/person_data.hpp"

#include <string>
#include <vector>

namespace kova::family::privacy {

/// A value with its name, as people read both; with parts in the place of a text it is a list of its own.
struct ReportEntry {
    std::string label, text;
    std::vector<ReportEntry> parts{};
    bool hasParts = false;
};

using ReportRecord = std::vector<ReportEntry>;

struct ReportGroup {
    std::string title;
    /// What has to be said before; may be empty.
    std::string note;
    std::vector<ReportRecord> records;
};

/// Everything about a person in words.
struct PersonReport {
    /// "Dados da pessoa: cliente 10"
    std::string title;
    /// The shop, when this was made, whose data these are. The first group is the customer's register.
    ReportRecord heading;
    std::vector<ReportGroup> groups;
};

/// `now` is when the person's data were read.
PersonReport InWords(const PersonData& data, DateTime now);

/// A page to be read and printed, in UTF-8. It stands for itself and refers to nothing else.
std::string PageOf(const PersonReport& report);
/// The same as JSON in UTF-8. A key is its label without accents, in lower case, with '_' between words:
/// "Tipo de pessoa" is "tipo_de_pessoa". All values are texts; every group is a list of objects.
std::string JsonOf(const PersonReport& report);

} // namespace kova::family::privacy
