#pragma once

#include "family/registers/description/register.hpp"
#include "registers/desk.hpp"
#include "screens/draft_folder.hpp"

#include <QObject>
#include <QTimer>

#include <optional>

namespace kova::registers {

class RecordForm;

/// Keeps in a draft what is typed into a form and not saved, once the typing rests. What a program has left
/// that ended without a word stays until it is answered.
class FormDraft : public QObject {
public:
    using Register = family::registers::Register;

    FormDraft(const Register& of, const Desk& desk, RecordForm& form);

    /// What an earlier program has left, as long as it was not answered.
    const std::optional<screens::Draft>& Left() const { return left_; }
    /// Answers: puts it into the form with what it showed then, so that what others have changed since is
    /// seen when it is saved. Fails with a DatabaseFailure.
    void Continue();
    /// Takes the draft away; an answer, too.
    void Forget();

    /// To be told when something was typed, saved or undone.
    void Follow();
    /// Writes what is not written yet.
    void WriteNow();

private:
    bool IsKept() const { return desk_.drafts != nullptr; }
    void Write() const;

    const Register& register_;
    const Desk& desk_;
    RecordForm& form_;
    const QString name_;
    QTimer rest_;
    std::optional<screens::Draft> left_;
};

} // namespace kova::registers
