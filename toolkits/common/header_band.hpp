#pragma once

#include "agenda/contracts/widgets/header_band.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class HeaderBandModel final : public WidgetModel<KVTheme, WidgetKind::KVTheme> {
public:
    HeaderBandModel(FormModel& form, const ControlDesign& design);

    Text Caption() const override { return Read("Caption", caption_); }
    void Caption(const Text& value) override;
    Text DataOfInclusion() const override { return Read("DataOfInclusion", inclusion_); }
    void DataOfInclusion(const Text& value) override;
    Text DataOfAlteration() const override { return Read("DataOfAlteration", alteration_); }
    void DataOfAlteration(const Text& value) override;

    const Text& ShownCaption() const override { return caption_; }
    const Text& ShownInclusion() const { return inclusion_; }
    const Text& ShownAlteration() const { return alteration_; }

private:
    Text caption_;
    Text inclusion_;
    Text alteration_;
};

} // namespace kova::toolkit
