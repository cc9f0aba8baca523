#include "data/Errors.h"

#include "text/Text.h"

namespace
{

constexpr std::string_view LongRange = "od -2147483648 do 2147483647";

std::string Quoted(std::string_view text)
{
    return std::string("\"").append(text).append("\"");
}

std::string InPlace(const FieldPlace& place)
{
    const std::string line =
        place.Line == 0 ? "redak unesen u programu" : "redak " + std::to_string(place.Line);
    return " (datoteka " + std::string(place.FileName) + ", " + line + ", stupac " + Quoted(place.Column) +
           ").";
}

std::string NotANumber(std::string_view value)
{
    return "Vrijednost " + Quoted(Shown(value)) + " nije broj";
}

std::string TooLarge(std::string_view value)
{
    return "Broj " + Quoted(Shown(value)) + " je izvan dopuštenog raspona " + std::string(LongRange);
}

constexpr std::string_view NotFinished =
    "\r\n\r\nPromjene su sačuvane, ali još nisu upisane u sve datoteke kataloga. Ne uređujte te datoteke. "
    "Zatvorite druge programe koji ih koriste i ponovno pokrenite Varlostudije: spremanje će se dovršiti.";

struct FileFault
{
    std::errc Cause;
    int Number;
    std::string_view Text;
};

constexpr FileFault FileFaults[] = {
    {std::errc::no_such_file_or_directory, 53, "Datoteka ili mapa nije pronađena"},
    {std::errc::not_a_directory, 76, "Mapa nije pronađena"},
    {std::errc::is_a_directory, 75, "Umjesto datoteke ondje je mapa istoga imena"},
    {std::errc::permission_denied, 70,
     "Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u drugom programu"},
    {std::errc::operation_not_permitted, 70, "Pristup nije dopušten"},
    {std::errc::read_only_file_system, 70, "Disk je zaštićen od pisanja"},
    {std::errc::device_or_resource_busy, 70, "Datoteku koristi drugi program"},
    {std::errc::text_file_busy, 70, "Datoteku koristi drugi program"},
    {std::errc::timed_out, 70, "Katalog upravo čita ili sprema drugi primjerak programa"},
    {std::errc::no_space_on_device, 61, "Na disku nema dovoljno mjesta"},
    {std::errc::filename_too_long, 52, "Ime datoteke je predugačko"},
    {std::errc::invalid_argument, 52, "Ime datoteke nije ispravno"},
};

constexpr FileFault OtherFileFault = {std::errc::io_error, 57, "Greška pri čitanju ili pisanju"};

const FileFault& FaultOf(std::error_code cause)
{
    for (const FileFault& fault : FileFaults)
        if (cause == fault.Cause)
            return fault;
    return OtherFileFault;
}

} // namespace

RuntimeError::RuntimeError(int number, const std::string& text)
    : std::runtime_error(text),
      m_number(number),
      m_faultSize(text.size())
{
}

RuntimeError::RuntimeError(int number, std::string_view fault, const FieldPlace& place)
    : std::runtime_error(std::string(fault) + InPlace(place)),
      m_number(number),
      m_faultSize(fault.size()),
      m_place(place)
{
}

TypeMismatch::TypeMismatch(std::string_view value) : DataError(13, NotANumber(value) + ".") {}

TypeMismatch::TypeMismatch(std::string_view value, const FieldPlace& place)
    : DataError(13, NotANumber(value), place)
{
}

OverflowError::OverflowError()
    : DataError(6, "Zbroj je izvan dopuštenog raspona " + std::string(LongRange) + ".")
{
}

OverflowError::OverflowError(std::string_view value) : DataError(6, TooLarge(value) + ".") {}

OverflowError::OverflowError(std::string_view value, const FieldPlace& place)
    : DataError(6, TooLarge(value), place)
{
}

SubscriptOutOfRange::SubscriptOutOfRange(const FieldPlace& place)
    : DataError(9, "Redak ima premalo polja", place)
{
}

InputPastEnd::InputPastEnd(std::string_view path)
    : RuntimeError(62,
                   "Datoteka s podacima nedostaje ili je prazna (nema retka zaglavlja): " + std::string(path))
{
}

FileError::FileError(std::error_code cause, std::string_view path)
    : RuntimeError(FaultOf(cause).Number, std::string(FaultOf(cause).Text) + ": " + std::string(path))
{
}

SaveNotFinished::SaveNotFinished(const FileError& cause)
    : RuntimeError(cause.Number(), cause.what() + std::string(NotFinished))
{
}
