#pragma once

#include "agenda/contracts/widgets/form.hpp"

#include <optional>
#include <vector>

namespace kova::toolkit {

class MenuModel;

/// What the frame and title bar of a bordered form add to its inner area, in twips; the same on every
/// screen, so that layouts come out the same. A form without border, or inside a container, has none.
inline constexpr Twips FrameWidth = 90;
inline constexpr Twips FrameHeight = 435;

struct InnerSize {
    Twips width = 0;
    Twips height = 0;
};

enum class FormAspect { Caption, Geometry, Enabled };

/// The window that a screen toolkit gives a form. The model decides; the window shows, and tells the
/// model what the user does: FormModel::UserCloses, UserResizes, UserPressesKey.
class FormWindow {
public:
    virtual ~FormWindow() = default;

    /// Never 0.
    virtual Long Handle() const = 0;
    /// Becomes a child of the container with that handle and answers its inner area; nothing where there
    /// is no such window. From then on the container's changes of size come as UserResizes.
    virtual std::optional<InnerSize> SetParent(Long containerHandle) = 0;
    virtual void Update(FormAspect aspect) = 0;

    /// Also brings a window that is shown already to the front. A modal one is shown here and run by
    /// RunModal.
    virtual void Show(ShowMode mode) = 0;
    virtual void Hide() = 0;
    /// The form was unloaded: the window goes away for good. The object itself is destroyed later.
    virtual void Remove() = 0;
    /// Runs the event loop until EndModal has been called and the event on the stack has ended. Loops
    /// nest; each form has at most one.
    virtual void RunModal() = 0;
    virtual void EndModal() = 0;
    /// No widget has the focus: the screen's own goes to the window.
    virtual void TakeFocus() = 0;
    /// Paints now.
    virtual void Refresh() = 0;
    /// Shows the entries at a place of the inner area and waits; null where the user chose none. Entries
    /// come in design order, visible ones only; the answer must be choosable.
    virtual MenuModel* PopupMenu(MenuModel& parent, const std::vector<MenuModel*>& entries, Twips x,
                                 Twips y) = 0;
};

} // namespace kova::toolkit
