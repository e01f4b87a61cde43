#include "tests/conformance/widgets/bench.hpp"

#include "toolkits/common/menu.hpp"

namespace kova::conformance {

toolkit::WidgetCore& Bench::CoreOf(Widget& widget) { return dynamic_cast<toolkit::WidgetCore&>(widget); }

toolkit::FormModel& Bench::ModelOf(Form& form) { return dynamic_cast<toolkit::FormModel&>(form); }

toolkit::GridModel& Bench::ModelOf(MSFlexGrid& grid) { return dynamic_cast<toolkit::GridModel&>(grid); }

std::string Bench::NameOfFocused(Form& form)
{
    const toolkit::WidgetCore* focused = ModelOf(form).Focused();
    if (!focused)
        return "";
    const int index = focused->Design().index;
    return focused->Design().name + (index < 0 ? "" : "(" + std::to_string(index) + ")");
}

Bench::Place Bench::MiddleOf(MSFlexGrid& grid, Long row, Long col)
{
    const toolkit::GridAxis& rows = ModelOf(grid).RowAxis();
    const toolkit::GridAxis& columns = ModelOf(grid).ColumnAxis();
    return {static_cast<Twips>(columns.Start(col) + columns.Size(col) / 2),
            static_cast<Twips>(rows.Start(row) + rows.Size(row) / 2)};
}

void Bench::ClickCell(MSFlexGrid& grid, Long row, Long col)
{
    const Place middle = MiddleOf(grid, row, col);
    ClickAt(grid, middle.x, middle.y);
}

void Bench::HoverCell(MSFlexGrid& grid, Long row, Long col)
{
    const Place middle = MiddleOf(grid, row, col);
    HoverAt(grid, middle.x, middle.y);
}

Colour Bench::InkOf(MSFlexGrid& grid, Long row, Long col) { return ModelOf(grid).ForeColorOf(row, col); }

std::string Bench::PictureOf(MSFlexGrid& grid, Long row, Long col)
{
    return ModelOf(grid).PictureOfCell(row, col);
}

toolkit::CellLook Bench::LookOf(MSFlexGrid& grid, Long row, Long col)
{
    return ModelOf(grid).LookOfCell(row, col);
}

bool Bench::IsHighlighted(MSFlexGrid& grid, Long row, Long col)
{
    return ModelOf(grid).IsHighlighted(row, col);
}

void Bench::NoteMenu(const std::vector<toolkit::MenuModel*>& entries)
{
    std::string line;
    for (const toolkit::MenuModel* entry : entries) {
        const bool open = entry->IsRule() || entry->IsChoosable();
        const std::string& caption = entry->ShownCaption();
        line += (line.empty() ? "" : "|") + (open ? caption : "(" + caption + ")");
    }
    script_.menusShown.push_back(line);
}

} // namespace kova::conformance
