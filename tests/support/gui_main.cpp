// The application of the window tests.

#include "data/Errors.h"
#include "support/TestFolder.h"
#include "support/Windows.h"

#include <wx/app.h>
#include <wx/evtloop.h>

#ifndef _WIN32
#include "ui/controls/NativeFunction_gtk.h"
#endif

namespace
{

/// Lists scroll without animation: a click at a place found during the scrolling would miss.
void SwitchAnimationsOff()
{
#ifndef _WIN32
    const auto settings = NativeFunction<void* (*)()>("gtk_settings_get_default")();
    NativeFunction<void (*)(void*, const char*, ...)>("g_object_set")(settings, "gtk-enable-animations", 0,
                                                                      nullptr);
#endif
}

/// The application of the window tests: runs the tests inside an event loop.
class TestApp : public wxApp
{
public:
    bool OnInit() override
    {
        // The toolkit's assertions must fail the test, not show a dialog.
        wxSetAssertHandler(
            [](const wxString& file, int line, const wxString&, const wxString& condition,
               const wxString& message)
            {
                GTEST_NONFATAL_FAILURE_(
                    (file + ":" + std::to_string(line) + " " + condition + " " + message).utf8_str());
            });
        return true;
    }

    int OnRun() override
    {
        SwitchAnimationsOff();
        SetExitOnFrameDelete(false);
        wxGUIEventLoop loop;
        const wxEventLoopActivator active(&loop);
        return RUN_ALL_TESTS();
    }

    bool OnExceptionInMainLoop() override
    {
        try
        {
            throw;
        }
        catch (const RuntimeError& error)
        {
            NoteUncaughtError(std::to_string(error.Number()) + ": " + error.what());
        }
        catch (const std::exception& error)
        {
            NoteUncaughtError(error.what());
        }
        return true;
    }
};

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // The system's dialogs must not change the user's settings.
    SetEnvironment("GSETTINGS_BACKEND", "memory");
    wxApp::SetInstance(new TestApp);
    return wxEntry(argc, argv);
}
