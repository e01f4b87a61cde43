#include "toolkits/common/factory/widget_factory.hpp"

#include "toolkits/common/boxes/check_box.hpp"
#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/common/boxes/date_box.hpp"
#include "toolkits/common/boxes/find_box.hpp"
#include "toolkits/common/boxes/number_box.hpp"
#include "toolkits/common/boxes/option_button.hpp"
#include "toolkits/common/boxes/text_box.hpp"
#include "toolkits/common/boxes/time_box.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/common/header_band.hpp"
#include "toolkits/common/image.hpp"
#include "toolkits/common/label.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/common/picture_box.hpp"
#include "toolkits/common/shape.hpp"

namespace kova::toolkit {

std::unique_ptr<WidgetCore> MakeWidget(FormModel& form, const ControlDesign& design)
{
    switch (design.kind) {
    case WidgetKind::KVComboBox: return std::make_unique<ComboBoxModel>(form, design);
    case WidgetKind::KVTextBox: return std::make_unique<TextBoxModel>(form, design);
    case WidgetKind::KVFind: return std::make_unique<FindBoxModel>(form, design);
    case WidgetKind::KVDTPicker: return std::make_unique<DateBoxModel>(form, design);
    case WidgetKind::KVTime: return std::make_unique<TimeBoxModel>(form, design);
    case WidgetKind::KVNumberBox: return std::make_unique<NumberBoxModel>(form, design);
    case WidgetKind::KVCommandButton: return std::make_unique<CommandButtonModel>(form, design);
    case WidgetKind::KVTheme: return std::make_unique<HeaderBandModel>(form, design);
    case WidgetKind::KVNavigationBar: return std::make_unique<NavigationBarModel>(form, design);
    case WidgetKind::MSFlexGrid: return std::make_unique<GridModel>(form, design);
    case WidgetKind::Label: return std::make_unique<LabelModel>(form, design);
    case WidgetKind::PictureBox: return std::make_unique<PictureBoxModel>(form, design);
    case WidgetKind::Image: return std::make_unique<ImageModel>(form, design);
    case WidgetKind::CheckBox: return std::make_unique<CheckBoxModel>(form, design);
    case WidgetKind::OptionButton: return std::make_unique<OptionButtonModel>(form, design);
    case WidgetKind::Menu: return std::make_unique<MenuModel>(form, design);
    case WidgetKind::Shape: return std::make_unique<ShapeModel>(form, design);
    }
    throw Failure(FailureNumber::BadPropertyValue);
}

} // namespace kova::toolkit
