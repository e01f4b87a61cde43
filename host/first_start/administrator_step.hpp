#pragma once

#include "host/first_start/new_shop_step.hpp"

#include <string>

namespace kova::screens {
class FieldFrame;
}

namespace kova::host {

class SecretFields;

/// Who administers the shop and its users: a name, a password, and a PIN for those who want one.
class AdministratorStep : public NewShopStep {
public:
    /// `user` is proposed as the name.
    AdministratorStep(const std::string& user, QWidget* parent);

    bool Accepts() override;
    /// Takes the time that keeping a password costs.
    void Fill(family::NewShop& shop) const override;

private:
    std::string Name() const;

    screens::FieldFrame* name_ = nullptr;
    SecretFields* secrets_ = nullptr;
};

} // namespace kova::host
