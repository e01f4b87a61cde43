#pragma once

#include <QLabel>

namespace kova::screens {

/// A label for reasons why something cannot stand, in their colour on any ground, in as many lines as they
/// need;
/// "" hides it.
class RefusalLabel : public QLabel {
public:
    explicit RefusalLabel(QWidget* parent);

    void Show(const QString& reason);
    /// The same, and a body that scrolls brings it into sight.
    void Tell(const QString& reason);
};

/// Gives a label that colour.
void ColourAsRefusal(QLabel& label);

} // namespace kova::screens
