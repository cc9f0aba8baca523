#pragma once

/// Shows the toolkit's own words (buttons, the Save dialog) in the desktop's language. Numbers and sorting
/// stay in the "C" locale, since files and sums must not depend on the desktop.
void UseDesktopLanguage();
