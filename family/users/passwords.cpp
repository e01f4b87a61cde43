#include "family/users/passwords.hpp"

#include "agenda/contracts/failure.hpp"
#include "agenda/contracts/utf8.hpp"

#include <sodium.h>

#include <algorithm>
#include <array>

namespace kova::family {

namespace {

constexpr std::size_t ShortestPassword = 8, LongestPassword = 1000;
constexpr std::size_t ShortestPin = 4, LongestPin = 8;

/// The library wants to be begun once; its answer below 0 is that it cannot work here.
void RequireLibrary()
{
    static const int begun = sodium_init();
    if (begun < 0)
        throw Failure(FailureNumber::OutOfMemory,
                      "O programa não consegue proteger senhas neste computador.");
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
        throw Failure(FailureNumber::OutOfMemory);
    return kept.data();
}

// The library reads the kept text up to its end mark: one that holds such a mark is none of ours.
bool IsHashOf(const std::string& kept, const Secret& secret)
{
    RequireLibrary();
    return kept.starts_with(crypto_pwhash_STRPREFIX) && kept.find('\0') == std::string::npos
        && crypto_pwhash_str_verify(kept.c_str(), secret.Text().data(), secret.Text().size()) == 0;
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
