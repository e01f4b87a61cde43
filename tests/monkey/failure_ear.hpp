#pragma once

#include <streambuf>
#include <string>

namespace kova::monkey {

/// Listens to the standard error output, where a failure that a procedure reports goes as long as windows are
/// drawn into memory: each is a finding unless it is told by design. What it hears goes on to where it went
/// before.
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
/// Whether the failure of that name is what the user is to be told: what was asked for cannot be done with
/// what was typed or stored.
bool IsToldByDesign(const std::string& failure);

} // namespace kova::monkey
