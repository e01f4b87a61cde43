#pragma once

#include <QWidget>

#include <functional>
#include <string>

class QLineEdit;
class QPushButton;

namespace kova::family {
struct NewShop;
}

namespace kova::screens {
class FieldFrame;
class RefusalLabel;
} // namespace kova::screens

namespace kova::host {

/// Everything that a shop needs to begin: its company, who works in it, and where its file lies.
class NewShopPage : public QWidget {
public:
    struct Beginning {
        /// Proposed as the user's name and as the first employee's.
        std::string user;
        /// The folder that is proposed for the file.
        std::string documents;
    };

    NewShopPage(const Beginning& beginning, QWidget* parent);

    std::function<void()> onBack;
    /// What Enter presses.
    QPushButton& Offered() { return *make_; }
    /// The shop was made and lies there.
    std::function<void(const std::string& source)> onMade;

private:
    screens::FieldFrame* AddField(const QString& name, const QString& label, int longest, bool isRequired);
    void Propose(const Beginning& beginning);
    void ProposeFile();
    void ChooseFile();
    bool AcceptsFields();
    family::NewShop Shop() const;
    void Make();

    std::string documents_;
    screens::FieldFrame *tradeName_, *legalName_, *document_, *phone_, *address_, *user_, *nickname_,
        *employee_, *file_;
    bool fileIsChosen_ = false;
    screens::RefusalLabel* failure_;
    QPushButton* make_;
};

} // namespace kova::host
