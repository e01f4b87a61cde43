#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kova::host {

/// A shop that was opened at this computer: the path of its file or its address on a server, and the name
/// that its company had then, "" where it had none.
struct RememberedShop {
    std::string source, name;

    bool operator==(const RememberedShop&) const = default;
};

/// The shops that this user has opened last, in a file of settings. What cannot be read counts as empty.
class RememberedShops {
public:
    static constexpr std::size_t Most = 8;

    explicit RememberedShops(std::filesystem::path file) : file_(std::move(file)) { }

    /// The last one first; at most `Most`. None has a password in its address.
    std::vector<RememberedShop> All() const;
    /// Puts it first. False where the file could not be written, and where the address has a password.
    bool Remember(const RememberedShop& shop);
    /// False where the file could not be written.
    bool Forget(const std::string& source);

private:
    bool Write(const std::vector<RememberedShop>& shops);

    std::filesystem::path file_;
};

} // namespace kova::host
