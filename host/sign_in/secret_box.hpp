#pragma once

#include <QLineEdit>

#include <functional>
#include <string>

namespace kova::host {

/// A line that shows nothing of what is typed into it.
class SecretBox : public QLineEdit {
public:
    explicit SecretBox(const QString& name, QWidget* parent = nullptr);

    /// What is typed, and empties the box.
    std::string Take();
    /// A letter has come as the key for capitals would write it: whether it is down.
    std::function<void(bool isDown)> onCapitals = [](bool) {};

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace kova::host
