#include "ui/startup/frmSplash.h"

#include "data/Product.h"
#include "ui/controls/Controls.h"
#include "ui/controls/Strings.h"
#include "ui/main/frmMain.h"
#include "ui/startup/SplashPicture.h"

#include <wx/dcbuffer.h>

namespace
{

const wxSize PictureSize = {480, 270}; // at 96 dots to the inch

} // namespace

frmSplash::frmSplash(int shownMilliseconds) : Timer1(this)
{
    Create(nullptr, wxID_ANY, ToWx(ProductName), wxDefaultPosition, wxDefaultSize,
           wxBORDER_NONE | wxFRAME_NO_TASKBAR, "frmSplash");
    ApplyAppStyle(*this);

    Picture1 =
        new wxWindow(this, wxID_ANY, wxDefaultPosition, FromDIP(PictureSize), wxWANTS_CHARS, "Picture1");
    Picture1->SetBackgroundStyle(wxBG_STYLE_PAINT);
    Picture1->Bind(wxEVT_PAINT,
                   [this](wxPaintEvent&)
                   {
                       wxAutoBufferedPaintDC dc(Picture1);
                       DrawSplashPicture(dc, Picture1->GetClientSize());
                   });
    SetClientSize(Picture1->GetSize());
    CentreOnScreen();

    BindEvents();
    Picture1->SetFocus();
    Timer1.StartOnce(shownMilliseconds);
}

void frmSplash::BindEvents()
{
    // The picture covers the whole window, so it gets the window's clicks and keys.
    Picture1->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent&) { Form_Click(); });
    Picture1->Bind(wxEVT_KEY_DOWN, &frmSplash::Form_KeyDown, this);
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Timer1_Timer(); });
}

void frmSplash::CloseSplash()
{
    if (m_closing)
        return;
    m_closing = true;
    Timer1.Stop();
    try
    {
        (new frmMain)->Form_Load();
    }
    catch (...)
    {
        Hide(); // before the error's box shows
        throw;
    }
    Destroy();
}

void frmSplash::Timer1_Timer()
{
    CloseSplash();
}

void frmSplash::Form_Click()
{
    CloseSplash();
}

void frmSplash::Form_KeyDown(wxKeyEvent& key)
{
    if (key.GetKeyCode() == WXK_ESCAPE)
        CloseSplash();
}
