#include "tools/agenda-data/csv/whole_file.hpp"

#include <cerrno>

namespace kova::data {

WholeFile::WholeFile(const std::string& path) : place_(path), file_(std::fopen(place_.Name().c_str(), "wbe"))
{
    if (file_ == nullptr)
        throw family::UnwritableFile(path, errno);
}

WholeFile::~WholeFile() { std::fclose(file_); }

void WholeFile::Write(std::string_view bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size())
        throw family::UnwritableFile(place_.Path(), errno);
}

void WholeFile::Finish()
{
    if (std::fflush(file_) != 0)
        throw family::UnwritableFile(place_.Path(), errno);
    place_.Finish();
}

} // namespace kova::data
