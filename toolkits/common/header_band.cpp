#include "toolkits/common/header_band.hpp"

namespace kova::toolkit {

HeaderBandModel::HeaderBandModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design), caption_(design.caption)
{
}

void HeaderBandModel::Caption(const Text& value)
{
    Writing("Caption", value);
    caption_ = value;
    Tell(Aspect::Content);
}

void HeaderBandModel::DataOfInclusion(const Text& value)
{
    Writing("DataOfInclusion", value);
    inclusion_ = value;
    Tell(Aspect::Content);
}

void HeaderBandModel::DataOfAlteration(const Text& value)
{
    Writing("DataOfAlteration", value);
    alteration_ = value;
    Tell(Aspect::Content);
}

} // namespace kova::toolkit
