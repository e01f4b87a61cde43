#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace kova {

/// Numbers of the run-time failures. A failure carries the number to the error screen as it stands.
enum class FailureNumber : std::int32_t {
    InvalidArgument = 5,
    Overflow = 6,
    OutOfMemory = 7,
    IndexOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    NoObject = 91,
    UseOfNull = 94,
    BadPropertyValue = 380,
    BadListRow = 381,
    ClassCannotBeCreated = 429,
    NoSuchMember = 438,
    WrongArgumentCount = 450,
    BadRecordSetValue = 3001,
    NoCurrentRow = 3021,
    NoSuchField = 3265,
    RecordSetClosed = 3704,
    RecordSetOpen = 3705,
    RecordSetWithoutFields = 3709,
    BadGridRow = 30009,
    BadGridColumn = 30010,
    LastFreeGridRow = 30015,
    BadFieldValue = -2147217887,
};

/// A run-time failure: the one exception type that crosses the borders of the module.
/// Components, record sets, widgets and conversions throw it; procedures trap it and report it once.
class Failure : public std::exception {
public:
    /// The number's own text in Portuguese.
    explicit Failure(FailureNumber number);
    Failure(FailureNumber number, std::string description);
    /// For numbers of other makers, passed on unchanged.
    Failure(std::int32_t number, std::string description);

    std::int32_t Number() const { return number_; }
    const std::string& Description() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    std::int32_t number_;
    std::string description_;
};

} // namespace kova
