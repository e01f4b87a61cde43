#pragma once

#include "family/history/filter.hpp"
#include "history/desk.hpp"

#include <QWidget>

#include <functional>
#include <optional>
#include <string>

class QComboBox;
class QLineEdit;
class QStringListModel;

namespace kova::screens {
class FieldFrame;
}

namespace kova::history {

/// Whose history is looked at: a kind of thing, and which one.
class SubjectBox : public QWidget {
public:
    SubjectBox(const Desk& desk, QWidget* parent);

    /// Nothing where what is typed names none, which is told below the box. Fails as Database::With.
    std::optional<family::history::Subject> Current();
    /// `called` is what a row of a table is called that people do not look for by a number.
    void Show(const family::history::Subject& subject, const QString& called);
    void Clear();

    /// Raised by the user alone; `isDone` where nothing more is typed.
    std::function<void(bool isDone)> onChanged = [](bool) {};

private:
    void TakeKind();
    void Propose(const QString& text);
    std::optional<family::history::Subject> Read(const std::string& typed, std::string& why);
    std::optional<family::history::Subject> ReadRow(const std::string& typed, std::string& why);

    const Desk& desk_;
    QComboBox* kind_;
    QLineEdit* which_;
    QStringListModel* proposals_;
    screens::FieldFrame* frame_;
    /// The row behind the last entry, where there is one.
    family::history::Subject row_;
};

} // namespace kova::history
