#include "ui/controls/DecimalSeparator.h"

#include "ui/controls/Strings.h"

#include <locale>
#include <stdexcept>

std::string SystemDecimalSeparator()
{
    // The C library would speak of the program's own locale, which is nobody's; the environment names the
    // user's.
    try
    {
        return ToUtf8(wxString(std::use_facet<std::numpunct<wchar_t>>(std::locale("")).decimal_point()));
    }
    catch (const std::runtime_error&)
    {
        return "."; // the environment names a locale that this system does not have
    }
}
