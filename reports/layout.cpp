#include "reports/layout.hpp"

#include "reports/codes.hpp"
#include "reports/section_layout.hpp"

#include <algorithm>
#include <utility>

namespace kova::reports {

namespace {

/// Head and foot that fill the paper still leave this much to the records.
constexpr Twips LeastRoom = 1440;

const ReportSectionDesign* Find(const ReportDesign& design, ReportSectionKind kind)
{
    const auto found = std::ranges::find(design.sections, kind, &ReportSectionDesign::kind);
    return found == design.sections.end() ? nullptr : &*found;
}

Twips RightmostOf(const ReportDesign& design)
{
    Twips rightmost = 0;
    for (const ReportSectionDesign& section : design.sections) {
        for (const ReportControlDesign& control : section.controls)
            rightmost = std::max(rightmost, control.left + control.width);
    }
    return rightmost;
}

/// The sheet and what the design may fill of it. Places of the design are `scale` times smaller on paper.
struct Frame {
    Twips paperWidth = 0;
    Twips paperHeight = 0;
    Twips left = 0;
    Twips top = 0;
    /// In twips of the design.
    Twips width = 0;
    Twips height = 0;
    Twips scale = 1;
};

Frame FrameOf(const ReportDesign& design, const Paper& paper)
{
    const bool isTurned = design.orientation == ReportOrientation::Landscape;
    Frame frame{isTurned ? paper.height : paper.width, isTurned ? paper.width : paper.height,
                design.leftMargin, design.topMargin};
    const Twips width = std::max(frame.paperWidth - design.leftMargin - design.rightMargin, LeastRoom);
    const Twips height = std::max(frame.paperHeight - design.topMargin - design.bottomMargin, LeastRoom);
    const Twips rightmost = RightmostOf(design);
    frame.scale = rightmost > width ? width / rightmost : 1;
    frame.width = width / frame.scale;
    frame.height = height / frame.scale;
    return frame;
}

Text ShownText(const Value& value) { return value.IsNull() ? Text() : value.ToText(); }

/// Moves a section's items to their place on paper.
void PutOn(Page& page, std::vector<Item> items, Twips top, const Frame& frame)
{
    const auto x = [&](Twips place) { return frame.left + frame.scale * place; };
    const auto y = [&](Twips place) { return frame.top + frame.scale * (top + place); };
    for (Item& item : items) {
        item.box = {x(item.box.left), y(item.box.top), frame.scale * item.box.width,
                    frame.scale * item.box.height};
        item.font.size *= frame.scale;
        item.inkHeight *= frame.scale;
        for (TextLine& line : item.lines) {
            line.left = x(line.left);
            line.top = y(line.top);
            line.width *= frame.scale;
        }
        page.items.push_back(std::move(item));
    }
}

class Layout {
public:
    Layout(const Job& job, const TextMetrics& metrics)
        : job_(job),
          metrics_(metrics),
          frame_(FrameOf(job.design, job.paper)),
          head_(Find(job.design, ReportSectionKind::PageHead)),
          details_(Find(job.design, ReportSectionKind::Details)),
          foot_(Find(job.design, ReportSectionKind::PageFoot)),
          occasion_{job.moment, job.design.caption, 1, 1}
    {
        document_.title = job.design.caption;
        document_.paperWidth = frame_.paperWidth;
        document_.paperHeight = frame_.paperHeight;
    }

    Document Make()
    {
        headHeight_ = Captions(head_).height;
        footTop_ = std::max(frame_.height - Captions(foot_).height, headHeight_ + LeastRoom);
        NewPage();
        if (job_.records && details_)
            PlaceRecords(*job_.records);
        FrameThePages();
        return std::move(document_);
    }

private:
    /// A section of labels and lines, for the current page.
    SectionLayout Captions(const ReportSectionDesign* section) const
    {
        if (!section)
            return {};
        std::vector<Text> texts;
        for (const ReportControlDesign& control : section->controls)
            texts.push_back(CaptionOf(control));
        return LayOutSection(*section, texts, frame_.width, metrics_);
    }

    Text CaptionOf(const ReportControlDesign& control) const
    {
        return control.kind == ReportControlKind::Label ? FillIn(control.content, occasion_) : Text();
    }

    void PlaceRecords(RecordSet& records)
    {
        if (records.RecordCount() == 0)
            return;
        std::vector<Text> texts(details_->controls.size());
        for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
            for (std::size_t at = 0; at < texts.size(); ++at)
                texts[at] = TextOfRecord(details_->controls[at], records);
            Place(LayOutSection(*details_, texts, frame_.width, metrics_));
            ++document_.records;
        }
    }

    Text TextOfRecord(const ReportControlDesign& control, const RecordSet& records) const
    {
        if (control.kind != ReportControlKind::TextBox)
            return CaptionOf(control);
        return control.content.empty() ? Text() : ShownText(records.Field(control.content));
    }

    void Place(SectionLayout record)
    {
        if (below_ > headHeight_ && below_ + record.height > footTop_)
            NewPage();
        const Twips room = footTop_ - headHeight_;
        if (record.height <= room)
            return PlacePart(std::move(record));
        // A part begins with ink at its very top: below the rule that may close the head.
        for (SectionLayout& part : Split(record, room - RuleThickness)) {
            if (below_ > headHeight_)
                NewPage();
            below_ += RuleThickness;
            PlacePart(std::move(part));
        }
    }

    void PlacePart(SectionLayout part)
    {
        PutOn(document_.pages.back(), std::move(part.items), below_, frame_);
        below_ += part.height;
    }

    void NewPage()
    {
        document_.pages.emplace_back();
        below_ = headHeight_;
    }

    /// Head and foot, now that the number of pages is known.
    void FrameThePages()
    {
        occasion_.pages = static_cast<Long>(document_.pages.size());
        for (Page& page : document_.pages) {
            Page framed;
            PutOn(framed, Captions(head_).items, 0, frame_);
            std::ranges::move(page.items, std::back_inserter(framed.items));
            PutOn(framed, Captions(foot_).items, footTop_, frame_);
            page = std::move(framed);
            ++occasion_.page;
        }
    }

    const Job& job_;
    const TextMetrics& metrics_;
    const Frame frame_;
    const ReportSectionDesign* const head_;
    const ReportSectionDesign* const details_;
    const ReportSectionDesign* const foot_;
    Occasion occasion_;
    Twips headHeight_ = 0;
    Twips footTop_ = 0;
    /// Where the next record goes.
    Twips below_ = 0;
    Document document_;
};

} // namespace

Document LayOut(const Job& job, const TextMetrics& metrics) { return Layout(job, metrics).Make(); }

} // namespace kova::reports
