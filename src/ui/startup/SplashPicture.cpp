#include "ui/startup/SplashPicture.h"

#include "data/Product.h"
#include "ui/controls/Controls.h"
#include "ui/controls/Strings.h"

#include <wx/dc.h>
#include <wx/font.h>

namespace
{

// All lengths are hundredths of the picture's height.
struct Card
{
    int Left;
    int Top;
    unsigned Colour; // 0xBBGGRR
};

constexpr Card Cards[] = {{100, 18, 0xB98A4A}, {112, 24, 0xD0A86B}, {124, 30, 0xE8D3B0}};
constexpr int CardWidth = 44;
constexpr int CardHeight = 52;
constexpr int TabWidth = 16;
constexpr int TabHeight = 6;
constexpr int FirstLine = 14;
constexpr int LineGap = 9;
constexpr int Lines = 4;

constexpr unsigned Background = 0x5C3A1E;
constexpr unsigned Ink = 0x8A5A2B;

} // namespace

void DrawSplashPicture(wxDC& dc, wxSize size)
{
    const auto scaled = [&](int hundredths) { return hundredths * size.y / 100; };

    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(wxBrush(wxColour(Background)));
    dc.DrawRectangle(wxPoint(0, 0), size);

    for (const Card& card : Cards)
    {
        dc.SetPen(*wxTRANSPARENT_PEN);
        dc.SetBrush(wxBrush(wxColour(card.Colour)));
        dc.DrawRoundedRectangle(scaled(card.Left), scaled(card.Top), scaled(CardWidth), scaled(CardHeight),
                                scaled(3));
        dc.DrawRoundedRectangle(scaled(card.Left + 4), scaled(card.Top - TabHeight + 2), scaled(TabWidth),
                                scaled(TabHeight + 2), scaled(2));
    }
    const Card& front = Cards[std::size(Cards) - 1];
    dc.SetPen(wxPen(wxColour(Ink), scaled(2)));
    for (int line = 0; line < Lines; ++line)
    {
        const int y = scaled(front.Top + FirstLine + line * LineGap);
        dc.DrawLine(scaled(front.Left + 6), y, scaled(front.Left + CardWidth - (line % 2 == 0 ? 6 : 16)), y);
    }

    wxFont font = ProgramFont().Bold();
    font.SetPixelSize(wxSize(0, scaled(13)));
    dc.SetFont(font);
    dc.SetTextForeground(*wxWHITE);
    dc.DrawText(ToWx(ProductName), scaled(9), scaled(34));
    font.SetWeight(wxFONTWEIGHT_NORMAL);
    font.SetPixelSize(wxSize(0, scaled(6)));
    dc.SetFont(font);
    dc.DrawText("Katalog kolegija", scaled(10), scaled(52));
    dc.DrawText(ToWx(ProductVersion), scaled(10), scaled(86));
}
