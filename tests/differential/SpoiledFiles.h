#pragma once

#include "differential/RandomCatalogue.h"

/// The files with a few of them spoiled as editors and spreadsheets do it: line ends, letters, quotes, rows
/// of separators, headers. A fifth stays as it is.
CatalogueFiles Spoiled(CatalogueFiles files, Chance& chance);
