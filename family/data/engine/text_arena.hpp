#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace kova::family {

/// Keeps texts that live and die together, many in one piece of memory. What it hands out is valid as
/// long as the arena, also when that is moved.
class TextArena {
public:
    std::string_view Keep(std::string_view text)
    {
        if (text.size() > left_)
            AddBlock(text.size());
        char* const start = next_;
        std::memcpy(start, text.data(), text.size());
        next_ += text.size();
        left_ -= text.size();
        return {start, text.size()};
    }

private:
    static constexpr std::size_t BlockSize = std::size_t{32} * 1024;

    void AddBlock(std::size_t atLeast)
    {
        left_ = atLeast > BlockSize ? atLeast : BlockSize;
        blocks_.push_back(std::unique_ptr<char[]>(new char[left_]));
        next_ = blocks_.back().get();
    }

    std::vector<std::unique_ptr<char[]>> blocks_;
    char* next_ = nullptr;
    std::size_t left_ = 0;
};

} // namespace kova::family
