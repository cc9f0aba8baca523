// The whole program on a Croatian desktop. Windows shows its own dialogs in its language by itself.

#ifndef _WIN32

#include "support/Catalogue.h"
#include "support/ScriptedProgram.h"
#include "support/TestFolder.h"
#include "support/Windows.h"

#include <wx/utils.h>

namespace
{

/// While it lives, programs that this one starts run in a Croatian locale; it is made if the system has none.
class CroatianDesktop
{
public:
    explicit CroatianDesktop(const std::filesystem::path& folder)
    {
        const std::string target = (folder / "hr_HR.UTF-8").string();
        // Warnings about the locale's source are no failure.
        wxExecute("localedef --no-archive --force -i hr_HR -f UTF-8 " + target, wxEXEC_SYNC);
        if (!std::filesystem::exists(target + "/LC_MESSAGES"))
            throw std::runtime_error("localedef has not made hr_HR.UTF-8; it needs the package locales");
        Set("LOCPATH", folder.string());
        Set("LC_ALL", "hr_HR.UTF-8");
        Set("LANGUAGE", "");
    }
    ~CroatianDesktop()
    {
        for (const auto& [name, value] : m_former)
            SetEnvironment(name, value);
    }
    CroatianDesktop(const CroatianDesktop&) = delete;
    CroatianDesktop& operator=(const CroatianDesktop&) = delete;

private:
    void Set(const char* name, const std::string& value)
    {
        wxString former;
        wxGetEnv(name, &former);
        m_former.emplace_back(name, former.utf8_string());
        SetEnvironment(name, value);
    }

    std::vector<std::pair<const char*, std::string>> m_former;
};

TEST(DesktopLanguage, ButtonsFollowTheDesktopAndNumbersAndSortingDoNot)
{
    const TestFolder folder;
    SmallCatalogue().WriteTo(folder.Data());
    const CroatianDesktop desktop(folder.Path());
    SetEnvironment("VARLO_ASK", "yes");
    const std::string output = RunScriptedProgram().Output;
    SetEnvironment("VARLO_ASK", "");
    EXPECT_EQ(output, "Da Ne 1.5 B a");
}

} // namespace

#endif
