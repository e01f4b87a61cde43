#pragma once

#include "family/data/rows/rows.hpp"

#include <map>
#include <vector>

namespace kova::family {

/// Who is busy when on one day; times are minutes since midnight.
class DayBook {
public:
    /// Books the employee, unless that many appointments already run at some moment of the time asked.
    bool Book(const EmployeeRow& employee, int start, int end)
    {
        std::vector<Span>& busy = busy_[employee.codigo];
        int overlapping = 0;
        for (const Span& span : busy)
            overlapping += span.start < end && start < span.end ? 1 : 0;
        const int limit = employee.agendamentosSimultaneos;
        if (limit != 0 && overlapping >= limit)
            return false;
        busy.push_back({start, end});
        return true;
    }

    void Clear() { busy_.clear(); }

private:
    struct Span {
        int start, end;
    };
    std::map<Key, std::vector<Span>> busy_;
};

} // namespace kova::family
