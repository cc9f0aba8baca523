#pragma once

#include "data/Errors.h"
#include "data/Windows1250.h"
#include "ui/controls/ListModel.h"
#include "ui/department_stats/DepartmentStatistics.h"
#include "ui/lecturer_stats/LecturerStatistics.h"
#include "ui/main/CourseList.h"

#include <cstdint>
#include <string>
#include <vector>

// Answers as text, so that they can be compared and printed alike.

inline std::string Shown(const std::string& text)
{
    return text;
}

/// The bytes of a file.
struct Bytes
{
    std::string Content;
};

/// A printable character for every byte; CR is written \r.
inline std::string Shown(const Bytes& bytes)
{
    std::string text;
    for (const char character : FromWindows1250(bytes.Content))
        if (character == '\r')
            text += "\\r";
        else
            text += character;
    return text;
}

inline std::string Shown(std::int32_t number)
{
    return std::to_string(number);
}

inline std::string Shown(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += "[" + line + "]\n";
    return text;
}

inline std::string Shown(const std::vector<ListRow>& rows)
{
    std::string text;
    for (const ListRow& row : rows)
    {
        for (const ListCell& cell : row)
            text += "[" + cell.Text + (cell.Bold ? "*" : "") +
                    (cell.Colour == TextColours::Black ? "" : "#" + std::to_string(cell.Colour)) + "]";
        text += "\n";
    }
    return text;
}

inline std::string Shown(const CourseFilter& filter)
{
    return "(" + std::to_string(filter.StudijID) + ", " + std::to_string(filter.SmjerID) + ", " +
           std::to_string(filter.Semestar) + ", \"" + filter.Search + "\")";
}

inline std::string Shown(const LecturerFilter& filter)
{
    return "(" + filter.Razina + ", " + filter.Program + ")";
}

inline std::string Shown(const DepartmentFilter& filter)
{
    return "(" + filter.Razina + ", " + filter.Semestar + ")";
}

/// The answer to a question, or one of the program's errors.
template<typename Answer>
std::string AnswerOf(const Answer& answer)
{
    try
    {
        return Shown(answer());
    }
    catch (const RuntimeError& error)
    {
        return "error " + std::to_string(error.Number()) + ": " + error.what();
    }
}
