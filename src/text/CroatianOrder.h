#pragma once

#include <string>
#include <string_view>

/// A key for sorting by the Croatian alphabet: texts (UTF-8) are in order when their keys, compared byte by
/// byte, are. Upper and lower case are alike, "dž", "lj" and "nj" are letters of their own, q w x y have
/// their usual places, a foreign letter counts as the letter that it is a variant of. Blanks, punctuation and
/// digits come before letters, in the order of their codes: numbers sort as text.
std::string CroatianSortKey(std::string_view text);
