#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QRawFont>
#include <QStringList>
#include <QTextLayout>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class QPainter;
class QRect;

namespace kova::qt {

/// Lays out and draws the texts of cells. Layouts are kept: painting a row again costs no shaping.
class GridText {
public:
    /// Forgets all layouts where the font is another one.
    void SetFont(const QFont& font);

    /// Draws into the area: breaks at "\r\n", between words where `wraps`, and ends the last line that
    /// fits with an ellipsis where there is more.
    void Paint(QPainter& painter, const std::string& text, const QRect& area, Qt::Alignment alignment,
               bool bold, bool wraps);

private:
    struct Line {
        QGlyphRun glyphs;
        /// Instead of the glyphs, where the script needs shaping.
        std::unique_ptr<QTextLayout> shaped;
        double width = 0;
    };
    struct Layout {
        std::vector<Line> lines;
    };
    struct KeyView {
        std::string_view text;
        int width = 0;
        int height = 0;
        bool bold = false;
        bool wraps = false;

        friend bool operator==(const KeyView&, const KeyView&) = default;
    };
    struct Key {
        std::string text;
        int width = 0;
        int height = 0;
        bool bold = false;
        bool wraps = false;
        operator KeyView() const { return {text, width, height, bold, wraps}; }
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const KeyView& key) const;
        std::size_t operator()(const Key& key) const { return operator()(KeyView(key)); }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(const KeyView& a, const KeyView& b) const { return a == b; }
    };

    const Layout& LayoutOf(const KeyView& key);
    Layout MakeLayout(const KeyView& key) const;
    Line MakeLine(const QString& text, bool bold) const;
    double LayGlyphs(const QString& text, bool bold, QGlyphRun& run) const;
    static double Shape(const QString& text, const QFont& font, Line& line);
    static QStringList BreakLines(QString text, const KeyView& key, const QFont& font);
    static std::vector<int> LineStarts(const QString& text, const KeyView& key, const QFont& font,
                                       std::size_t most);
    const QFont& FontOf(bool bold) const { return bold ? boldFont_ : font_; }

    QFont font_;
    QFont boldFont_;
    QRawFont raw_;
    QRawFont boldRaw_;
    std::unordered_map<Key, Layout, Hash, Equal> layouts_;
};

} // namespace kova::qt
