#pragma once

#include "support/Windows.h"
#include "ui/course_editor/frmKolegij.h"

#include <exception>
#include <functional>
#include <stdexcept>
#include <utility>

/// How a script has left the course editor.
enum class EditorEnd
{
    Closed,   ///< Saved or cancelled.
    LeftOpen, ///< Still open at the end of the script; then cancelled.
};

/// Runs a script inside the event loop of the first modal course editor that opens while it lives.
class EditorSession : public wxModalDialogHook
{
public:
    using Script = std::function<void(frmKolegij* editor)>;

    explicit EditorSession(Script script) : m_steps(std::move(script)) { Register(); }
    ~EditorSession() override { Unregister(); }

    bool Opened() const { return m_hasOpened; }

    /// How the script left the editor; throws what the script threw.
    EditorEnd Outcome() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
        return m_end;
    }

protected:
    int Enter(wxDialog* dialog) override
    {
        auto* editor = dynamic_cast<frmKolegij*>(dialog);
        if (editor != nullptr && !m_hasOpened)
        {
            m_hasOpened = true;
            editor->CallAfter([this, editor] { Run(editor); });
        }
        return wxID_NONE; // show the editor itself
    }

private:
    void Run(frmKolegij* editor)
    {
        editor->Raise(); // without a window manager, a new window does not become active
        Settle();
        try
        {
            m_steps(editor);
        }
        catch (...)
        {
            m_failure = std::current_exception();
        }
        if (!editor->IsShown())
            return;
        m_end = EditorEnd::LeftOpen;
        editor->EndModal(wxID_CANCEL);
    }

    Script m_steps;
    bool m_hasOpened = false;
    EditorEnd m_end = EditorEnd::Closed;
    std::exception_ptr m_failure;
};

/// Opens the course editor by `open` and runs a script in it; throws if none opens.
inline EditorEnd RunEditor(const std::function<void()>& open, EditorSession::Script script)
{
    const EditorSession session(std::move(script));
    open();
    Settle();
    if (!session.Opened())
        throw std::runtime_error("no course editor opened");
    return session.Outcome();
}
