#pragma once

#include "family/users/sign_in.hpp"

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QTimer;

namespace kova::screens {
class FieldFrame;
class RefusalLabel;
} // namespace kova::screens

namespace kova::host {

class SecretBox;

/// A name and a secret, which somebody looks at; a wait after wrong tries is counted down.
class SignInForm : public QWidget {
public:
    using Tell = std::function<void(const family::SignInAnswer&)>;
    /// Looks whether they are right. Tells from the event loop, after it has returned.
    using Look = std::function<void(const std::string& name, std::string secret, Tell tell)>;

    /// `names` are proposed, `name` stands there at first. `secret` is the label of the secret's box.
    SignInForm(const std::vector<std::string>& names, const std::string& name, const QString& secret,
               Look look, QWidget* parent);

    std::function<void(const family::SignInAnswer&)> onEntered;
    /// What Enter presses.
    QPushButton& Offered() { return *enter_; }
    /// To where something is to be typed next.
    void FocusNext();

private:
    void LayOut();
    void Connect();
    void Try();
    void ShowAnswer(const family::SignInAnswer& answer);
    void CountDown();
    void Refuse(const QString& text);
    void Offer();
    QString Name() const;

    QComboBox* name_;
    SecretBox* secret_;
    screens::FieldFrame *nameFrame_, *secretFrame_;
    QLabel* capitals_;
    screens::RefusalLabel* refusal_;
    QPushButton* enter_;
    QTimer* everySecond_;
    Look look_;
    bool isLooking_ = false;
    /// What is told, and the seconds that it tells of.
    QString told_;
    long long wait_ = 0, left_ = 0;
};

} // namespace kova::host
