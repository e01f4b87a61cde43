#pragma once

#include <ostream>
#include <string>

namespace kova::data {

/// Tells on a stream how far long work has come: one line for each tenth that is done.
class Progress {
public:
    /// `what` begins each line. A total of 0 is told as done at once.
    Progress(std::ostream& output, std::string what, long long total)
        : output_(output), what_(std::move(what)), total_(total)
    {
    }

    /// `done` of the total so far.
    void Reach(long long done)
    {
        const long long tenth = total_ == 0 ? 10 : done * 10 / total_;
        if (tenth <= told_)
            return;
        told_ = tenth;
        output_ << what_ << ": " << tenth * 10 << "% (" << done << " de " << total_ << ")" << std::endl;
    }

private:
    std::ostream& output_;
    std::string what_;
    long long total_;
    long long told_ = 0;
};

} // namespace kova::data
