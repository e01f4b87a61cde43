#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/reports.hpp"
#include "agenda/contracts/widgets.hpp"

#include <string>

namespace kova {

/// The only source of date and time for the module and the components.
class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime Now() const = 0;
    /// Seconds since midnight, with their fraction.
    virtual Double Timer() const = 0;
    /// Whether it is this computer's own, which may be wrong: a server's clock goes before it. False of one
    /// that was set on purpose.
    virtual bool IsComputersOwn() const { return false; }
};

/// The settings file: sections in brackets, lines "key=value". Names of sections and keys ignore case.
class Profile {
public:
    virtual ~Profile() = default;
    /// At most `size` - 1 characters of the value; `defaultValue` where file, section or key is
    /// missing. Never fails.
    virtual Text Read(const Text& section, const Text& key, const Text& defaultValue, Integer size,
                      const Text& path) const = 0;
    /// False where the file cannot be written; nothing is reported.
    virtual bool Write(const Text& section, const Text& key, const Text& value, const Text& path) = 0;
};

enum class MessageKind {
    /// One button, information icon.
    Information,
    /// One button, stop icon.
    Critical,
    /// Yes and No, question icon; No is the default and what closing the box answers.
    Question,
    /// One button, no icon.
    Plain,
};
enum class Reply { Ok, Yes, No };

/// What a screen toolkit gives beyond its forms. One thread.
class Toolkit {
public:
    virtual ~Toolkit() = default;

    /// Makes a form and its controls as designed, hidden. Fails with 380 on a design that names a
    /// control twice or a container that it does not have.
    virtual FormRef CreateForm(const FormDesign& design) = 0;
    /// Makes a report as designed, hidden and without data. Fails with 380 on a design that names a section
    /// or a control twice, or has two sections of a kind.
    virtual ReportRef CreateReport(const ReportDesign& design) = 0;

    /// Runs the event loop until the user has answered. Line breaks are "\r\n".
    virtual Reply MessageBox(MessageKind kind, const Text& text, const Text& title) = 0;
    /// Sends keys to the widget that has the focus. "+({HOME})" selects from the caret back to the
    /// start; other sequences fail with 5.
    virtual void SendKeys(const Text& keys) = 0;

    /// Takes the events that are waiting; where none is, may wait a few milliseconds for one, so that
    /// a loop around it does not burn the processor.
    virtual void ProcessPendingEvents() = 0;
    /// Tells that a loop around ProcessPendingEvents lasts until that many seconds have passed, and
    /// that it has ended: a clock that stands still moves by them.
    virtual void PauseBegins(Double seconds) = 0;
    virtual void PauseEnds() = 0;

    /// Width of the screen in twips, and the twips of one of its pixels.
    virtual Twips ScreenWidth() const = 0;
    virtual Twips TwipsPerPixelX() const = 0;

    /// Rounds the corners of a window: a rectangle of the window's inner size with a corner ellipse of
    /// that width and height in pixels, then a repaint. A handle without a window is ignored.
    virtual void SetRoundRectRegion(Long handle, int ellipseWidth, int ellipseHeight) = 0;
};

/// What a host hands to the module before the first object is made. The module reaches the clock, the
/// file system, the screen and other components through it and through nothing else.
class Platform {
public:
    virtual ~Platform() = default;

    virtual ComponentService& Components() = 0;
    virtual kova::Toolkit& Toolkit() = 0;
    virtual kova::Clock& Clock() = 0;
    virtual kova::Profile& Profile() = 0;
    /// Folder of the settings file, without a separator at the end, and the file's name without its
    /// ending.
    virtual Text SettingsFolder() const = 0;
    virtual Text SettingsTitle() const = 0;
};

} // namespace kova
