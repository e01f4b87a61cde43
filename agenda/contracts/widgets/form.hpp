#pragma once

#include "agenda/contracts/widgets/menu.hpp"
#include "agenda/contracts/widgets/widget.hpp"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace kova {

/// How Form::Show returns.
enum class ShowMode { Modeless, Modal };

/// A form: its window and all its widgets. A toolkit's form keeps its widgets until the last reference
/// to it is dropped, also after Unload, so a handler that unloads its own form ends safely.
class Form {
public:
    virtual ~Form() = default;

    virtual Text Name() const = 0;
    virtual Text Caption() const = 0;
    virtual void Caption(const Text&) = 0;

    virtual bool Visible() const = 0;
    /// A disabled form and all in it take no input of the user; events from code go on.
    virtual bool Enabled() const = 0;
    virtual void Enabled(bool) = 0;

    /// Outer place and size, in twips. A write of another size raises Resize inside the call once the
    /// form has been shown. A negative size is failure 380. A form of size 0 is off the screen until it is
    /// given its size again: it stays Visible, and a modal Show of it goes on.
    virtual Twips Left() const = 0;
    virtual void Left(Twips) = 0;
    virtual Twips Top() const = 0;
    virtual void Top(Twips) = 0;
    virtual Twips Width() const = 0;
    virtual void Width(Twips) = 0;
    virtual Twips Height() const = 0;
    virtual void Height(Twips) = 0;
    /// The inner area. ScaleLeft and ScaleTop are 0.
    virtual Twips ScaleLeft() const = 0;
    virtual Twips ScaleTop() const = 0;
    virtual Twips ScaleWidth() const = 0;
    virtual Twips ScaleHeight() const = 0;

    /// The handle by which platform services reach the form's window.
    virtual Long Handle() const = 0;
    /// Makes the form a child of the container with that handle: it fills the container's inner area
    /// and follows its size. Fails with 5 where there is no such window.
    virtual void SetParent(Long containerHandle) = 0;

    /// Raises Load once in the form's life. Show does it too.
    virtual void Load() = 0;
    /// Shows the form. The first Show raises Load, Resize and Activate, in this order, before the user
    /// can do anything. A modal Show runs the event loop and returns when the form has been hidden or
    /// unloaded; the forms below take no input meanwhile.
    virtual void Show(ShowMode) = 0;
    /// Hides the form; a modal Show returns once the handler on the stack has ended. Members stay
    /// readable.
    virtual void Hide() = 0;
    /// Raises Unload and, unless a handler cancels, removes the window and drops all handlers. A modal
    /// Show returns. Unloading again does nothing. Answers whether the form is unloaded.
    virtual bool Unload() = 0;
    virtual bool IsLoaded() const = 0;
    /// Paints the form now, outside the event loop.
    virtual void Refresh() = 0;

    /// All widgets in the order of the design, then those made at run time.
    virtual std::vector<Widget*> Controls() const = 0;
    /// The widget of that name; -1 is a widget without an index. Fails with 438 where there is none.
    virtual Widget& Control(std::string_view name, int index = -1) const = 0;
    /// Makes a widget at run time, hidden, at the form's origin. Fails with 380 where the name is
    /// taken.
    virtual Widget& Add(WidgetKind kind, std::string_view name) = 0;

    /// Shows the visible entries below a parent at a place of the inner area, and waits. Returns after
    /// the Click of the chosen entry has run, or after the user has chosen none.
    virtual void PopupMenu(Menu& parent, Twips x, Twips y) = 0;

    virtual void OnLoad(Handler) = 0;
    virtual void OnActivate(Handler) = 0;
    virtual void OnResize(Handler) = 0;
    /// The handler may set the flag to keep the form.
    virtual void OnUnload(std::function<void(bool& cancel)>) = 0;

    /// The object whose procedures the events call. It is kept alive while one of them runs.
    virtual void Owner(std::weak_ptr<void>) = 0;
};

using FormRef = std::shared_ptr<Form>;

/// Binds a named control of a form's design. Fails with 438 where there is none of that name, with 13
/// where it is of another kind.
template <class Kind> Kind& Bind(const FormRef& form, std::string_view name, int index = -1)
{
    if (auto* widget = As<Kind>(form->Control(name, index)))
        return *widget;
    throw Failure(FailureNumber::TypeMismatch);
}

} // namespace kova
