#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kova::family::registers {

/// What a field holds, and so how it is typed and shown.
enum class FieldKind {
    /// The row's own number, given by the database.
    Code,
    Text,
    WholeNumber,
    /// "1.234,56"
    Money,
    /// "Sim" or "Não"
    YesNo,
    /// One of a few words.
    Choice,
    /// "dd/mm/yyyy"
    Date,
    /// "dd/mm" of every year, or "dd/mm/yyyy".
    DayOrDate,
    /// "hh:mm"
    Time,
    /// "dd/mm/yyyy hh:mm:ss"
    Moment,
    /// A row of another register, by its code or by its name; see Register::Offers.
    Reference,
    /// The number of a person or a company.
    Document,
    /// "01234-567"
    PostalCode,
    /// Two letters.
    State,
    /// "Celular: (11) 91234-5678; E-mail: ze@example.com"
    Channels,
};

/// What there is to know of a field: for forms, files and checks alike.
struct FieldInfo {
    /// As files call it, and forms too where `asked` is empty.
    std::string_view label;
    /// As a form asks for it: for "Cliente", where a file has his code.
    std::string_view asked{};
    FieldKind kind = FieldKind::Text;
    /// Most characters that it can have.
    std::size_t longest = 0;
    /// Of a whole number.
    long long least = 0, most = 0;
    /// The words of a choice or of a state, as they are written.
    std::vector<std::string_view> choices;
    bool required = false;
    /// No two rows have the same; where it is not the field alone, `help` says what with.
    bool unique = false;
    /// Changed, taken over and refused together with the field before it.
    bool withFormer = false;
    /// The name of the register that it refers to.
    std::string_view refersTo;
    /// One sentence for whoever fills it in; may be empty.
    std::string_view help;
    /// The columns of the table that keep it.
    std::vector<std::string> stored;
};

/// What a form calls the field.
inline std::string_view FormLabel(const FieldInfo& field)
{
    return field.asked.empty() ? field.label : field.asked;
}

/// One text for each field, as a form shows it.
using Texts = std::vector<std::string>;

/// Why a text cannot be taken, as a sentence of its own: "não é um CEP." becomes "Não é um CEP.".
std::string Sentence(std::string_view why);

} // namespace kova::family::registers
