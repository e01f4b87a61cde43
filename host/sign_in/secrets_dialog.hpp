#pragma once

#include "host/sign_in/secret_fields.hpp"

#include <QDialog>

#include <functional>
#include <optional>

class QCheckBox;
class QLineEdit;
class QVBoxLayout;

namespace kova::screens {
class FieldFrame;
class RefusalLabel;
} // namespace kova::screens

namespace kova::host {

/// Asks for a new password or PIN, and has it saved.
class SecretsDialog : public QDialog {
public:
    struct Question {
        QString title{}, explanation{};
        SecretFields::Password password = SecretFields::Password::Optional;
        /// Whether the password of today is asked for first.
        bool asksForCurrent = false;
        /// Whether the PIN may be taken away.
        bool mayRemovePin = false;
        /// Stands at first in the box for the name, which is asked for where there is one.
        std::optional<std::string> name{};
    };

    struct Typed {
        std::string name;
        /// Null where none was asked for, or typed.
        std::unique_ptr<family::Secret> current, password, pin;
        bool removesPin = false;
    };

    /// Why it was not saved, as sentences; "" where it was. A DatabaseFailure that comes out of it is shown.
    using Save = std::function<std::string(const Typed& typed)>;

    SecretsDialog(const Question& question, Save save, QWidget* parent);

    /// The name and the password are saved: what is left is the PIN, which one may do without.
    void AskOnlyForPin();

private:
    void AddFields(const Question& question, QVBoxLayout& layout);
    bool Accepts();
    Typed Read() const;
    void Try();

    Save save_;
    /// Null where they are not asked for.
    screens::FieldFrame *name_ = nullptr, *current_ = nullptr;
    SecretFields* secrets_ = nullptr;
    QCheckBox* removesPin_;
    screens::RefusalLabel* failure_;
};

} // namespace kova::host
