#pragma once

#include "differential/RandomCatalogue.h"

/// The files, some of them spoiled as editors and spreadsheets do: line ends, letters, quotes, rows of
/// separators, headers. A fifth of the catalogues stays unchanged.
CatalogueFiles Spoiled(CatalogueFiles files, Chance& chance);
