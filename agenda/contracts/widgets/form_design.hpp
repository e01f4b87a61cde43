#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <string>
#include <vector>

namespace kova {

/// Design values of one control: data, no behaviour. A member that the kind does not have is ignored;
/// -1 as a colour is the kind's own.
struct ControlDesign {
    WidgetKind kind = WidgetKind::Label;
    std::string name = {};
    int index = -1;
    /// Name of the picture box or parent menu that holds the control; "" is the form.
    std::string container = {};
    Twips left = 0;
    Twips top = 0;
    /// 0 in both directions takes the kind's usual size.
    Twips width = 0;
    Twips height = 0;
    /// Caption of labels, buttons, boxes and menus; the title of a find box. In a label that names a control,
    /// "&" marks the letter that leads there and is no part of the caption.
    std::string caption = {};
    std::string text = {};
    bool visible = true;
    bool enabled = true;
    bool tabStop = true;
    std::string toolTipText = {};
    /// Tool tip of the inner box of a find box.
    std::string toolTipTextOfTextBox = {};
    /// What a screen reader calls the control; "" takes the caption or the label in front of it.
    std::string accessibleName = {};
    /// Shown inside an empty box in grey.
    std::string placeholder = {};

    /// Labels.
    bool autoSize = false;
    bool wordWrap = false;
    /// 0 left, 1 right, 2 centre.
    int alignment = 0;
    /// The control that the label names: its mnemonic goes there.
    std::string labelOf = {};

    std::string fontName = "Arial";
    float fontSize = 9.75F;
    bool fontBold = false;
    Colour foreColor = -1;
    Colour backColor = -1;

    /// Text and number boxes.
    int maxLength = 0;
    bool locked = false;
    int formatType = 0;

    /// Find boxes: 1 text, 2 code.
    int style = 1;
    /// A search dialog's box announces the end of the former search before a new one.
    bool announcesEndOfSearch = false;

    /// Buttons; icons are names in the toolkit's store.
    std::string icon = {};
    Colour highlightColor = -1;
    Colour fontColor = -1;
    bool isDefault = false;
    /// What Escape presses. Where a caption is named, the button is the form's cancel button while it shows
    /// that one: a button may lead into the record in one mode and out of it in another.
    bool isCancel = false;
    std::string cancelCaption = {};

    /// The key that presses a button, chooses an option or puts the focus on a box from anywhere in the form,
    /// such as "F4", "Ctrl+1" or "Alt+Left"; "" is none. F1 lists the keys of a form that has any.
    std::string shortcut = {};
    /// Date boxes: the key that raises `Change` with the date as it stands, from anywhere in the form; "" is
    /// none.
    std::string repeatKey = {};

    /// Images.
    std::string picture = {};
    /// Check boxes and options.
    int value = 0;
    /// Grids: the cell limit of 350000 applies.
    bool cellLimit = true;
    /// Grids: SelectionMode until code writes it.
    Integer selectionMode = 0;
    /// Grids: the navigation bar of the form that Page Down at the last row, Page Up at the first one,
    /// Ctrl+Home and Ctrl+End press, and the button that Enter on a row presses; "" is none.
    std::string pageBar = {};
    std::string rowButton = {};
};

struct FormDesign {
    std::string name = {};
    std::string caption = {};
    Twips width = 12000;
    Twips height = 9000;
    Colour backColor = colours::White;
    /// A bordered window of its own; a form without a border is shown inside a container or as a plate.
    bool bordered = true;
    bool resizable = false;
    /// What is typed into the form is lost when it is left: once something is, the first Escape only moves to
    /// the cancel button, and the second presses it.
    bool guardsTyping = false;
    /// The least inner area of a form that takes the size of its container or of its user; below it a screen
    /// scrolls. 0 is any.
    Twips leastWidth = 0;
    Twips leastHeight = 0;
    /// In tab order.
    std::vector<ControlDesign> controls = {};
};

} // namespace kova
