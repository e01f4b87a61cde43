#include "toolkits/qt/screen/view_factory.hpp"

#include "toolkits/qt/boxes/check_box.hpp"
#include "toolkits/qt/boxes/combo_box.hpp"
#include "toolkits/qt/boxes/date_box.hpp"
#include "toolkits/qt/boxes/find_box.hpp"
#include "toolkits/qt/boxes/number_box.hpp"
#include "toolkits/qt/boxes/option_button.hpp"
#include "toolkits/qt/boxes/text_box.hpp"
#include "toolkits/qt/boxes/time_box.hpp"
#include "toolkits/qt/command_button.hpp"
#include "toolkits/qt/grid/grid.hpp"
#include "toolkits/qt/grid/navigation_bar.hpp"
#include "toolkits/qt/header_band.hpp"
#include "toolkits/qt/label.hpp"
#include "toolkits/qt/picture_box.hpp"
#include "toolkits/qt/shape.hpp"

namespace kova::qt {

namespace {

template <class ViewKind> std::unique_ptr<toolkit::View> Begun(std::unique_ptr<ViewKind> view)
{
    view->Begin();
    return view;
}

template <class ViewKind, class Model>
std::unique_ptr<toolkit::View> Make(toolkit::WidgetCore& core, QWidget* parent)
{
    return Begun(std::make_unique<ViewKind>(dynamic_cast<Model&>(core), parent));
}

std::unique_ptr<toolkit::View> MakeDateBox(const Clock& clock, toolkit::WidgetCore& core, QWidget* parent)
{
    return Begun(std::make_unique<DateBoxView>(clock, dynamic_cast<toolkit::DateBoxModel&>(core), parent));
}

} // namespace

std::unique_ptr<toolkit::View> ViewOn(QWidget& parent, toolkit::WidgetCore& widget, const Clock& clock)
{
    using namespace toolkit;
    switch (widget.KindOfWidget()) {
    case WidgetKind::KVComboBox: return Make<ComboBoxView, ComboBoxModel>(widget, &parent);
    case WidgetKind::KVTextBox: return Make<TextBoxView, TextBoxModel>(widget, &parent);
    case WidgetKind::KVFind: return Make<FindBoxView, FindBoxModel>(widget, &parent);
    case WidgetKind::KVDTPicker: return MakeDateBox(clock, widget, &parent);
    case WidgetKind::KVTime: return Make<TimeBoxView, TimeBoxModel>(widget, &parent);
    case WidgetKind::KVNumberBox: return Make<NumberBoxView, NumberBoxModel>(widget, &parent);
    case WidgetKind::KVCommandButton: return Make<CommandButtonView, CommandButtonModel>(widget, &parent);
    case WidgetKind::KVTheme: return Make<HeaderBandView, HeaderBandModel>(widget, &parent);
    case WidgetKind::KVNavigationBar: return Make<NavigationBarView, NavigationBarModel>(widget, &parent);
    case WidgetKind::MSFlexGrid: return Make<GridView, GridModel>(widget, &parent);
    case WidgetKind::Label: return Make<LabelView, LabelModel>(widget, &parent);
    case WidgetKind::PictureBox: return Make<PictureBoxView, PictureBoxModel>(widget, &parent);
    case WidgetKind::CheckBox: return Make<CheckBoxView, CheckBoxModel>(widget, &parent);
    case WidgetKind::OptionButton: return Make<OptionButtonView, OptionButtonModel>(widget, &parent);
    case WidgetKind::Shape: return Make<ShapeView, ShapeModel>(widget, &parent);
    case WidgetKind::Menu:
    case WidgetKind::Image: break;
    }
    return nullptr;
}

} // namespace kova::qt
