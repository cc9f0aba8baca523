#pragma once

#include "support/MessageBoxOnScreen.h"

#include <wx/control.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <optional>

/// Reads the message box that opens while it lives, then answers it with a key.
class KeyAnswer : private wxTimer
{
public:
    explicit KeyAnswer(int key, int modifiers = wxMOD_NONE) : m_key(key), m_modifiers(modifiers)
    {
        Start(100);
    }

    const std::optional<MessageBoxOnScreen>& Shown() const { return m_box; }

private:
    void Notify() override
    {
        const std::optional<MessageBoxOnScreen> open = FindMessageBox();
        if (!open)
            return;
        if (!m_box)
        {
            // Without a window manager the keys go to the window under the pointer.
            wxUIActionSimulator().MouseMove(open->Place.GetPosition() + open->Place.GetSize() / 2);
            m_box = open;
            return;
        }
        m_box = open;
        wxUIActionSimulator().Char(m_key, m_modifiers);
    }

    int m_key;
    int m_modifiers;
    std::optional<MessageBoxOnScreen> m_box;
};
