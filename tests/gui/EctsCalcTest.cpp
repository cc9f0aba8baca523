#include "ects/EctsReport.h"
#include "ects/WorkloadModel.h"
#include "ects/frmECTSCalc.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "support/WorkloadWarnings.h"
#include "ui/controls/DecimalSeparator.h"
#include "ui/controls/SharedWindow.h"

#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/radiobut.h>
#include <wx/settings.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/stopwatch.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <functional>
#include <utility>

namespace
{

using Texts = std::vector<std::string>;

const wxColour RedColour(255, 0, 0);
const wxColour BlueColour(0, 0, 255);

const char* const Inputs[] = {
    "txtNazivKolegija",     "txtNositelj",         "txtKomentar",          "txtKontaktniSati(0)",
    "txtKontaktniSati(1)",  "txtKontaktniSati(2)", "txtSamostalniSati(0)", "txtSamostalniSati(1)",
    "txtSamostalniSati(2)", "txtLitStranice(0)",   "txtLitStranice(1)",    "txtLitStranice(2)",
    "txtLitStranice(3)",    "txtLitProcjena(0)",   "txtLitProcjena(1)",    "txtLitProcjena(2)",
    "txtLitProcjena(3)",    "txtOpsegStranice",    "txtOpsegRijeci",       "txtPismeniProcjena",
    "txtOstaleMetode(0)",   "txtOstaleMetode(1)",  "txtOstaleMetode(2)",   "txtOstaleMetode(3)",
    "txtOstaleMetode(4)",   "txtOstaleMetode(5)",  "txtOstaleMetode(6)",   "txtOstaleMetode(8)",
    "txtOstaleMetode(9)",
};

/// Each output, and its text before anything is entered.
const std::pair<const char*, const char*> Outputs[] = {
    {"txtKontaktniUkupno(3)", "0,0"}, {"txtSamostalniUkupno(3)", "0,0"}, {"txtLitIzracun(0)", "0,0"},
    {"txtLitIzracun(1)", "0,0"},      {"txtLitIzracun(2)", "0,0"},       {"txtLitIzracun(3)", "0,0"},
    {"txtLitUkupno", "0,0"},          {"txtPismeniIzracun", "0,0"},      {"txtOstaleMetodeUkupno", "0,0"},
    {"txtUkupnoOpter(0)", "0,0"},     {"txtUkupnoOpter(1)", "0,0"},      {"txtUkupnoOpter(2)", "0,0"},
    {"txtUkupnoOpter(3)", "0,00"},    {"txtUkupnoOpter(4)", "0,00"},
};

/// A figure in this system's format: "," is replaced by the system's separator.
std::string Figure(std::string text)
{
    const std::size_t comma = text.find(',');
    return comma == std::string::npos ? text : text.replace(comma, 1, SystemDecimalSeparator());
}

/// Presses a key in the control that has the focus.
void PressHere(int keyCode, int modifiers = 0)
{
    wxUIActionSimulator().Char(keyCode, modifiers);
    Settle();
}

/// Presses Alt with a letter. Some systems first show the button pressed for a quarter of a second.
void PressAccessKey(char letter)
{
    PressHere(letter, wxMOD_ALT);
    for (wxStopWatch waiting; waiting.Time() < 500;)
        Settle();
}

void TypeHere(const char* text)
{
    wxUIActionSimulator().Text(text);
    Settle();
}

std::string FocusedName()
{
    const wxWindow* focused = wxWindow::FindFocus();
    return focused == nullptr ? "" : focused->GetName().utf8_string();
}

class EctsCalc : public testing::Test
{
protected:
    void SetUp() override { Open(); }
    void TearDown() override { CloseAllWindows(); }

    void Open()
    {
        Window = ShowShared<frmECTSCalc>(nullptr);
        Settle();
    }

    wxTextCtrl* Field(const wxString& name) { return Find<wxTextCtrl>(Window, name); }
    std::string Shown(const wxString& name) { return Field(name)->GetValue().utf8_string(); }
    std::string Warning()
    {
        return Find<wxStaticText>(Window, "lblUpozorenje")->GetLabelText().utf8_string();
    }
    wxColour WarningColour() { return Find<wxStaticText>(Window, "lblUpozorenje")->GetForegroundColour(); }
    bool Enabled(const wxString& name) { return Field(name)->IsEnabled(); }

    /// Types at the end of a box, and stays in it.
    void TypeInto(wxTextCtrl* box, const char* text)
    {
        box->SetInsertionPointEnd();
        Type(box, text);
    }
    void TypeInto(const wxString& name, const char* text) { TypeInto(Field(name), text); }

    /// Activates a box with the mouse, in any window. Without a window manager a click alone does not switch
    /// windows.
    void TurnTo(wxTextCtrl* box)
    {
        wxGetTopLevelParent(box)->Raise();
        Settle();
        Click(box);
        for (const wxStopWatch watch; !box->HasFocus() && watch.Time() < 1000;)
            Settle();
        ASSERT_TRUE(box->HasFocus()) << box->GetName();
    }
    void TurnTo(const wxString& name) { TurnTo(Field(name)); }

    /// Types into a field and leaves it with the Tab key.
    void Enter(const wxString& name, const char* text)
    {
        TypeInto(name, text);
        PressKey(Field(name), WXK_TAB);
    }

    /// Replaces a field's text and computes the figures.
    void Set(const wxString& name, const char* text)
    {
        Field(name)->ChangeValue(text);
        Press(Window, "cmdIzracunaj");
    }

    /// Selects an option as the mouse does, with its event.
    void Select(const wxString& name)
    {
        auto* option = Find<wxRadioButton>(Window, name);
        option->SetValue(true);
        wxCommandEvent event(wxEVT_RADIOBUTTON, option->GetId());
        event.SetEventObject(option);
        option->GetEventHandler()->SafelyProcessEvent(event);
        Settle();
    }

    bool Selected(const wxString& name) { return Find<wxRadioButton>(Window, name)->GetValue(); }

    void ExpectNormModes()
    {
        EXPECT_TRUE(Selected("optLitIzracun"));
        EXPECT_TRUE(Selected("optPismeniIzracun"));
        for (const char* index : {"(0)", "(1)", "(2)", "(3)"})
        {
            EXPECT_TRUE(Enabled(std::string("txtLitStranice") + index));
            EXPECT_FALSE(Enabled(std::string("txtLitProcjena") + index));
        }
        EXPECT_TRUE(Enabled("txtOpsegStranice"));
        EXPECT_TRUE(Enabled("txtOpsegRijeci"));
        EXPECT_FALSE(Enabled("txtPismeniProcjena"));
    }

    void ExpectEmptyForm()
    {
        ExpectNormModes();
        for (const char* name : Inputs)
            EXPECT_EQ(Shown(name), "") << name;
        for (const auto& [name, zero] : Outputs)
            EXPECT_EQ(Shown(name), Figure(zero)) << name;
        EXPECT_EQ(Warning(), NoPages);
        EXPECT_EQ(WarningColour(), RedColour);
    }

    /// The captions in a frame, in tab order.
    Texts LabelsIn(const char* frame)
    {
        const wxRect place = Find<wxStaticBox>(Window, frame)->GetScreenRect();
        Texts labels;
        for (wxWindow* child : Find<wxWindow>(Window, "cmdClose")->GetParent()->GetChildren())
            if (auto* label = dynamic_cast<wxStaticText*>(child);
                label != nullptr && place.Contains(label->GetScreenRect()))
                labels.push_back(label->GetLabelText().utf8_string());
        return labels;
    }

    TestFolder Folder;
    frmECTSCalc* Window = nullptr;
};

// Opening

TEST_F(EctsCalc, OpensEmptyWithTheNormsAndThirtyHours)
{
    EXPECT_EQ(Window->GetTitle(), wxString::FromUTF8("ECTS račun"));
    auto* hours = Find<wxChoice>(Window, "cbo1ECTS");
    EXPECT_EQ(EntriesOfBox(hours), (Texts{"25", "26", "27", "28", "29", "30"}));
    EXPECT_EQ(hours->GetStringSelection(), "30");
    ExpectEmptyForm();
}

TEST_F(EctsCalc, HasItsFramesWithTheirCaptionsAndLabels)
{
    const std::pair<const char*, const char*> frames[] = {
        {"fraOpciPodaci", "Opći podaci"},
        {"fraKontaktnaNastava", "Kontaktna nastava u semestru"},
        {"fraLiteratura", "Literatura"},
        {"fraPismeniZadatak", "Pismeni zadatak"},
        {"fraOstaleMetode", "Druge metode samostalnog učenja"},
        {"fraUkupnoOpter", "Ukupno opterećenje studenta"},
    };
    for (const auto& [name, caption] : frames)
        EXPECT_EQ(Find<wxStaticBox>(Window, name)->GetLabelText().utf8_string(), caption);

    EXPECT_EQ(LabelsIn("fraOpciPodaci"), (Texts{"Naziv kolegija", "Nositelj(i):", "Komentar"}));
    EXPECT_EQ(LabelsIn("fraKontaktnaNastava"), (Texts{"Vrsta nastave", "Kontaktni sati", "Samostalni sati",
                                                      "Predavanja", "Seminari", "Vježbe", "Ukupno"}));
    EXPECT_EQ(LabelsIn("fraLiteratura"),
              (Texts{"Vrsta literature", "Broj stranica", "Norma", "Izračun sati", "Procjena",
                     "Jednostvani tekst", "100 str / 7h", "Teži tekst", "100 str / 10h",
                     "Tekst + bilješke/rec", "100 str / 20h", "Zahtjevni tekst", "100 str / 30h", "Ukupno"}));
    EXPECT_EQ(LabelsIn("fraPismeniZadatak"),
              (Texts{"Opseg u stranicama", "Opseg u riječima", "Izračunato vrijeme", "Vlastita procjena",
                     "Normativ: 250 riječi po stranici, 100 riječi/sat"}));
    EXPECT_EQ(
        LabelsIn("fraOstaleMetode"),
        (Texts{"Pripreme za polaganje ispita", "Samostalno učenje koristeći fakultetske sadržaje",
               "Rješavanje matematičkog problema", "Pripreme za prezentaciju", "Rad u grupi", "E-učenje",
               "Savladavanje računalnih programa", "Pisanje računalnih programa", "Ostalo", "Ukupno"}));
    EXPECT_EQ(LabelsIn("fraUkupnoOpter"),
              (Texts{"Kontaktna nastava", "Nekontaktna nastava", "Ukupno", "ECTS bodovi", "Tjedni bodovi"}));
}

TEST_F(EctsCalc, HasItsOptionsAndButtonsWithTheirCaptions)
{
    for (const char* norm : {"optLitIzracun", "optPismeniIzracun"})
        EXPECT_EQ(Find<wxRadioButton>(Window, norm)->GetLabel(), "Normativ");
    for (const char* estimate : {"optLitProcjena", "optPismeniProcjena"})
        EXPECT_EQ(Find<wxRadioButton>(Window, estimate)->GetLabel(), "Vlastita procjena");
    const std::pair<const char*, const char*> buttons[] = {{"cmdIzracunaj", "&Izračunaj"},
                                                           {"cmdOcisti", "&Očisti"},
                                                           {"cmdExport", "E&xport"},
                                                           {"cmdClose", "&Zatvori"}};
    for (const auto& [name, caption] : buttons)
        EXPECT_EQ(Find<wxButton>(Window, name)->GetLabel().utf8_string(), caption);
    EXPECT_EQ(wxWindow::FindWindowByName("txtOstaleMetode(7)", Window), nullptr);
}

TEST_F(EctsCalc, ShowsItsFiguresReadOnlyOnTheFaceOfAButton)
{
    for (const auto& [name, zero] : Outputs)
    {
        EXPECT_FALSE(Field(name)->IsEditable()) << name;
        EXPECT_EQ(Field(name)->GetBackgroundColour(), wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    }
    for (const char* name : Inputs)
        EXPECT_TRUE(Field(name)->IsEditable()) << name;
    TypeInto("txtLitUkupno", "7");
    EXPECT_EQ(Shown("txtLitUkupno"), Figure("0,0"));
}

TEST_F(EctsCalc, IsWholeAndCentredOnTheScreen)
{
    const wxRect window = Window->GetRect();
    const wxSize screen = wxGetDisplaySize();
    EXPECT_EQ(window.x, (screen.x - window.width) / 2);
    EXPECT_EQ(window.y, (screen.y - window.height) / 2);
    EXPECT_LE(window.width, 1280);
    // Some themes want text boxes much higher than their line; there the window may need more than 768 lines.
    constexpr int usualBox = 28;
    EXPECT_LE(window.height, Field("txtLitUkupno")->GetSize().y <= usualBox ? 720 : screen.y);

    const wxRect client = Window->GetClientRect();
    std::vector<std::string> names(std::begin(Inputs), std::end(Inputs));
    for (const auto& [name, zero] : Outputs)
        names.emplace_back(name);
    names.insert(names.end(), {"cmdIzracunaj", "cmdOcisti", "cmdExport", "cmdClose"});
    for (const std::string& name : names)
    {
        auto* control = Find<wxWindow>(Window, name);
        const wxRect place(Window->ScreenToClient(control->GetScreenPosition()), control->GetSize());
        EXPECT_TRUE(client.Contains(place)) << name;
        EXPECT_GE(place.width, 50) << name;
        EXPECT_GE(place.height, 18) << name;
    }
}

TEST_F(EctsCalc, AlignsItsColumns)
{
    const auto left = [this](const std::string& name) { return Field(name)->GetScreenRect(); };
    for (const char* column : {"txtLitStranice", "txtLitIzracun", "txtLitProcjena"})
        for (const char* index : {"(1)", "(2)", "(3)"})
        {
            EXPECT_EQ(left(std::string(column) + index).x, left(std::string(column) + "(0)").x);
            EXPECT_EQ(left(std::string(column) + index).width, left(std::string(column) + "(0)").width);
        }
    for (const char* row : {"(0)", "(1)", "(2)", "(3)"})
        EXPECT_EQ(left(std::string("txtLitStranice") + row).y, left(std::string("txtLitProcjena") + row).y);
    EXPECT_EQ(left("txtLitUkupno").x, left("txtLitIzracun(0)").x);
    EXPECT_EQ(left("txtKontaktniUkupno(3)").x, left("txtKontaktniSati(0)").x);
    EXPECT_EQ(left("txtOstaleMetodeUkupno").x, left("txtOstaleMetode(9)").x);
}

// Entering

TEST_F(EctsCalc, ComputesWhenAFieldIsLeftAndNotWhileTyping)
{
    TypeInto("txtOstaleMetode(9)", "2,5");
    EXPECT_EQ(Shown("txtOstaleMetodeUkupno"), Figure("0,0"));
    PressKey(Field("txtOstaleMetode(9)"), WXK_TAB);
    EXPECT_EQ(Shown("txtOstaleMetode(9)"), "2,5") << "what was typed stays as it is";
    EXPECT_EQ(Shown("txtOstaleMetodeUkupno"), Figure("2,5"));
    EXPECT_EQ(Shown("txtUkupnoOpter(2)"), Figure("2,5"));
}

TEST_F(EctsCalc, ComputesOnLeavingEveryFieldThatCounts)
{
    const std::pair<const char*, const char*> counting[] = {
        {"txtSamostalniSati(1)", "txtSamostalniUkupno(3)"}, {"txtLitStranice(3)", "txtLitIzracun(3)"},
        {"txtOpsegStranice", "txtPismeniIzracun"},          {"txtOpsegRijeci", "txtUkupnoOpter(1)"},
        {"txtOstaleMetode(8)", "txtOstaleMetodeUkupno"},
    };
    for (const auto& [input, output] : counting)
    {
        Press(Window, "cmdOcisti");
        Enter(input, "4000");
        EXPECT_NE(Shown(output), Figure("0,0")) << input;
    }
    Press(Window, "cmdOcisti");
    Select("optLitProcjena");
    Enter("txtLitProcjena(2)", "4");
    EXPECT_EQ(Shown("txtLitUkupno"), Figure("4,0"));
    Select("optPismeniProcjena");
    Enter("txtPismeniProcjena", "3");
    EXPECT_EQ(Shown("txtUkupnoOpter(1)"), Figure("7,0"));
}

TEST_F(EctsCalc, ProposesSelfStudyHoursOnLeavingTheContactHours)
{
    const std::pair<const char*, const char*> rows[] = {{"(0)", "15,0"}, {"(1)", "30,0"}, {"(2)", "15,0"}};
    for (const auto& [row, proposal] : rows)
    {
        Enter(std::string("txtKontaktniSati") + row, "30");
        EXPECT_EQ(Shown(std::string("txtSamostalniSati") + row), Figure(proposal));
    }
    EXPECT_EQ(Shown("txtKontaktniUkupno(3)"), Figure("90,0"));
    EXPECT_EQ(Shown("txtSamostalniUkupno(3)"), Figure("60,0"));
}

TEST_F(EctsCalc, LeavesSelfStudyHoursThatWereEntered)
{
    Set("txtLitStranice(1)", "250");
    Set("txtOpsegStranice", "10");
    Set("txtSamostalniSati(0)", "0");
    Enter("txtKontaktniSati(0)", "30");
    EXPECT_EQ(Shown("txtSamostalniSati(0)"), "0");
    EXPECT_EQ(Warning(), NoSelfStudy);
}

TEST_F(EctsCalc, TurningToAnotherWindowIsNotLeavingAField)
{
    const wxPoint corner(wxGetDisplaySize().x - 320, 0); // away from the contact hours
    auto* other = new wxFrame(nullptr, wxID_ANY, "other", corner, wxSize(320, 120));
    auto* elsewhere = new wxTextCtrl(other, wxID_ANY);
    other->Show();
    Settle();

    TurnTo("txtKontaktniSati(0)");
    TypeInto("txtKontaktniSati(0)", "3");
    TurnTo(elsewhere);
    TypeInto(elsewhere, "x");
    EXPECT_EQ(Shown("txtSamostalniSati(0)"), "");
    EXPECT_EQ(Shown("txtKontaktniUkupno(3)"), Figure("0,0"));
    TurnTo("txtKontaktniSati(0)");
    Enter("txtKontaktniSati(0)", "0");
    EXPECT_EQ(Shown("txtKontaktniSati(0)"), "30");
    EXPECT_EQ(Shown("txtSamostalniSati(0)"), Figure("15,0"));

    // Return to another field than the focused one: that leaves the field.
    TurnTo("txtKontaktniSati(1)");
    TypeInto("txtKontaktniSati(1)", "10");
    TurnTo(elsewhere);
    EXPECT_EQ(Shown("txtSamostalniSati(1)"), "");
    TurnTo("txtOstaleMetode(9)");
    EXPECT_EQ(Shown("txtSamostalniSati(1)"), Figure("10,0"));
}

TEST_F(EctsCalc, AClickOrAnAccessKeyLeavesAField)
{
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"the access key of a button", [] { PressAccessKey('I'); }},
        {"a click on a button", [this] { Click(Find<wxWindow>(Window, "cmdIzracunaj")); }},
        {"a click on an option", [this] { Click(Find<wxWindow>(Window, "optPismeniProcjena")); }},
        {"a click on a field", [this] { TurnTo("txtKomentar"); }},
        {"a click on a list",
         [this]
         {
             Click(Find<wxWindow>(Window, "cbo1ECTS"));
             PressHere(WXK_ESCAPE);
         }},
    };
    for (const auto& [way, leave] : ways)
    {
        Press(Window, "cmdOcisti");
        TurnTo("txtKontaktniSati(0)");
        TypeInto("txtKontaktniSati(0)", "30");
        EXPECT_EQ(Shown("txtSamostalniSati(0)"), "") << way;
        leave();
        EXPECT_EQ(Shown("txtSamostalniSati(0)"), Figure("15,0")) << way;
        EXPECT_EQ(Shown("txtUkupnoOpter(2)"), Figure("45,0")) << way;
    }
}

TEST_F(EctsCalc, ReadsPointAndCommaAlikeAndOtherTextAsZero)
{
    Set("txtOstaleMetode(0)", "2.5");
    Set("txtOstaleMetode(1)", "2,5");
    Set("txtOstaleMetode(2)", "abc");
    Set("txtOstaleMetode(3)", " 7 ");
    EXPECT_EQ(Shown("txtOstaleMetodeUkupno"), Figure("12,0"));
}

TEST_F(EctsCalc, CountsTheTotalsAsTheyAreShown)
{
    Set("txtSamostalniSati(0)", "0.04");
    EXPECT_EQ(Shown("txtSamostalniUkupno(3)"), Figure("0,0"));
    EXPECT_EQ(Shown("txtUkupnoOpter(2)"), Figure("0,0"));
}

TEST_F(EctsCalc, RoundsAsOnPaper)
{
    Set("txtLitStranice(0)", "45");
    EXPECT_EQ(Shown("txtLitIzracun(0)"), Figure("3,2"));
}

// Options

TEST_F(EctsCalc, SwitchingLiteratureToTheEstimateSwitchesItsFields)
{
    Set("txtLitStranice(1)", "250");
    EXPECT_EQ(Shown("txtLitUkupno"), Figure("25,0"));
    Select("optLitProcjena");
    for (const char* index : {"(0)", "(1)", "(2)", "(3)"})
    {
        EXPECT_FALSE(Enabled(std::string("txtLitStranice") + index));
        EXPECT_TRUE(Enabled(std::string("txtLitProcjena") + index));
    }
    EXPECT_TRUE(Enabled("txtOpsegStranice")) << "the written assignment has options of its own";
    EXPECT_EQ(Warning(), NoEstimate);
    EXPECT_EQ(WarningColour(), RedColour);
    EXPECT_EQ(Shown("txtLitUkupno"), Figure("0,0"));
    EXPECT_EQ(Shown("txtLitStranice(1)"), "250") << "a disabled field keeps its text";
    EXPECT_EQ(Shown("txtLitIzracun(1)"), Figure("25,0"));

    Set("txtLitProcjena(0)", "4");
    EXPECT_EQ(Shown("txtLitUkupno"), Figure("4,0"));
    Select("optLitIzracun");
    EXPECT_EQ(Shown("txtLitUkupno"), Figure("25,0"));
    ExpectNormModes();
}

TEST_F(EctsCalc, SwitchingTheWrittenAssignmentToTheEstimateSwitchesItsFields)
{
    Set("txtOpsegStranice", "10");
    Set("txtOpsegRijeci", "2000");
    EXPECT_EQ(Shown("txtPismeniIzracun"), Figure("25,0"));
    EXPECT_EQ(Shown("txtUkupnoOpter(1)"), Figure("25,0"));
    Select("optPismeniProcjena");
    EXPECT_FALSE(Enabled("txtOpsegStranice"));
    EXPECT_FALSE(Enabled("txtOpsegRijeci"));
    EXPECT_TRUE(Enabled("txtPismeniProcjena"));
    EXPECT_EQ(Shown("txtPismeniIzracun"), Figure("25,0"));
    EXPECT_EQ(Shown("txtUkupnoOpter(1)"), Figure("0,0"));
}

TEST_F(EctsCalc, ChoosingTheHoursOfAPointChangesThePointsAtOnce)
{
    Set("txtOstaleMetode(0)", "150");
    EXPECT_EQ(Shown("txtUkupnoOpter(3)"), Figure("5,00"));
    EXPECT_EQ(Shown("txtUkupnoOpter(4)"), Figure("3,75"));
    Choose(Find<wxChoice>(Window, "cbo1ECTS"), "25");
    EXPECT_EQ(Shown("txtUkupnoOpter(3)"), Figure("6,00"));
    EXPECT_EQ(Shown("txtUkupnoOpter(4)"), Figure("4,50"));
}

TEST_F(EctsCalc, WarnsOfOneThingAtATimeInTheirOrder)
{
    const auto expectWarning = [this](const char* text)
    {
        EXPECT_EQ(Warning(), text);
        EXPECT_EQ(WarningColour(), text == NoWarning ? BlueColour : RedColour);
    };
    Set("txtOpsegStranice", "1");
    Set("txtOpsegRijeci", "1");
    Set("txtKontaktniSati(0)", "-1");
    Select("optPismeniProcjena");
    Select("optLitProcjena");
    expectWarning(NoEstimate);
    Select("optLitIzracun");
    expectWarning(NoPages);
    Set("txtLitStranice(0)", "0,1");
    expectWarning(PagesAndWords);
    Set("txtOpsegRijeci", "");
    expectWarning(NoWrittenEstimate);
    Set("txtOpsegStranice", "");
    Select("optPismeniIzracun");
    expectWarning(NoWrittenExtent);
    Set("txtOpsegRijeci", "1");
    Set("txtKontaktniSati(0)", "1");
    expectWarning(NoSelfStudy);
    Set("txtKontaktniSati(0)", "");
    expectWarning(NoWorkload);
    Set("txtOstaleMetode(9)", "0,1");
    expectWarning(NoWarning);
}

TEST_F(EctsCalc, DoesNotComputeInsideAComputation)
{
    auto* warning = Find<wxStaticText>(Window, "lblUpozorenje");
    auto* button = Find<wxButton>(Window, "cmdIzracunaj");
    int computations = 0;
    // The size of the warning changes when the computation shows it.
    warning->Bind(wxEVT_SIZE,
                  [&](wxSizeEvent& size)
                  {
                      size.Skip();
                      ++computations;
                      Field("txtOstaleMetode(0)")->ChangeValue("7");
                      wxCommandEvent press(wxEVT_BUTTON, button->GetId());
                      button->GetEventHandler()->SafelyProcessEvent(press);
                  });
    Field("txtLitStranice(0)")->ChangeValue("100");
    wxCommandEvent press(wxEVT_BUTTON, button->GetId());
    button->GetEventHandler()->SafelyProcessEvent(press);
    EXPECT_EQ(computations, 1);
    EXPECT_EQ(Warning(), NoWrittenExtent);
    EXPECT_EQ(Shown("txtOstaleMetodeUkupno"), Figure("0,0"));
}

// Clearing

TEST_F(EctsCalc, ClearEmptiesEverythingButTheHoursOfAPoint)
{
    for (const char* name : Inputs)
        Field(name)->ChangeValue("12");
    Select("optLitProcjena");
    Select("optPismeniProcjena");
    Choose(Find<wxChoice>(Window, "cbo1ECTS"), "27");
    EXPECT_NE(Shown("txtUkupnoOpter(3)"), Figure("0,00"));
    Press(Window, "cmdOcisti");
    ExpectEmptyForm();
    EXPECT_EQ(Find<wxChoice>(Window, "cbo1ECTS")->GetStringSelection(), "27");
}

// Errors

TEST_F(EctsCalc, ReportsAnErrorOfTheComputationAndGoesOn)
{
    auto* hours = Find<wxChoice>(Window, "cbo1ECTS");
    hours->Append("trideset");
    Field("txtOstaleMetode(0)")->ChangeValue("4");
    {
        MessageAnswers answers;
        Choose(hours, "trideset");
        const MessageShown message = answers.TakeOnly();
        EXPECT_EQ(message.Text, "Greška kod preračuna: Vrijednost \"trideset\" nije broj.");
        EXPECT_EQ(message.Title, "ECTS račun");
        EXPECT_TRUE(message.Has(wxICON_EXCLAMATION | wxOK));
    }
    EXPECT_EQ(Shown("txtOstaleMetodeUkupno"), Figure("4,0")) << "what came before the error is shown";
    EXPECT_EQ(Shown("txtUkupnoOpter(2)"), Figure("0,0"));
    Choose(hours, "30");
    EXPECT_EQ(Shown("txtUkupnoOpter(2)"), Figure("4,0"));
}

// Export

TEST_F(EctsCalc, ExportsAnEmptyForm)
{
    const SaveAnswers save(Folder.PathOf("report.csv"));
    MessageAnswers answers;
    Press(Window, "cmdExport");

    const MessageShown message = answers.TakeOnly();
    EXPECT_EQ(message.Text, "CSV izvještaj je uspješno spremljen.");
    EXPECT_EQ(message.Title, "Export");
    EXPECT_TRUE(message.Has(wxICON_INFORMATION | wxOK));

    ASSERT_EQ(save.Shown().size(), 1U);
    const SaveDialogOptions& options = save.Shown().front();
    EXPECT_EQ(options.Title, "Spremi CSV izvještaj");
    EXPECT_EQ(options.Filter, "CSV datoteke (*.csv)|*.csv|Sve datoteke (*.*)|*.*");
    EXPECT_EQ(options.DefaultExtension, "csv");
    EXPECT_EQ(options.ProposedName, ".csv");
    EXPECT_FALSE(options.OverwritePrompt);
    EXPECT_FALSE(options.PathMustExist);

    std::string expected = ExpectedFile("ects_empty.csv");
    if (SystemDecimalSeparator() != ",")
        std::ranges::replace(expected, ',', SystemDecimalSeparator().front());
    EXPECT_EQ(ReadBytes(Folder.Path() / "report.csv"), expected);
}

TEST_F(EctsCalc, ExportsWhatItShows)
{
    Field("txtNazivKolegija")->ChangeValue(wxString::FromUTF8("  Čuvanje; \"lov\" "));
    Field("txtKomentar")->ChangeValue("prvi\ndrugi");
    Field("txtKontaktniSati(0)")->ChangeValue("30");
    Field("txtOstaleMetode(8)")->ChangeValue("12,5");
    Select("optPismeniProcjena");
    WriteBytes(Folder.Path() / "report.csv", "an older report, longer than nothing");
    // Changed after the last computation: the report must have the new figures.
    Field("txtOstaleMetode(9)")->ChangeValue("1");

    const SaveAnswers save("  " + Folder.PathOf("report.csv") + " ");
    MessageAnswers answers;
    Press(Window, "cmdExport");
    EXPECT_EQ(answers.TakeOnly().Text, "CSV izvještaj je uspješno spremljen.");
    EXPECT_EQ(save.Shown().front().ProposedName, "Čuvanje; \"lov\".csv");

    WorkloadFields fields;
    fields.NazivKolegija = "  Čuvanje; \"lov\" ";
    fields.Komentar = "prvi\r\ndrugi";
    fields.KontaktniSati[0] = "30";
    fields.OstaleMetode[7] = "12,5";
    fields.OstaleMetode[8] = "1";
    fields.PismeniByEstimate = true;
    WorkloadModel(fields, SystemDecimalSeparator()).Recalculate();
    WriteEctsReport(Folder.PathOf("expected.csv"), fields);
    const std::string written = ReadBytes(Folder.Path() / "report.csv");
    EXPECT_EQ(written, ReadBytes(Folder.Path() / "expected.csv"));
    EXPECT_NE(written.find("Naziv kolegija;\"  \xC8uvanje; \"\"lov\"\" \"\r\n"), std::string::npos);
    EXPECT_NE(written.find("Komentar;\"prvi\r\ndrugi\"\r\n"), std::string::npos);
    EXPECT_NE(written.find("\r\nUkupno;" + Figure("13,5") + "\r\n\r\n"), std::string::npos);
}

TEST_F(EctsCalc, CancellingTheExportWritesAndSaysNothing)
{
    const MessageAnswers answers;
    for (const std::optional<std::string>& cancelled : {std::optional<std::string>(), {"   "}})
    {
        const SaveAnswers save(cancelled);
        Press(Window, "cmdExport");
        EXPECT_EQ(save.Shown().size(), 1U);
    }
    EXPECT_TRUE(answers.Shown().empty());
    EXPECT_EQ(EntriesOf(Folder.Path()), Texts{"Varlostudiji"});
}

TEST_F(EctsCalc, AFailedExportIsReportedAndLeavesAnOlderReport)
{
    const std::filesystem::path file = Folder.Path() / "report.csv";
    WriteBytes(file, "an older report");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    const std::pair<const char*, const char*> targets[] = {
        {"report.csv", "Greška kod izvoza: Pristup nije dopušten"},
        {"missing/report.csv", "Greška kod izvoza: Datoteka ili mapa nije pronađena"},
    };
    for (const auto& [target, text] : targets)
    {
        const SaveAnswers save(Folder.PathOf(target));
        MessageAnswers answers;
        Press(Window, "cmdExport");
        const MessageShown message = answers.TakeOnly();
        EXPECT_EQ(message.Text.find(text), 0U) << message.Text;
        EXPECT_EQ(message.Title, "Export");
        EXPECT_TRUE(message.Has(wxICON_EXCLAMATION | wxOK));
        EXPECT_EQ(ReadBytes(file), "an older report");
    }
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    EXPECT_EQ(EntriesOf(Folder.Path()), (Texts{"Varlostudiji", "report.csv"}));
    EXPECT_EQ(FindOpen<frmECTSCalc>(), Window);
}

// Keyboard only

/// Presses Tab until a control has the focus; if it never has, reports the controls on the way.
void TabTo(const std::string& name)
{
    std::string way;
    for (int presses = 0; presses < 60 && FocusedName() != name; ++presses)
    {
        PressHere(WXK_TAB);
        way.append(" ").append(FocusedName());
    }
    ASSERT_EQ(FocusedName(), name) << "Tab led through" << way;
}

// An arrow key selects the next option at once, but under Wine it only moves the focus there.
void SelectNext()
{
    PressHere(WXK_RIGHT);
    PressHere(WXK_SPACE);
}

void SelectPrevious()
{
    PressHere(WXK_LEFT);
    PressHere(WXK_SPACE);
}

TEST_F(EctsCalc, TabFollowsTheLayoutAndPassesOverTheFigures)
{
    const Texts expected = {
        "txtNazivKolegija",
        "txtNositelj",
        "txtKomentar",
        "txtKontaktniSati(0)",
        "txtSamostalniSati(0)",
        "txtKontaktniSati(1)",
        "txtSamostalniSati(1)",
        "txtKontaktniSati(2)",
        "txtSamostalniSati(2)",
        "optLitIzracun",
        "txtLitStranice(0)",
        "txtLitStranice(1)",
        "txtLitStranice(2)",
        "txtLitStranice(3)",
        "optPismeniIzracun",
        "txtOpsegStranice",
        "txtOpsegRijeci",
        "txtOstaleMetode(0)",
        "txtOstaleMetode(1)",
        "txtOstaleMetode(2)",
        "txtOstaleMetode(3)",
        "txtOstaleMetode(4)",
        "txtOstaleMetode(5)",
        "txtOstaleMetode(6)",
        "txtOstaleMetode(8)",
        "txtOstaleMetode(9)",
        "cbo1ECTS",
        "cmdIzracunaj",
        "cmdOcisti",
        "cmdExport",
        "cmdClose",
    };
    Texts way = {FocusedName()};
    while (way.size() < expected.size())
    {
        PressHere(WXK_TAB);
        way.push_back(FocusedName());
    }
    // Some systems do not report the focus of a drop-down list.
    std::ranges::replace(way, "", "cbo1ECTS");
    EXPECT_EQ(way, expected);
}

TEST_F(EctsCalc, IsFilledInAndExportedByTheKeyboardAlone)
{
    const SaveAnswers save(Folder.PathOf("report.csv"));
    MessageAnswers answers;

    TypeHere("Lov");
    TabTo("txtKomentar");
    TypeHere("a");
    PressHere(WXK_RETURN);
    TypeHere("b");
    TabTo("txtKontaktniSati(0)");
    TypeHere("30");
    TabTo("txtKontaktniSati(1)");
    EXPECT_EQ(Shown("txtSamostalniSati(0)"), Figure("15,0"));
    TabTo("optLitIzracun");
    SelectNext();
    EXPECT_TRUE(Selected("optLitProcjena"));
    EXPECT_EQ(Warning(), NoEstimate);
    TabTo("txtLitProcjena(0)");
    TypeHere("20");
    TabTo("optPismeniIzracun");
    SelectNext();
    SelectPrevious();
    EXPECT_TRUE(Selected("optPismeniIzracun"));
    TabTo("txtOpsegStranice");
    TypeHere("10");
    TabTo("txtOstaleMetode(9)");
    TypeHere("1,5");
    PressHere(WXK_TAB);
    EXPECT_EQ(Warning(), NoWarning);
    EXPECT_EQ(Shown("txtUkupnoOpter(2)"), Figure("91,5"));

    PressAccessKey('X');
    EXPECT_EQ(answers.TakeOnly().Text, "CSV izvještaj je uspješno spremljen.");
    const std::string written = ReadBytes(Folder.Path() / "report.csv");
    EXPECT_NE(written.find("Komentar;\"a\r\nb\"\r\n"), std::string::npos);
    EXPECT_NE(written.find("\r\nECTS bodovi;" + Figure("3,05") + "\r\n"), std::string::npos);

    PressAccessKey('Z');
    EXPECT_EQ(FindOpen<frmECTSCalc>(), nullptr);
}

TEST_F(EctsCalc, AccessKeysPressItsButtons)
{
    Field("txtOstaleMetode(0)")->ChangeValue("5");
    PressAccessKey('I');
    EXPECT_EQ(Shown("txtOstaleMetodeUkupno"), Figure("5,0"));
    PressAccessKey('O');
    ExpectEmptyForm();
}

// One shared window

TEST_F(EctsCalc, OpensOnceAndKeepsItsEntries)
{
    Set("txtOstaleMetode(0)", "5");
    EXPECT_EQ(ShowShared<frmECTSCalc>(nullptr), Window);
    EXPECT_EQ(Shown("txtOstaleMetode(0)"), "5");
}

TEST_F(EctsCalc, StartsEmptyAfterClosing)
{
    Choose(Find<wxChoice>(Window, "cbo1ECTS"), "25");
    Select("optLitProcjena");
    TypeInto("txtKontaktniSati(0)", "30");
    Press(Window, "cmdClose");
    EXPECT_EQ(FindOpen<frmECTSCalc>(), nullptr);
    EXPECT_EQ(TakeUncaughtError(), "");
    Open();
    ExpectEmptyForm();
    EXPECT_EQ(Find<wxChoice>(Window, "cbo1ECTS")->GetStringSelection(), "30");
}

} // namespace
