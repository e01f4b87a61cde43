// The look of the current cell and of the grid as a whole.

#include "toolkits/common/grid/grid.hpp"

namespace kova::toolkit {

void GridModel::ChangeCellLook(const CellLook& look)
{
    cells_.Look(cursor_.row, cursor_.col, look);
    Touch(cursor_.row, cursor_.row);
}

void GridModel::CellBackColor(Colour colour)
{
    Writing("CellBackColor", colour);
    CheckCurrent();
    CellLook look = cells_.LookAt(cursor_.row, cursor_.col);
    look.back = colour;
    ChangeCellLook(look);
}

void GridModel::CellForeColor(Colour colour)
{
    Writing("CellForeColor", colour);
    CheckCurrent();
    CellLook look = cells_.LookAt(cursor_.row, cursor_.col);
    look.fore = colour;
    ChangeCellLook(look);
}

void GridModel::CellFontBold(bool bold)
{
    Writing("CellFontBold", bold);
    CheckCurrent();
    CellLook look = cells_.LookAt(cursor_.row, cursor_.col);
    look.bold = bold;
    ChangeCellLook(look);
}

void GridModel::CellPicture(const Picture& picture)
{
    Writing("CellPicture", picture.name);
    CheckCurrent();
    CellLook look = cells_.LookAt(cursor_.row, cursor_.col);
    look.picture = cells_.PictureNumber(picture.name);
    ChangeCellLook(look);
}

void GridModel::CellPictureAlignment(Integer alignment)
{
    Writing("CellPictureAlignment", alignment);
    CheckCurrent();
    if (alignment < 0 || alignment > 9)
        throw Failure(FailureNumber::BadPropertyValue);
    CellLook look = cells_.LookAt(cursor_.row, cursor_.col);
    look.pictureAlignment = static_cast<std::uint8_t>(alignment);
    ChangeCellLook(look);
}

Long GridModel::CellLeft() const
{
    Reading("CellLeft");
    CheckCurrent();
    return columns_.Start(cursor_.col);
}

Long GridModel::CellTop() const
{
    Reading("CellTop");
    CheckCurrent();
    return rows_.Start(cursor_.row);
}

Long GridModel::CellWidth() const
{
    Reading("CellWidth");
    CheckCurrent();
    return columns_.Size(cursor_.col);
}

Long GridModel::CellHeight() const
{
    Reading("CellHeight");
    CheckCurrent();
    return rows_.Size(cursor_.row);
}

template <class T> void GridModel::WriteLook(std::string_view member, T GridLook::*field, T value)
{
    Writing(member, value);
    look_.*field = value;
    Tell(Aspect::Look);
    TouchAll();
}

void GridModel::FontName(const Text& value)
{
    Writing("FontName", value);
    look_.font.name = value;
    Tell(Aspect::Look);
    TouchAll();
}

void GridModel::FontSize(float value)
{
    Writing("FontSize", value);
    if (!(value > 0))
        throw Failure(FailureNumber::BadPropertyValue);
    look_.font.size = value;
    Tell(Aspect::Look);
    TouchAll();
}

void GridModel::BackColor(Colour value) { WriteLook("BackColor", &GridLook::backColor, value); }
void GridModel::ForeColor(Colour value) { WriteLook("ForeColor", &GridLook::foreColor, value); }
void GridModel::BackColorFixed(Colour value)
{
    WriteLook("BackColorFixed", &GridLook::backColorFixed, value);
}
void GridModel::BackColorSel(Colour value) { WriteLook("BackColorSel", &GridLook::backColorSel, value); }
void GridModel::ForeColorSel(Colour value) { WriteLook("ForeColorSel", &GridLook::foreColorSel, value); }
void GridModel::BackColorBkg(Colour value) { WriteLook("BackColorBkg", &GridLook::backColorBkg, value); }
void GridModel::GridColor(Colour value) { WriteLook("GridColor", &GridLook::gridColor, value); }
void GridModel::GridColorFixed(Colour value)
{
    WriteLook("GridColorFixed", &GridLook::gridColorFixed, value);
}
void GridModel::GridLines(Integer value) { WriteLook("GridLines", &GridLook::gridLines, value); }
void GridModel::GridLinesFixed(Integer value)
{
    WriteLook("GridLinesFixed", &GridLook::gridLinesFixed, value);
}
void GridModel::GridLineWidth(Integer value) { WriteLook("GridLineWidth", &GridLook::gridLineWidth, value); }
void GridModel::WordWrap(bool value) { WriteLook("WordWrap", &GridLook::wordWrap, value); }
void GridModel::FocusRect(Integer value) { WriteLook("FocusRect", &GridLook::focusRect, value); }
void GridModel::ScrollBars(Integer value) { WriteLook("ScrollBars", &GridLook::scrollBars, value); }
void GridModel::AllowUserResizing(Integer value)
{
    WriteLook("AllowUserResizing", &GridLook::allowUserResizing, value);
}
void GridModel::Appearance(Integer value) { WriteLook("Appearance", &GridLook::appearance, value); }
void GridModel::BorderStyle(Integer value) { WriteLook("BorderStyle", &GridLook::borderStyle, value); }

} // namespace kova::toolkit
