#pragma once

#include "toolkits/common/grid/grid.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"
#include "toolkits/qt/widget_view.hpp"

namespace kova::qt {

class GridView : public ViewOf<toolkit::GridModel, GridCanvas> {
public:
    GridView(toolkit::GridModel& model, QWidget* parent);

protected:
    void ShowContent() override;
    void ShowLook() override;
    void ShowGeometry() override;
};

} // namespace kova::qt
