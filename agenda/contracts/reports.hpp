#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/widgets/widget.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kova {

enum class ReportControlKind { Label, TextBox, Line };
enum class ReportAlignment { Left, Right, Center };

/// One control of a section: data, no behaviour. Places are twips from the section's top left corner.
/// Texts are in Arial.
struct ReportControlDesign {
    ReportControlKind kind = ReportControlKind::Label;
    std::string name = {};
    /// A label's caption, a text box's data field; lines have none.
    std::string content = {};
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    /// 0 is a horizontal line.
    Twips height = 0;
    /// Points.
    float fontSize = 9.75F;
    bool bold = false;
    ReportAlignment alignment = ReportAlignment::Left;
    /// Takes as much height as its text needs; the design's height is the least. What begins below its
    /// former bottom moves down, and the section grows.
    bool canGrow = false;
    /// Ink of the text or line.
    Colour foreColor = colours::Black;
    /// -1 is none.
    Colour backColor = -1;
};

enum class ReportSectionKind {
    /// At the head of each page.
    PageHead,
    /// Once for each record.
    Details,
    /// At the foot of each page.
    PageFoot,
};

struct ReportSectionDesign {
    ReportSectionKind kind = ReportSectionKind::Details;
    std::string name = {};
    Twips height = 0;
    /// In drawing order.
    std::vector<ReportControlDesign> controls = {};
};

/// The numbers are those that callers know.
enum class ReportOrientation : Integer { Default = 0, Portrait = 1, Landscape = 2 };
enum class ReportWindowState : Integer { Normal = 0, Minimized = 1, Maximized = 2 };

/// A report on A4 paper. In captions "%d" becomes the date of printing (dd/mm/yyyy), "%D" the date in
/// words, "%t" and "%T" the time without and with seconds, "%p" the page, "%P" the number of pages and
/// "%i" the caption of the report's window.
struct ReportDesign {
    std::string name = {};
    /// Of the preview's window; also the title of what is printed or saved.
    std::string caption = {};
    Twips width = 0;
    Twips leftMargin = 0;
    Twips topMargin = 0;
    Twips rightMargin = 0;
    Twips bottomMargin = 0;
    /// Default is portrait.
    ReportOrientation orientation = ReportOrientation::Default;
    ReportWindowState windowState = ReportWindowState::Normal;
    /// At most one of each kind; a kind that is missing takes no room.
    std::vector<ReportSectionDesign> sections = {};
};

class ReportLabel {
public:
    virtual ~ReportLabel() = default;
    virtual Text Caption() const = 0;
    virtual void Caption(const Text&) = 0;
};

class ReportTextBox {
public:
    virtual ~ReportTextBox() = default;
    /// Name of the record set's field that the box shows; "" shows nothing. A field that the record set
    /// does not have fails with 3265 when the report is shown. A Null shows nothing.
    virtual Text DataField() const = 0;
    virtual void DataField(const Text&) = 0;
};

class ReportSection {
public:
    virtual ~ReportSection() = default;
    virtual Text Name() const = 0;
    /// The control of that name. Fail with 438 where there is none and with 13 where it is of another
    /// kind. The reference holds as long as the report.
    virtual ReportLabel& Label(std::string_view name) = 0;
    virtual ReportTextBox& TextBox(std::string_view name) = 0;
};

/// A report and its preview. Made as designed, without data and hidden; it must not outlive the toolkit
/// that made it but for its own end.
class Report {
public:
    virtual ~Report() = default;

    virtual Text Name() const = 0;
    /// Fails with 438 where there is none of that name.
    virtual ReportSection& Section(std::string_view name) = 0;

    /// What the details are printed from; null is nothing, and prints head and foot alone. The report
    /// walks it from its first row when it is shown, and leaves it at its end.
    virtual void DataSource(RecordSetRef) = 0;
    /// Part of the data source; "" is all of it, and any other fails with 380.
    virtual void DataMember(const Text&) = 0;

    virtual Text Caption() const = 0;
    virtual void Caption(const Text&) = 0;
    virtual ReportWindowState WindowState() const = 0;
    virtual void WindowState(ReportWindowState) = 0;

    /// Twips; a negative margin or width fails with 380. What is printed keeps within the margins. The
    /// width places nothing: where the paper is narrower than the rightmost control, all is scaled down
    /// evenly, and nothing is cut.
    virtual Twips LeftMargin() const = 0;
    virtual void LeftMargin(Twips) = 0;
    virtual Twips TopMargin() const = 0;
    virtual void TopMargin(Twips) = 0;
    virtual Twips RightMargin() const = 0;
    virtual void RightMargin(Twips) = 0;
    virtual Twips BottomMargin() const = 0;
    virtual void BottomMargin(Twips) = 0;
    virtual Twips Width() const = 0;
    virtual void Width(Twips) = 0;
    virtual ReportOrientation Orientation() const = 0;
    virtual void Orientation(ReportOrientation) = 0;

    /// Takes up the data anew. Showing does so too.
    virtual void Refresh() = 0;
    /// Shows the preview and returns when the user has closed it; the report is unloaded then, also where
    /// a failure of the data ends it. Fails with 5 while it is shown.
    virtual void ShowModal() = 0;
    /// Back to the design, without data. Never fails.
    virtual void Unload() = 0;
};

using ReportRef = std::shared_ptr<Report>;

} // namespace kova
