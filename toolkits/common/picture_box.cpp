#include "toolkits/common/picture_box.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

namespace kova::toolkit {

Long PictureBoxModel::Handle() const
{
    Reading("Handle");
    return GetForm().GetToolkit().HandleOf(*this);
}

} // namespace kova::toolkit
