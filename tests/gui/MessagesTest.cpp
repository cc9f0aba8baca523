// The message boxes as the system shows them, answered by real keys.

#include "ui/controls/Messages.h"
#include "support/KeyAnswer.h"
#include "support/Windows.h"

#include <wx/frame.h>

namespace
{

class MessageBoxes : public testing::Test
{
protected:
    MessageBoxes()
    {
        Window->Show();
        Settle();
    }
    void TearDown() override { CloseAllWindows(); }

    wxFrame* Window = new wxFrame(nullptr, wxID_ANY, "Prozor");
};

TEST_F(MessageBoxes, ShowTheIconOfTheirKind)
{
    using ShowFunction = void (*)(wxWindow*, std::string_view, std::string_view);
    static constexpr std::pair<ShowFunction, long> kinds[] = {
        {ShowInformation, wxICON_INFORMATION}, {ShowWarning, wxICON_WARNING}, {ShowCritical, wxICON_ERROR}};
    for (const auto& [show, icon] : kinds)
    {
        const KeyAnswer answer(WXK_RETURN);
        show(Window, "Statistika exportirana u:\r\nC:\\Šuma & polje.csv", "Đačka služba");
        ASSERT_TRUE(answer.Shown());
        EXPECT_EQ(answer.Shown()->Icon, icon);
        EXPECT_EQ(answer.Shown()->Title, "Đačka služba");
        EXPECT_EQ(answer.Shown()->Text, "Statistika exportirana u:\r\nC:\\Šuma & polje.csv");
        EXPECT_EQ(answer.Shown()->Buttons, std::vector<std::string>{"OK"});
    }
}

TEST_F(MessageBoxes, AQuestionHasItsIconAndIsAnsweredByKeys)
{
    const auto ask = [this](int key, int modifiers)
    {
        const KeyAnswer answer(key, modifiers);
        const bool yes = AskYesNo(Window, "Želite li obrisati ovaj kolegij?", "Potvrda");
        EXPECT_TRUE(answer.Shown());
        const MessageBoxOnScreen shown = answer.Shown().value_or(MessageBoxOnScreen());
        EXPECT_EQ(shown.Icon, wxICON_QUESTION);
        EXPECT_EQ(shown.Title, "Potvrda");
        EXPECT_EQ(shown.Text, "Želite li obrisati ovaj kolegij?");
        EXPECT_EQ(shown.Buttons, (std::vector<std::string>{"No", "Yes"}));
        return yes;
    };
    EXPECT_FALSE(ask(WXK_RETURN, wxMOD_NONE)) << "a key pressed too soon loses nothing";
    EXPECT_TRUE(ask('Y', wxMOD_ALT));
    EXPECT_FALSE(ask('N', wxMOD_ALT));
}

TEST_F(MessageBoxes, OneWithoutAParentWindowIsShownToo)
{
    const KeyAnswer answer(WXK_RETURN);
    ShowCritical(nullptr, "Greška 13");
    ASSERT_TRUE(answer.Shown());
    EXPECT_EQ(answer.Shown()->Title, "Varlostudiji");
    EXPECT_EQ(answer.Shown()->Icon, wxICON_ERROR);
}

TEST_F(MessageBoxes, AHookAnswersBeforeAnythingIsShown)
{
    const KeyAnswer look(WXK_RETURN);
    MessageAnswers hook(wxID_NO);
    EXPECT_FALSE(AskYesNo(Window, "Želite li obrisati ovaj kolegij?", "Potvrda"));
    EXPECT_TRUE(hook.TakeOnly().Has(wxYES_NO | wxICON_QUESTION));
    Settle();
    EXPECT_FALSE(look.Shown());
}

} // namespace
