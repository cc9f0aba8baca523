#include "ui/course_editor/frmKolegij.h"

#include "data/CheckedNumbers.h"
#include "data/TableChoices.h"
#include "ui/controls/CenterForm.h"
#include "ui/controls/Choices.h"
#include "ui/controls/Controls.h"
#include "ui/controls/Messages.h"
#include "ui/controls/NativeFields.h"
#include "ui/controls/OptionalSelection.h"
#include "ui/controls/Strings.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>

namespace
{

constexpr std::string_view Title = "Kolegij";

const wxSize InitialSize = {760, 560}; // at 96 dots to the inch
const wxSize SmallestSize = {620, 460};

// The misspelling is intended.
constexpr std::string_view NositeljLabels[NositeljPlaces] = {"1. nostielj", "2. nostielj", "3. nostielj"};

/// Selects every entry with one of the numbers.
void SelectAll(wxListBox& list, const std::vector<std::int32_t>& numbers)
{
    const int count = static_cast<int>(list.GetCount());
    for (int position = 0; position < count; ++position)
        if (std::ranges::find(numbers, DataAt(list, position)) != numbers.end())
            list.SetSelection(position);
}

} // namespace

frmKolegij::frmKolegij(wxWindow* parent)
{
    Create(parent, wxID_ANY, ToWx(Title), wxDefaultPosition, wxDefaultSize,
           wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "frmKolegij");
    ApplyAppStyle(*this);

    // The controls are made in tab order: fields, lists, buttons.
    auto* content = new wxBoxSizer(wxVERTICAL);
    const wxSizerFlags part = wxSizerFlags().Expand().Border(wxALL, 2 * Gap(this));
    content->Add(Fields(), part);
    content->Add(Lists(), wxSizerFlags(part).Proportion(1).Border(wxLEFT | wxRIGHT, 2 * Gap(this)));
    content->Add(Buttons(), part);
    SetSizer(content);
    UseClientSizes(*this, *content, InitialSize, SmallestSize);

    MakeDefault(*cmdSave);
    SetEscapeId(cmdCancel->GetId());
    BindEvents();
}

wxSizer* frmKolegij::Fields()
{
    const wxSizerFlags labelFlags = wxSizerFlags().CenterVertical();
    const wxSizerFlags boxFlags = wxSizerFlags().CenterVertical();
    auto* grid = new wxFlexGridSizer(2, Gap(this), Gap(this));
    grid->AddGrowableCol(1);
    const auto addRow = [&](std::string_view label) -> wxSizer*
    {
        grid->Add(NewLabel(this, "", label), labelFlags);
        auto* row = new wxBoxSizer(wxHORIZONTAL);
        grid->Add(row, wxSizerFlags().Expand());
        return row;
    };
    const auto addLabel = [&](wxSizer* row, std::string_view label)
    { row->Add(NewLabel(this, "", label), wxSizerFlags(labelFlags).Border(wxLEFT | wxRIGHT, Gap(this))); };

    wxSizer* row = addRow("Kolegij:");
    row->Add(txtNaziv = NewTextBox(this, "txtNaziv", 40), wxSizerFlags(1).CenterVertical());

    row = addRow("Razina");
    row->Add(cboRazina = NewChoice(this, "cboRazina", 14), boxFlags);
    addLabel(row, "Program");
    row->Add(cboProgram = NewChoice(this, "cboProgram", 12), boxFlags);

    constexpr int hoursWidth = 4;
    row = addRow("Predavanja");
    row->Add(txtP = NewTextBox(this, "txtP", hoursWidth), boxFlags);
    addLabel(row, "Seminari");
    row->Add(txtS = NewTextBox(this, "txtS", hoursWidth), boxFlags);
    addLabel(row, "Vježbe");
    row->Add(txtV = NewTextBox(this, "txtV", hoursWidth), boxFlags);
    addLabel(row, "ECTS");
    row->Add(txtECTS = NewTextBox(this, "txtECTS", hoursWidth), boxFlags);

    row = addRow("Obvezni/Izborni");
    // A text box with a list: the catalogue may have a type that is not in the list, and keeps it.
    row->Add(cboObvezniIzborni = NewComboBox(this, "cboObvezniIzborni", 10), boxFlags);
    return grid;
}

wxSizer* frmKolegij::Lists()
{
    constexpr int narrowest = 4;
    constexpr int fewestEntries = 8;
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const auto addList = [&](const wxString& name, std::string_view label, int proportion, long style)
    {
        auto* column = new wxBoxSizer(wxVERTICAL);
        column->Add(NewLabel(this, "", label), wxSizerFlags().Border(wxBOTTOM, Gap(this) / 2));
        wxListBox* list = NewListBox(this, ToUtf8(name), style);
        // The columns share the window's width; the lists' own best widths would make the window too wide.
        list->SetMinSize({GetTextExtent(wxString('n', narrowest)).x, fewestEntries * GetCharHeight()});
        column->Add(list, wxSizerFlags(1).Expand());
        row->Add(column, wxSizerFlags(proportion).Expand().Border(wxLEFT, row->IsEmpty() ? 0 : Gap(this)));
        return list;
    };
    lstSemestar = addList("lstSemestar", "Semestri", 1, wxLB_SINGLE);
    lstSmjerovi = addList("lstSmjerovi", "Smjerovi", 2, wxLB_EXTENDED);
    for (std::size_t i = 0; i < NositeljPlaces; ++i)
    {
        lstNastavnik[i] =
            addList(wxString::Format("lstNastavnik(%zu)", i + 1), NositeljLabels[i], 3, wxLB_SINGLE);
        lstNastavnik[i]->SetToolTip(
            ToWx("Odabir se uklanja tipkom Delete ili klikom uz pritisnutu tipku Ctrl."));
    }
    return row;
}

wxSizer* frmKolegij::Buttons()
{
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->AddStretchSpacer();
    row->Add(cmdSave = NewButton(this, "cmdSave", "&Spremi"));
    row->Add(cmdCancel = NewButton(this, "cmdCancel", "&Otkaži"), wxSizerFlags().Border(wxLEFT, Gap(this)));
    return row;
}

void frmKolegij::BindEvents()
{
    cboRazina->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboRazina_Click(); });
    cboProgram->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboProgram_Click(); });
    cmdSave->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdSave_Click(); });
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdCancel_Click(); });
    LetSelectionBeEmpty(*lstSemestar);
    for (wxListBox* list : lstNastavnik)
        LetSelectionBeEmpty(*list);
}

int frmKolegij::ShowModal()
{
    Form_Load();
    CenterForm(*this);
    txtNaziv->SetFocus();
    return wxDialog::ShowModal();
}

void frmKolegij::Form_Load()
{
    // The caller's level and study are kept, even if a box shows another entry.
    m_currentRazina = StartRazina;
    m_currentStudijID = StartStudijID;
    FillRazinaCombo();
    FillProgramCombo();
    if (!SelectData(*cboProgram, m_currentStudijID))
        SelectFirst(*cboProgram);
    FillChoices(*cboObvezniIzborni, {{"obvezni"}, {"izborni"}});
    FillSemestarList();
    FillSmjerList();
    for (wxListBox* list : lstNastavnik)
        FillChoices(*list, NamedNastavnikChoices());

    if (Mode == "EDIT")
        if (const std::optional<CourseEntry> entry = EntryOf(EditKolegijID))
            ShowKolegij(*entry);
}

void frmKolegij::FillRazinaCombo()
{
    FillChoices(*cboRazina, RazinaChoices());
    constexpr bool exactly = true;
    const int level = cboRazina->FindString(ToWx(m_currentRazina), exactly);
    cboRazina->SetSelection(level == wxNOT_FOUND ? 0 : level);
}

void frmKolegij::FillProgramCombo()
{
    FillChoices(*cboProgram, StudijChoices(m_currentRazina, RazinaMatch::Trimmed));
}

void frmKolegij::FillSemestarList()
{
    FillChoices(*lstSemestar, SemestarChoices(m_currentRazina));
}

void frmKolegij::FillSmjerList()
{
    FillChoices(*lstSmjerovi, SmjerChoices(m_currentStudijID));
}

void frmKolegij::ShowKolegij(const CourseEntry& entry)
{
    txtNaziv->SetValue(ToWx(entry.Naziv));
    txtP->SetValue(ToWx(entry.P));
    txtS->SetValue(ToWx(entry.S));
    txtV->SetValue(ToWx(entry.V));
    txtECTS->SetValue(ToWx(entry.ECTS));
    cboObvezniIzborni->SetValue(ToWx(entry.Tip));
    if (!SelectData(*lstSemestar, ToLong(entry.Semestar)))
        SelectFirst(*lstSemestar);
    SelectAll(*lstSmjerovi, entry.SmjerIDs);
    for (std::size_t i = 0; i < NositeljPlaces; ++i)
        if (entry.NastavnikIDs[i])
            SelectData(*lstNastavnik[i], *entry.NastavnikIDs[i]);
}

void frmKolegij::cboRazina_Click()
{
    m_currentRazina = ChosenText(*cboRazina);
    FillProgramCombo();
    SelectFirst(*cboProgram);
    m_currentStudijID = SelectedData(*cboProgram);
    FillSemestarList();
    FillSmjerList();
}

void frmKolegij::cboProgram_Click()
{
    if (cboProgram->GetSelection() == wxNOT_FOUND)
        return;
    m_currentStudijID = SelectedData(*cboProgram);
    FillSmjerList();
}

void frmKolegij::cmdSave_Click()
{
    const CourseEntry entry = CurrentEntry();
    if (const std::optional<ValidationError> fault = CheckEntry(entry))
    {
        ShowWarning(this, fault->Message, Title);
        ControlOf(fault->Field)->SetFocus();
        return;
    }
    if (Mode == "EDIT")
        ReplaceKolegij(EditKolegijID, entry);
    else
        AddKolegij(entry);
    EndModal(wxID_OK);
}

void frmKolegij::cmdCancel_Click()
{
    EndModal(wxID_CANCEL);
}

CourseEntry frmKolegij::CurrentEntry() const
{
    CourseEntry entry;
    entry.Naziv = ToUtf8(txtNaziv->GetValue());
    entry.P = ToUtf8(txtP->GetValue());
    entry.S = ToUtf8(txtS->GetValue());
    entry.V = ToUtf8(txtV->GetValue());
    entry.ECTS = ToUtf8(txtECTS->GetValue());
    entry.Tip = ToUtf8(cboObvezniIzborni->GetValue());
    entry.Semestar = ChosenText(*lstSemestar);
    entry.StudijID = m_currentStudijID;
    wxArrayInt selected;
    lstSmjerovi->GetSelections(selected);
    for (const int position : selected)
        entry.SmjerIDs.push_back(DataAt(*lstSmjerovi, position));
    for (std::size_t i = 0; i < NositeljPlaces; ++i)
        if (lstNastavnik[i]->GetSelection() != wxNOT_FOUND)
            entry.NastavnikIDs[i] = SelectedData(*lstNastavnik[i]);
    return entry;
}

wxWindow* frmKolegij::ControlOf(EntryField field) const
{
    switch (field)
    {
    case EntryField::Naziv:
        return txtNaziv;
    case EntryField::P:
        return txtP;
    case EntryField::S:
        return txtS;
    case EntryField::V:
        return txtV;
    case EntryField::ECTS:
        return txtECTS;
    case EntryField::Semestar:
        return lstSemestar;
    case EntryField::Tip:
        return cboObvezniIzborni;
    case EntryField::Smjerovi:
        return lstSmjerovi;
    case EntryField::Nastavnik1:
        return lstNastavnik[0];
    case EntryField::Nastavnik2:
        return lstNastavnik[1];
    case EntryField::Nastavnik3:
        return lstNastavnik[2];
    }
    return txtNaziv;
}
