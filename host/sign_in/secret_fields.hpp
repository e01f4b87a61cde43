#pragma once

#include "family/users/passwords.hpp"

#include <QWidget>

#include <memory>

class QLabel;

namespace kova::screens {
class FieldFrame;
}

namespace kova::host {

class SecretBox;

/// A new password and a new PIN, typed twice each.
class SecretFields : public QWidget {
public:
    enum class Password { Required, Optional };

    SecretFields(Password password, QWidget* parent);

    /// Marks what will not do and leads to the first of it. False where there is any.
    bool Accepts();
    /// The password is there already.
    void AskOnlyForPin();
    /// Tells below the fields that the key for capitals is down while somebody types there.
    void WatchCapitals(SecretBox& box);
    /// What is typed; null where nothing is.
    std::unique_ptr<family::Secret> NewPassword() const;
    std::unique_ptr<family::Secret> NewPin() const;

private:
    struct Pair {
        SecretBox *first, *second;
        screens::FieldFrame *firstFrame, *secondFrame;
    };

    Pair AddPair(const QString& name, const QString& label, const QString& again, bool isRequired);
    using Objection = std::string (*)(const family::Secret&);
    static bool AcceptsPair(const Pair& pair, bool isRequired, Objection objection, const QString& differs);

    Password password_;
    Pair passwords_, pins_;
    QLabel* capitals_;
};

} // namespace kova::host
