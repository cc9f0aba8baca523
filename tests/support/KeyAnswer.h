#pragma once

#include "support/MessageBoxOnScreen.h"

#include <wx/control.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <optional>

/// Looks at the message box that opens while it lives, then answers it with a key.
class KeyAnswer : private wxTimer
{
public:
    explicit KeyAnswer(int key, int modifiers = wxMOD_NONE) : Key(key), Modifiers(modifiers) { Start(100); }

    const std::optional<MessageBoxOnScreen>& Shown() const { return Box; }

private:
    void Notify() override
    {
        const std::optional<MessageBoxOnScreen> open = FindMessageBox();
        if (!open)
            return;
        if (!Box)
        {
            // Without a window manager the keys go where the pointer is.
            wxUIActionSimulator().MouseMove(open->Place.GetPosition() + open->Place.GetSize() / 2);
            Box = open;
            return;
        }
        Box = open;
        wxUIActionSimulator().Char(Key, Modifiers);
    }

    int Key;
    int Modifiers;
    std::optional<MessageBoxOnScreen> Box;
};
