#pragma once

#include "family/history/filter.hpp"
#include "history/desk.hpp"

#include <QWidget>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QAbstractItemView;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QTimer;

namespace kova::screens {
class FieldFrame;
class SearchBox;
} // namespace kova::screens

namespace kova::history {

class SubjectBox;

/// What the history is narrowed to.
class FilterBar : public QWidget {
public:
    FilterBar(const Desk& desk, QWidget* parent);

    /// Nothing where something is typed that cannot be read, which is told below it. Fails as Database::With.
    std::optional<family::history::Filter> Current();
    /// Whether anything is narrowed.
    bool IsNarrowed();
    /// Shows that subject, and narrows nothing else.
    void Show(const family::history::Subject& subject, const QString& called);
    void Clear();
    /// Offers to look in the archive as well, which the sentence tells of; not where it is empty.
    void OfferArchive(const QString& told);
    /// Shows whether it is looked in.
    void MarkArchive(bool isIncluded);
    void OfferWriters(const std::vector<std::string>& writers);
    void FocusSearch();
    /// In three rows instead of two.
    void SetNarrow(bool isNarrow);
    /// The arrows in the search walk through that list.
    void WalkThrough(QAbstractItemView& list);

    /// The user has changed something, and pauses.
    std::function<void()> onChanged = [] {};
    /// The user wants the archive, or wants it no more.
    std::function<void(bool isWanted)> onArchive = [](bool) {};

private:
    QComboBox* AddChoice(const char* name);
    QLineEdit* AddDay(const char* name);
    void LayOut();
    void ClearFields();
    void Changed(bool isDone);
    /// "" where none is typed; nothing where it cannot be read.
    static std::optional<std::string> DayIn(const QLineEdit& box, screens::FieldFrame& frame);

    SubjectBox* subject_;
    screens::SearchBox* text_;
    QComboBox *user_, *operation_, *table_;
    QLineEdit *from_, *to_;
    screens::FieldFrame *fromFrame_, *toFrame_;
    QPushButton* clear_;
    QCheckBox* archive_;
    QHBoxLayout *second_, *third_;
    QTimer* pause_;
};

} // namespace kova::history
