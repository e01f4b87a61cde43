#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

const char* NameOf(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::KVComboBox: return "KVComboBox";
    case WidgetKind::KVTextBox: return "KVTextBox";
    case WidgetKind::KVFind: return "KVFind";
    case WidgetKind::KVDTPicker: return "KVDTPicker";
    case WidgetKind::KVTime: return "KVTime";
    case WidgetKind::KVNumberBox: return "KVNumberBox";
    case WidgetKind::KVCommandButton: return "KVCommandButton";
    case WidgetKind::KVTheme: return "KVTheme";
    case WidgetKind::KVNavigationBar: return "KVNavigationBar";
    case WidgetKind::MSFlexGrid: return "MSFlexGrid";
    case WidgetKind::Label: return "Label";
    case WidgetKind::PictureBox: return "PictureBox";
    case WidgetKind::Image: return "Image";
    case WidgetKind::CheckBox: return "CheckBox";
    case WidgetKind::OptionButton: return "OptionButton";
    case WidgetKind::Menu: return "Menu";
    case WidgetKind::Shape: return "Shape";
    }
    return "Widget";
}

} // namespace kova
