#include "ui/controls/DecimalSeparator.h"

#include "ui/controls/Strings.h"

#include <locale>
#include <stdexcept>

std::string SystemDecimalSeparator()
{
    // The program runs in the "C" locale; the environment names the user's.
    try
    {
        return ToUtf8(wxString(std::use_facet<std::numpunct<wchar_t>>(std::locale("")).decimal_point()));
    }
    catch (const std::runtime_error&)
    {
        return "."; // this system does not have the user's locale
    }
}
