#include "family/csv/whole_file.hpp"

#include "system/path_text.hpp"

#include <cerrno>

namespace kova::family::csv {

namespace {

/// What the system has told of the last call, which the stream does not tell.
std::error_code Cause() { return {errno, std::generic_category()}; }

} // namespace

WholeFile::WholeFile(const std::string& path)
    : place_(path), file_(system::PathOf(place_.Name()), std::ios::binary)
{
    if (!file_)
        throw family::UnwritableFile(path, Cause());
}

void WholeFile::Write(std::string_view bytes)
{
    if (!file_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        throw family::UnwritableFile(place_.Path(), Cause());
}

void WholeFile::Finish()
{
    // Closed as well: an open file cannot be renamed everywhere.
    file_.close();
    if (!file_)
        throw family::UnwritableFile(place_.Path(), Cause());
    place_.Finish();
}

} // namespace kova::family::csv
