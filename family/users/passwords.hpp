#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kova::family {

/// A typed password or PIN, whose memory is wiped when it goes. Any bytes.
class Secret {
public:
    /// Wipes the text that it takes.
    explicit Secret(std::string& typed);
    explicit Secret(std::string&& typed) : Secret(typed) { }
    ~Secret();
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;

    std::string_view Text() const { return text_; }
    bool IsEmpty() const { return text_.empty(); }

private:
    std::string text_;
};

/// What one try costs whoever knows the password, and whoever guesses.
struct PasswordCost {
    unsigned long long passes;
    std::size_t bytes;
};

/// About a tenth of a second at a front desk.
inline constexpr PasswordCost FrontDeskCost{3, std::size_t{64} << 20U};

/// What is kept of a secret: Argon2id's text with its salt and cost. Fails with 7 where there is not the
/// memory for it.
std::string HashOf(const Secret& secret, const PasswordCost& cost);

/// Whether the kept text was made of that secret. False where it is none of HashOf's. Fails with 7 where
/// there is not the memory to find out.
bool IsHashOf(const std::string& kept, const Secret& secret);

/// Whether the kept text was made at another cost, and is to be made anew when the secret is at hand.
bool IsOutdated(const std::string& kept, const PasswordCost& cost);

/// Why somebody cannot have that password; a sentence, empty where it will do.
std::string ObjectionToPassword(const Secret& password);

/// The same of a PIN, which is short: it is typed at a desk that is shared.
std::string ObjectionToPin(const Secret& pin);

/// A short text that tells the same secret or name again and says nothing about it; letters and digits.
std::string DigestOf(std::string_view text);

} // namespace kova::family
