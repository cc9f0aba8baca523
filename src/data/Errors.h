#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

/// Where a faulty field is in a table's file, for the user to find it.
struct FieldPlace
{
    std::string_view FileName;
    std::size_t Line = 0; ///< From 1 for the header; 0 for a row that no file holds yet.
    std::string_view Column;

    bool operator==(const FieldPlace&) const = default;
};

/// An error shown to the user: its number, and its text (Croatian, UTF-8) as what().
///
/// A comment names after `@throws` what a function throws: `DataError` for all errors that the content of the
/// tables can cause, `FileError` for all that files and folders can cause. `RuntimeError` means any error
/// with a number.
class RuntimeError : public std::runtime_error
{
public:
    RuntimeError(int number, const std::string& text);

    /// An error in a field: what() is the fault followed by the place.
    RuntimeError(int number, std::string_view fault, const FieldPlace& place);

    int Number() const { return m_number; }

    /// The text without the place.
    std::string_view Fault() const { return std::string_view(what()).substr(0, m_faultSize); }
    /// The faulty field; its file name is empty if the error is not in a field.
    const FieldPlace& Place() const { return m_place; }

private:
    int m_number;
    std::size_t m_faultSize;
    FieldPlace m_place;
};

/// The tables hold something that cannot be used: a field that is missing or is not a number, or a number or
/// sum that is out of range. The three errors below are of this kind.
class DataError : public RuntimeError
{
    using RuntimeError::RuntimeError;
};

/// A number is needed, but the text is not one.
class TypeMismatch : public DataError
{
public:
    explicit TypeMismatch(std::string_view value);
    TypeMismatch(std::string_view value, const FieldPlace& place);
};

/// A number or a sum is outside the 32-bit signed range.
class OverflowError : public DataError
{
public:
    OverflowError();
    explicit OverflowError(std::string_view value);
    OverflowError(std::string_view value, const FieldPlace& place);
};

/// A row is too short: it has no field in the column that is needed.
class SubscriptOutOfRange : public DataError
{
public:
    explicit SubscriptOutOfRange(const FieldPlace& place);
};

/// A file is empty: its first line is missing.
class InputPastEnd : public RuntimeError
{
public:
    explicit InputPastEnd(std::string_view path);
};

/// A file or folder could not be found, read or written. A function that writes a file leaves the old file
/// or the new one when it throws this, never a part.
class FileError : public RuntimeError
{
public:
    FileError(std::error_code cause, std::string_view path);
};

/// The catalogue is saved, but not all of its files hold it yet. The next start or save finishes the work.
class SaveNotFinished : public RuntimeError
{
public:
    explicit SaveNotFinished(const FileError& cause);
};
