#pragma once

#include <string>
#include <string_view>

/// A key for sorting by the Croatian alphabet: texts (UTF-8) are in order if their keys are, compared byte by
/// byte. Upper and lower case are alike. "dž", "lj" and "nj" are letters; q, w, x and y have their usual
/// places; a foreign letter counts as the letter that it is a variant of. Blanks, punctuation and digits come
/// before letters, in the order of their codes: numbers sort as text.
std::string CroatianSortKey(std::string_view text);
