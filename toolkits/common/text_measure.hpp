#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <string>

namespace kova::toolkit {

struct Font {
    std::string name = "Arial";
    /// Points.
    float size = 9.75F;
    bool bold = false;
};

/// Size in twips.
struct Extent {
    Twips width = 0;
    Twips height = 0;
};

/// How large a text is on the screen that draws it. Labels of automatic size ask it inside the write of
/// their caption.
class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    /// The box around a text; "\r\n" and "\n" break lines, and an empty text is one line high. With a
    /// `wrapWidth` above 0 lines also break between words so that none is wider.
    virtual Extent Measure(const Text& text, const Font& font, Twips wrapWidth) const = 0;
};

} // namespace kova::toolkit
