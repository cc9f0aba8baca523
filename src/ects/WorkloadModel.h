#pragma once

#include "ui/controls/TextColour.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// A kind of contact teaching, and the hours of self-study for each hour of it.
struct ContactTeaching
{
    std::string_view Label;
    double SelfStudyFactor;
};

inline constexpr std::array<ContactTeaching, 3> ContactRows = {{
    {"Predavanja", 0.5},
    {"Seminari", 1.0},
    {"Vježbe", 0.5},
}};

/// A kind of literature, and the hours for 100 pages of it.
struct Literature
{
    std::string_view Label;
    std::string_view NormLabel;
    double HoursPer100Pages;
};

inline constexpr std::array<Literature, 4> LiteratureRows = {{
    {"Jednostvani tekst", "100 str / 7h", 7}, // the window's spelling; the report spells it in its own way
    {"Teži tekst", "100 str / 10h", 10},
    {"Tekst + bilješke/rec", "100 str / 20h", 20},
    {"Zahtjevni tekst", "100 str / 30h", 30},
}};

/// Another method of self-study, and the index of its field.
struct OtherMethod
{
    int Index;
    std::string_view Label;
};

inline constexpr std::array<OtherMethod, 9> OtherMethods = {{
    {0, "Pripreme za polaganje ispita"},
    {1, "Samostalno učenje koristeći fakultetske sadržaje"},
    {2, "Rješavanje matematičkog problema"},
    {3, "Pripreme za prezentaciju"},
    {4, "Rad u grupi"},
    {5, "E-učenje"},
    {6, "Savladavanje računalnih programa"},
    {8, "Pisanje računalnih programa"}, // there is no 7
    {9, "Ostalo"},
}};

/// The totals of the workload, in the order of their fields.
enum Total : std::size_t
{
    ContactTotal,
    NonContactTotal,
    WholeTotal,
    EctsPoints,
    WeeklyPoints,
};

inline constexpr std::array<std::string_view, 5> TotalLabels = {"Kontaktna nastava", "Nekontaktna nastava",
                                                                "Ukupno", "ECTS bodovi", "Tjedni bodovi"};

inline constexpr double HoursPerWrittenPage = 2.5;
inline constexpr double WordsPerWrittenHour = 400;
inline constexpr double WeeklyShare = 0.75; ///< Weekly points per point, for any number of weeks.

/// The hours per point to choose from, and the position of the initial choice.
inline constexpr std::array<std::string_view, 6> HoursPerEctsChoices = {"25", "26", "27", "28", "29", "30"};
inline constexpr int InitialHoursPerEcts = 5;

/// The texts of the calculator's fields as shown, and the choices.
struct WorkloadFields
{
    std::string NazivKolegija, Nositelj, Komentar;

    std::array<std::string, ContactRows.size()> KontaktniSati, SamostalniSati;
    std::string KontaktniUkupno, SamostalniUkupno;

    std::array<std::string, LiteratureRows.size()> LitStranice, LitIzracun, LitProcjena;
    std::string LitUkupno;
    bool LitByEstimate = false; ///< The user's own estimate counts instead of the norm.

    std::string OpsegStranice, OpsegRijeci, PismeniIzracun, PismeniProcjena;
    bool PismeniByEstimate = false;

    std::array<std::string, OtherMethods.size()> OstaleMetode; ///< In the order of OtherMethods.
    std::string OstaleMetodeUkupno;

    std::array<std::string, TotalLabels.size()> UkupnoOpter;
    std::string SatiPoEcts; ///< The chosen hours per point; empty when none is chosen.

    std::string_view Upozorenje;
    TextColour BojaUpozorenja = TextColours::Red;
};

/// Estimates a student's workload for a course in hours per semester, and converts it to ECTS points. Every
/// figure is read from a field's text and written back as text, so that the totals fit the figures that the
/// user sees.
class WorkloadModel
{
public:
    /// `fields` are read and written; figures are written with the user's decimal separator.
    WorkloadModel(WorkloadFields& fields, std::string decimalSeparator);

    /// Fills in the self-study hours of a row of contact teaching, if the user has entered none.
    void ProposeSelfStudy(std::size_t row);

    /// Computes all figures and the warning. After an error, the fields written before it stay.
    /// @throws TypeMismatch if the chosen hours per point are not a number
    void Recalculate();

    /// Sets the warning to the first thing that is missing or contradictory. The last step of Recalculate.
    void UpdateWarnings();

    // The hours that result from the entries.

    double LiteratureNormHours() const;
    double LiteratureEstimateHours() const;
    double LiteratureHours() const; ///< By norm or by estimate, as chosen.
    double WrittenHours() const;    ///< By norm or by estimate, as chosen.

    /// The chosen hours per point; 30 if none are chosen. @throws TypeMismatch
    double HoursPerEcts() const;

    /// Hours of self-study for each hour of contact teaching of a row; 0 if there is no such row.
    static double SelfStudyFactor(std::size_t row);

private:
    double ReadNumber(std::string_view field) const;
    std::string FormatFixed(double value, std::string_view pattern) const;
    double SumOf(const auto& fields) const;
    bool AnyAboveZero(const auto& fields) const;
    double NormHours(std::size_t literatureRow) const;
    double WrittenNormHours() const;
    void WriteTotals();
    std::string_view FirstWarning() const;

    WorkloadFields& m_fields;
    std::string m_decimalSeparator;
};
