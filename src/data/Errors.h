#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <system_error>

/// Where in a table file a faulty field stands, as the user needs it to find the place.
struct FieldPlace
{
    std::string_view FileName;
    std::size_t Line = 0; ///< From 1, the header's; 0 for a row that no file holds yet.
    std::string_view Column;

    bool operator==(const FieldPlace&) const = default;
};

/// An error with the number and the description (Croatian, UTF-8) that the user is shown.
class RuntimeError : public std::exception
{
public:
    RuntimeError(int number, std::string description);

    /// An error of a field: the description is the fault and the place.
    RuntimeError(int number, std::string_view fault, const FieldPlace& place);

    int Number() const { return ErrorNumber; }
    const std::string& Description() const { return ErrorDescription; }
    const char* what() const noexcept override { return ErrorDescription.c_str(); }

    /// The description without the place.
    std::string_view Fault() const { return std::string_view(ErrorDescription).substr(0, FaultSize); }
    /// The field that is at fault; no file name where the error is none of a field.
    const FieldPlace& Place() const { return FaultyField; }

private:
    int ErrorNumber;
    std::string ErrorDescription;
    std::size_t FaultSize;
    FieldPlace FaultyField;
};

/// A text that is not a number stands where a number is needed.
class TypeMismatch : public RuntimeError
{
public:
    explicit TypeMismatch(std::string_view value);
    TypeMismatch(std::string_view value, const FieldPlace& place);
};

/// A number or a sum lies outside the 32-bit signed range.
class Overflow : public RuntimeError
{
public:
    Overflow();
    explicit Overflow(std::string_view value);
    Overflow(std::string_view value, const FieldPlace& place);
};

/// A row has fewer fields than the column that is read needs.
class SubscriptOutOfRange : public RuntimeError
{
public:
    explicit SubscriptOutOfRange(const FieldPlace& place);
};

/// A file ended before the line that must be there.
class InputPastEnd : public RuntimeError
{
public:
    explicit InputPastEnd(std::string_view path);
};

/// A file or folder could not be found, read or written.
class FileError : public RuntimeError
{
public:
    FileError(std::error_code cause, std::string_view path);
};

/// The catalogue is saved, but not all of its files hold it yet; the next start or save goes on.
class SaveNotFinished : public RuntimeError
{
public:
    explicit SaveNotFinished(const FileError& cause);
};
