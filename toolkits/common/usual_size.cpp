#include "toolkits/common/usual_size.hpp"

namespace kova::toolkit {

UsualSize UsualSizeOf(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::KVComboBox:
    case WidgetKind::KVTextBox:
    case WidgetKind::KVFind: return {2400, 480};
    case WidgetKind::KVDTPicker: return {1560, 480};
    case WidgetKind::KVTime:
    case WidgetKind::KVNumberBox: return {960, 480};
    case WidgetKind::KVCommandButton: return {1560, 480};
    case WidgetKind::KVTheme: return {12000, 795};
    case WidgetKind::KVNavigationBar: return {3600, 615};
    case WidgetKind::MSFlexGrid: return {6000, 3000};
    case WidgetKind::Label: return {1200, 255};
    case WidgetKind::PictureBox: return {2400, 1200};
    case WidgetKind::Image: return {480, 480};
    case WidgetKind::CheckBox:
    case WidgetKind::OptionButton: return {1800, 255};
    case WidgetKind::Menu: return {0, 0};
    case WidgetKind::Shape: return {1200, 600};
    }
    return {0, 0};
}

} // namespace kova::toolkit
