#pragma once

#include <QString>
#include <QWidget>

namespace kova::screens {

class RefusalLabel;

/// Of a box of one line, and the room on each side of its text.
inline constexpr int BoxHeight = 32;
inline constexpr int RoomBesideText = 6;

/// A field with its label above it and, where what it holds cannot stand, the reason below it.
class FieldFrame : public QWidget {
public:
    /// `label` may mark a letter with "&": Alt with it leads to the editor, which becomes a child of the
    /// frame and is called by the label for those who cannot see it. A required field says so in both.
    FieldFrame(const QString& label, QWidget* editor, QWidget* parent, bool isRequired = false);

    QWidget& Editor() { return *editor_; }

    /// Shown below the editor until "" takes it away.
    void Refuse(const QString& reason);
    bool IsRefused() const;

private:
    QWidget* editor_;
    RefusalLabel* reason_;
};

/// A label's text without the mark of its letter.
QString WithoutMnemonic(const QString& label);

} // namespace kova::screens
