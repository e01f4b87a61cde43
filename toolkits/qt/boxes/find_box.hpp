#pragma once

#include "toolkits/common/boxes/find_box.hpp"
#include "toolkits/qt/boxes/edit_view.hpp"

namespace kova::qt {

/// A find box: its button shows a magnifier where a press would search, a cross where it would clear.
class FindBoxView : public EditView {
public:
    FindBoxView(toolkit::FindBoxModel& model, QWidget* parent);

protected:
    void ShowContent() override;
    void ShowSelection() override;

private:
    void ShowButton();

    toolkit::FindBoxModel& model_;
};

} // namespace kova::qt
