#pragma once

#include <filesystem>
#include <string>

namespace kova::host {

/// What this computer keeps for its user of who signs in, shop by shop, in a file of settings: no password,
/// and nothing that one could be guessed from. What cannot be read counts as empty; what cannot be written is
/// asked for again the next time.
class KeptEntries {
public:
    explicit KeptEntries(std::filesystem::path file) : file_(std::move(file)) { }

    /// The name that was signed in with last; "" where none was.
    std::string LastName(const std::string& source) const;
    void SetLastName(const std::string& source, const std::string& name) const;

    /// By which nobody is asked (family/users/kept_sign_in.hpp); "" where somebody is.
    std::string Token(const std::string& source) const;
    /// "" forgets it.
    void SetToken(const std::string& source, const std::string& token) const;

private:
    std::string Read(const std::string& source, const char* key) const;
    void Write(const std::string& source, const char* key, const std::string& text) const;

    std::filesystem::path file_;
};

} // namespace kova::host
