#pragma once

#include <QList>
#include <QString>

#include <memory>
#include <optional>

class QLockFile;

namespace kova::screens {

/// What is typed into a form and not saved.
struct Draft {
    struct Field {
        QString label;
        /// What the form showed when it was opened, and what is typed there.
        QString before, typed;

        bool operator==(const Field&) const = default;
    };

    /// Of the row; 0 for a new one.
    qint64 key = 0;
    QList<Field> fields;

    bool operator==(const Draft&) const = default;
};

/// The drafts of a shop's forms: files that only their owner can read, so that what is typed outlives the
/// program. Each running program has a place of its own in the folder; what one that is gone has left is
/// found by the next.
class DraftFolder {
public:
    /// Made where it is missing. Where that is impossible no draft is kept.
    explicit DraftFolder(const QString& folder);
    ~DraftFolder();
    DraftFolder(const DraftFolder&) = delete;
    DraftFolder& operator=(const DraftFolder&) = delete;

    /// Nothing where there is none, or none that can be read.
    std::optional<Draft> Read(const QString& name) const;
    /// In the place of the one before; whole, or not at all. False where it could not be written.
    bool Write(const QString& name, const Draft& draft) const;
    void Remove(const QString& name) const;

private:
    QString FileOf(const QString& name) const { return place_ + QLatin1Char('/') + name; }

    /// "" where there is none.
    QString place_;
    std::unique_ptr<QLockFile> lock_;
};

} // namespace kova::screens
