#include "family/data/engine/audit_link.hpp"

#include "agenda/contracts/failure.hpp"

#include <sodium.h>

#include <array>

namespace kova::family {

namespace {

constexpr std::size_t SaltBytes = 8;

std::string Base64(const std::array<unsigned char, crypto_hash_sha256_BYTES>& bytes)
{
    constexpr int Variant = sodium_base64_VARIANT_ORIGINAL_NO_PADDING;
    std::string text(sodium_base64_encoded_len(bytes.size(), Variant), '\0');
    sodium_bin2base64(text.data(), text.size(), bytes.data(), bytes.size(), Variant);
    text.pop_back();
    return text;
}

std::string Hexadecimal(const std::array<unsigned char, SaltBytes>& bytes)
{
    std::string digits(2 * bytes.size() + 1, '\0');
    sodium_bin2hex(digits.data(), digits.size(), bytes.data(), bytes.size());
    digits.pop_back();
    return digits;
}

std::string Part(const std::string& text) { return std::to_string(text.size()) + ":" + text; }
std::string Part(Key number) { return Part(std::to_string(number)); }
std::string Part(const Nullable<std::string>& text) { return text.IsNull() ? "-" : Part(text.value); }

void RequireLibrary()
{
    static const bool isReady = sodium_init() >= 0;
    if (!isReady)
        throw Failure(FailureNumber::OutOfMemory);
}

/// All of it.
std::string SumOf(const std::string& former, const std::string& salt, ChainedLine line)
{
    RequireLibrary();
    std::string content = Part(former) + Part(salt);
    line.Columns([&](const char*, const auto& value) { content += Part(value); });
    std::array<unsigned char, crypto_hash_sha256_BYTES> digest{};
    crypto_hash_sha256(digest.data(), reinterpret_cast<const unsigned char*>(content.data()), content.size());
    return Base64(digest);
}

} // namespace

std::string LinkOf(const std::string& former, const std::string& salt, const ChainedLine& line)
{
    return SumOf(former, salt, line).substr(0, LinkLetters);
}

bool IsLinkOf(const std::string& link, const std::string& former, const std::string& salt,
              const ChainedLine& line)
{
    return link.size() >= LinkLetters && SumOf(former, salt, line).starts_with(link);
}

std::string NewSalt()
{
    RequireLibrary();
    std::array<unsigned char, SaltBytes> bytes{};
    randombytes_buf(bytes.data(), bytes.size());
    return Hexadecimal(bytes);
}

} // namespace kova::family
