#include "family/data/engine/secrets_in_text.hpp"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <string_view>

namespace kova::family {

namespace {

constexpr std::string_view Hidden = "***";
constexpr std::string_view SecretKeywords[] = {"sslpassword", "password"};

bool IsBlank(char letter) { return letter == ' ' || letter == '\t'; }
bool IsLineEnd(char letter) { return letter == '\r' || letter == '\n'; }

/// A letter as an address may write it: itself, or "%" and its number in two hexadecimal digits.
struct Letter {
    char letter = 0;
    std::size_t width = 0;
};

Letter LetterAt(std::string_view text, std::size_t at)
{
    constexpr std::size_t Encoded = 3;
    constexpr int Base = 16;
    unsigned code = 0;
    if (text[at] == '%' && at + Encoded <= text.size()) {
        const char* const end = text.data() + at + Encoded;
        const auto read = std::from_chars(text.data() + at + 1, end, code, Base);
        if (read.ec == std::errc() && read.ptr == end)
            return {static_cast<char>(code), Encoded};
    }
    return {text[at], 1};
}

/// Where the keyword ends that begins there; `at` itself where it does not.
std::size_t EndOfKeyword(std::string_view text, std::size_t at, std::string_view keyword)
{
    std::size_t next = at;
    for (const char expected : keyword) {
        if (next >= text.size())
            return at;
        const Letter found = LetterAt(text, next);
        if (std::tolower(static_cast<unsigned char>(found.letter)) != expected)
            return at;
        next += found.width;
    }
    return next;
}

std::size_t SkipBlanks(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsBlank(text[at]))
        ++at;
    return at;
}

/// Where the value begins of a keyword that keeps a secret and begins there; `at` itself where none does.
std::size_t BeginOfSecret(std::string_view text, std::size_t at)
{
    for (const std::string_view keyword : SecretKeywords) {
        const std::size_t end = EndOfKeyword(text, at, keyword);
        const std::size_t sign = SkipBlanks(text, end);
        if (end > at && sign < text.size() && text[sign] == '=')
            return SkipBlanks(text, sign + 1);
    }
    return at;
}

/// Behind a value in quotes, or to the end where they are not closed.
std::size_t EndOfQuoted(std::string_view text, std::size_t at)
{
    for (++at; at < text.size(); ++at) {
        if (text[at] == '\\')
            ++at;
        else if (text[at] == '\'')
            return at + 1;
    }
    return text.size();
}

/// Whether what follows begins another part of an address: "&user=...", " user=...".
bool BeginsPart(std::string_view text, std::size_t at)
{
    if (text[at] == '&')
        return true;
    std::size_t next = SkipBlanks(text, at);
    const std::size_t word = next;
    while (next < text.size()
           && (std::isalpha(static_cast<unsigned char>(text[next])) != 0 || text[next] == '_'))
        ++next;
    next = SkipBlanks(text, next);
    return word > at && next > word && next < text.size() && text[next] == '=';
}

/// A secret goes on over blanks and quotes: whoever writes one that is not as it should be has no other.
std::size_t EndOfSecret(std::string_view text, std::size_t at)
{
    if (at < text.size() && text[at] == '\'')
        return EndOfQuoted(text, at);
    // What closes the address in a sentence stands last of its kind in the line.
    std::size_t end = at;
    while (end < text.size() && !IsLineEnd(text[end]) && !BeginsPart(text, end))
        ++end;
    const std::size_t quote = text.substr(0, end).rfind('"');
    return quote != std::string_view::npos && quote >= at ? quote : end;
}

/// Hides "name:password@" behind every "//".
std::string WithoutUsersSecrets(std::string_view text)
{
    std::string shown;
    for (;;) {
        const std::size_t slashes = text.find("//");
        if (slashes == std::string_view::npos)
            return shown.append(text);
        const std::size_t begin = slashes + 2;
        const std::size_t line = std::min(text.find_first_of("\r\n", begin), text.size());
        const std::size_t end = text.substr(0, line).rfind('@');
        const std::size_t colon = text.find(':', begin);
        const bool isThere = end != std::string_view::npos && end >= begin && colon < end;
        shown.append(text.substr(0, isThere ? colon + 1 : begin));
        if (isThere)
            shown.append(Hidden);
        text.remove_prefix(isThere ? end : begin);
    }
}

} // namespace

std::string WithoutSecrets(const std::string& text)
{
    const std::string users = WithoutUsersSecrets(text);
    std::string shown;
    for (std::size_t at = 0; at < users.size();) {
        const std::size_t begin = BeginOfSecret(users, at);
        if (begin == at) {
            shown += users[at++];
            continue;
        }
        const std::size_t end = EndOfSecret(users, begin);
        shown.append(users, at, begin - at).append(end > begin ? Hidden : std::string_view());
        at = end;
    }
    return shown;
}

} // namespace kova::family
