#pragma once

#include "agenda/contracts/widgets/image.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class ImageModel final : public WidgetModel<Image, WidgetKind::Image> {
public:
    using WidgetModel::WidgetModel;

    kova::Picture Picture() const override
    {
        Reading("Picture");
        return kova::Picture{Design().picture};
    }

    const std::string& ShownPicture() const { return Design().picture; }
};

} // namespace kova::toolkit
