#pragma once

// The warnings of the ECTS calculator.

inline constexpr const char* NoEstimate =
    "Odabrana je vlastita procjena literature, ali procjena nije unesena.";
inline constexpr const char* NoPages = "Odabran je normativ literature, ali broj stranica nije unesen.";
inline constexpr const char* PagesAndWords = "Za pismeni zadatak unesite ili stranice ili riječi, ne oboje.";
inline constexpr const char* NoWrittenEstimate =
    "Odabrana je vlastita procjena pismenog zadatka, ali procjena nije unesena.";
inline constexpr const char* NoWrittenExtent = "Odabran je normativ pismenog zadatka, ali nije unesen opseg.";
inline constexpr const char* NoSelfStudy = "Unesena je kontaktna nastava, ali samostalni sati nisu uneseni.";
inline constexpr const char* NoWorkload = "Ukupno opterećenje nije uneseno.";
inline constexpr const char* NoWarning = "Nema upozorenja.";
