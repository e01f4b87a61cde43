#pragma once

#include "reports/pages.hpp"

#include <QImage>

class QPainter;

namespace kova::paper {

inline constexpr double TwipsOfInch = 1440.0;

/// Draws a page with a painter whose unit is the twip and whose origin is the paper's top left corner. The
/// one painting of pages: previews, printer, PDF and pictures all come from here.
void PaintPage(QPainter& painter, const reports::Page& page);

/// A page on white paper.
QImage PictureOf(const reports::Document& document, std::size_t page, double dotsPerInch);

} // namespace kova::paper
