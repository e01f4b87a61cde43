#pragma once

#include <QString>

namespace kova::test {

/// Whether Qt says no more than that the offscreen platform has no window manager.
inline bool IsRemarkOfThePlatform(const QString& text)
{
    for (const char* lack : {"propagateSizeHints", "support raise()", "support grabbing the keyboard",
                             "support setting window masks"}) {
        if (text.contains(QLatin1String(lack)))
            return true;
    }
    return false;
}

} // namespace kova::test
