#pragma once

#include <cstdint>

/// Removes a course and its links to directions and lecturers from the tables; the files stay.
/// @throws DataError for an ID that cannot be compared
void DeleteKolegij(std::int32_t id);
