#pragma once

#include "host/first_start/source_trial.hpp"

#include <QWidget>

#include <functional>
#include <string>

class QLabel;
class QLineEdit;
class QPushButton;

namespace kova::screens {
class FieldFrame;
}

namespace kova::host {

/// Where a shop lies that is there already: a file, or a server's address, which is tried before it is taken.
class ExistingShopPage : public QWidget {
public:
    ExistingShopPage(SourceTrial::Look look, QWidget* parent);

    std::function<void()> onBack;
    /// What Enter presses.
    QPushButton& Offered() { return *open_; }
    /// The shop can be opened.
    std::function<void(const std::string& source)> onChosen;

private:
    std::string Source() const;
    void ChooseFile();
    void Try(bool thenOpen);
    void ShowOutcome(const SourceTrial::Refusal& refusal, const std::string& source, bool thenOpen);
    void Offer(bool isOffered);

    QLineEdit* source_;
    screens::FieldFrame* frame_;
    QLabel* outcome_;
    QPushButton *browse_, *try_, *open_;
    SourceTrial* trial_;
};

} // namespace kova::host
