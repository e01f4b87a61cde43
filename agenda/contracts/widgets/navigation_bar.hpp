#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <functional>

namespace kova {

/// The paging bar. It shows "FIRST - LAST de COUNT" and offers the buttons that its numbers allow:
/// first and previous where FirstRecord is above 1, next and last where LastRecord is below
/// RecordCount. The numbers take effect on the screen with Refresh. All are 0 by design.
class KVNavigationBar : public Widget {
public:
    virtual Double FirstRecord() const = 0;
    virtual void FirstRecord(Double) = 0;
    virtual Double LastRecord() const = 0;
    virtual void LastRecord(Double) = 0;
    virtual Double RecordCount() const = 0;
    virtual void RecordCount(Double) = 0;
    virtual Double PageSize() const = 0;
    virtual void PageSize(Double) = 0;
    virtual void Refresh() = 0;

    /// The user pressed a button: 1 first, 2 previous, 3 next, 4 last. The bar changes no number.
    virtual void OnClick(std::function<void(Integer& button)>) = 0;
};

} // namespace kova
