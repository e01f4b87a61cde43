#include "family/users/passwords.hpp"

#include "agenda/contracts/failure.hpp"
#include "agenda/contracts/utf8.hpp"

#include <sodium.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace kova::family {

namespace {

constexpr std::size_t ShortestPassword = 8, LongestPassword = 1000;
constexpr std::size_t ShortestPin = 4, LongestPin = 8;

/// Nothing has been found out about the secret, and nothing is kept of it.
[[noreturn]] void FailWithoutMemory()
{
    throw Failure(FailureNumber::OutOfMemory,
                  "A memória do computador acabou, e sem ela uma senha não pode ser conferida nem guardada. "
                  "Feche outros programas e tente novamente.");
}

/// The library wants to be begun once; its answer below 0 is that the system has nothing left for it.
void RequireLibrary()
{
    static const int begun = sodium_init();
    if (begun < 0)
        FailWithoutMemory();
}

/// What is kept of a secret, taken apart.
struct KeptText {
    PasswordCost cost{};
    std::array<unsigned char, crypto_pwhash_SALTBYTES> salt{};
    std::array<unsigned char, 32> hash{};
};

/// What stands before the mark, which goes with it; everything where there is no mark.
std::string_view TakeUntil(std::string_view& text, std::string_view mark)
{
    const std::string_view taken = text.substr(0, text.find(mark));
    text.remove_prefix(std::min(text.size(), taken.size() + mark.size()));
    return taken;
}

/// Whether the text is a number from the least to the most.
template <class Whole> bool ReadNumber(std::string_view text, Whole least, Whole most, Whole& number)
{
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && stop == text.data() + text.size() && number >= least && number <= most;
}

/// Whether the text is exactly as many bytes.
template <std::size_t Size> bool ReadBytes(std::string_view text, std::array<unsigned char, Size>& bytes)
{
    std::size_t size = 0;
    const char* stop = nullptr;
    return sodium_base642bin(bytes.data(), Size, text.data(), text.size(), nullptr, &size, &stop,
                             sodium_base64_VARIANT_ORIGINAL_NO_PADDING)
        == 0
        && size == Size && stop == text.data() + text.size();
}

/// Nothing where the text is none of HashOf's: "$argon2id$v=19$m=65536,t=3,p=1$SALT$HASH", m in kilobytes.
std::optional<KeptText> TakeApart(std::string_view kept)
{
    constexpr std::size_t Kilobyte = 1024;
    KeptText text;
    if (TakeUntil(kept, "m=") != crypto_pwhash_STRPREFIX "v=19$")
        return {};
    const std::string_view memory = TakeUntil(kept, ",t="), passes = TakeUntil(kept, ",p=1$"),
                           salt = TakeUntil(kept, "$");
    if (!ReadNumber<std::size_t>(memory, crypto_pwhash_MEMLIMIT_MIN / Kilobyte,
                                 crypto_pwhash_MEMLIMIT_MAX / Kilobyte, text.cost.bytes)
        || !ReadNumber<unsigned long long>(passes, crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_OPSLIMIT_MAX,
                                           text.cost.passes)
        || !ReadBytes(salt, text.salt) || !ReadBytes(kept, text.hash))
        return {};
    text.cost.bytes *= Kilobyte;
    return text;
}

std::size_t CountCharacters(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += utf8::SequenceLength(text, at))
        ++count;
    return count;
}

/// Whether there are neither control characters nor bytes that are none.
bool IsTypeable(std::string_view text)
{
    for (std::size_t at = 0; at < text.size(); at += utf8::SequenceLength(text, at)) {
        const auto first = static_cast<unsigned char>(text[at]);
        if (utf8::SequenceLength(text, at) == 1 && (first < 0x20 || first >= 0x7F))
            return false;
    }
    return true;
}

bool IsOneCharacter(std::string_view text)
{
    return std::ranges::all_of(text, [&](char letter) { return letter == text.front(); });
}

/// "1234", "4321"
bool IsStaircase(std::string_view text)
{
    for (const int step : {1, -1}) {
        const auto breaks =
            std::ranges::adjacent_find(text, [step](char one, char next) { return next - one != step; });
        if (breaks == text.end())
            return true;
    }
    return false;
}

} // namespace

Secret::Secret(std::string& typed) : text_(typed)
{
    sodium_memzero(typed.data(), typed.size());
    typed.clear();
}

Secret::~Secret() { sodium_memzero(text_.data(), text_.size()); }

std::string HashOf(const Secret& secret, const PasswordCost& cost)
{
    RequireLibrary();
    std::array<char, crypto_pwhash_STRBYTES> kept{};
    if (crypto_pwhash_str_alg(kept.data(), secret.Text().data(), secret.Text().size(), cost.passes,
                              cost.bytes, crypto_pwhash_ALG_ARGON2ID13)
        != 0)
        FailWithoutMemory();
    return kept.data();
}

// The library can compare, too, but tells a secret that does not fit from memory that is not there by
// nothing.
bool IsHashOf(const std::string& kept, const Secret& secret)
{
    RequireLibrary();
    const auto text = TakeApart(kept);
    if (!text)
        return false;
    std::array<unsigned char, std::tuple_size_v<decltype(text->hash)>> hash{};
    if (crypto_pwhash(hash.data(), hash.size(), secret.Text().data(), secret.Text().size(), text->salt.data(),
                      text->cost.passes, text->cost.bytes, crypto_pwhash_ALG_ARGON2ID13)
        != 0)
        FailWithoutMemory();
    return sodium_memcmp(hash.data(), text->hash.data(), hash.size()) == 0;
}

bool IsOutdated(const std::string& kept, const PasswordCost& cost)
{
    RequireLibrary();
    return crypto_pwhash_str_needs_rehash(kept.c_str(), cost.passes, cost.bytes) != 0;
}

std::string ObjectionToPassword(const Secret& password)
{
    const std::size_t length = CountCharacters(password.Text());
    if (!IsTypeable(password.Text()))
        return "A senha só pode ter caracteres que se digitam.";
    if (length < ShortestPassword)
        return "A senha precisa ter pelo menos " + std::to_string(ShortestPassword) + " caracteres.";
    if (length > LongestPassword)
        return "A senha pode ter até " + std::to_string(LongestPassword) + " caracteres.";
    if (IsOneCharacter(password.Text()))
        return "A senha não pode ser um só caractere repetido.";
    return {};
}

std::string ObjectionToPin(const Secret& pin)
{
    const std::string_view text = pin.Text();
    const bool isOfDigits =
        std::ranges::all_of(text, [](char letter) { return letter >= '0' && letter <= '9'; });
    if (!isOfDigits || text.size() < ShortestPin || text.size() > LongestPin)
        return "O PIN precisa ter de " + std::to_string(ShortestPin) + " a " + std::to_string(LongestPin)
            + " algarismos.";
    if (IsOneCharacter(text) || IsStaircase(text))
        return "O PIN é fácil demais de adivinhar. Escolha outro.";
    return {};
}

std::string DigestOf(std::string_view text)
{
    RequireLibrary();
    std::array<unsigned char, crypto_generichash_BYTES_MIN> digest{};
    std::array<char, 2 * crypto_generichash_BYTES_MIN + 1> digits{};
    crypto_generichash(digest.data(), digest.size(), reinterpret_cast<const unsigned char*>(text.data()),
                       text.size(), nullptr, 0);
    sodium_bin2hex(digits.data(), digits.size(), digest.data(), digest.size());
    return digits.data();
}

} // namespace kova::family
