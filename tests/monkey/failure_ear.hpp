#pragma once

#include <streambuf>
#include <string>

namespace kova::monkey {

/// Listens to the standard error output, where a failure that a procedure reports goes as long as windows are
/// drawn into memory: each is a finding. What it hears goes on to where it went before.
class FailureEar : public std::streambuf {
public:
    FailureEar();
    ~FailureEar() override;
    FailureEar(const FailureEar&) = delete;
    FailureEar& operator=(const FailureEar&) = delete;

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize length) override;

private:
    void Hear(const std::string& text);

    std::streambuf* before_;
    std::string heard_;
};

/// "error NUMBER at PLACE" where the text reports a failure, else "".
std::string FailureReportedIn(const std::string& text);

} // namespace kova::monkey
