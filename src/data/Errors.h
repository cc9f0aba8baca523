#pragma once

#include <cstddef>
#include <stdexcept>
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

/// An error that the user is shown: its number, and its text (Croatian, UTF-8) as what().
class RuntimeError : public std::runtime_error
{
public:
    RuntimeError(int number, const std::string& text);

    /// An error of a field: the text is the fault and the place.
    RuntimeError(int number, std::string_view fault, const FieldPlace& place);

    int Number() const { return m_number; }

    /// The text without the place.
    std::string_view Fault() const { return std::string_view(what()).substr(0, m_faultSize); }
    /// The field that is at fault; no file name if the error is not one of a field.
    const FieldPlace& Place() const { return m_place; }

private:
    int m_number;
    std::size_t m_faultSize;
    FieldPlace m_place;
};

/// A number that is needed cannot be read, or a sum does not fit.
class DataError : public RuntimeError
{
    using RuntimeError::RuntimeError;
};

/// A text that is not a number is where a number is needed.
class TypeMismatch : public DataError
{
public:
    explicit TypeMismatch(std::string_view value);
    TypeMismatch(std::string_view value, const FieldPlace& place);
};

/// A number or a sum lies outside the 32-bit signed range.
class OverflowError : public DataError
{
public:
    OverflowError();
    explicit OverflowError(std::string_view value);
    OverflowError(std::string_view value, const FieldPlace& place);
};

/// A row has fewer fields than the column that is read needs.
class SubscriptOutOfRange : public DataError
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
