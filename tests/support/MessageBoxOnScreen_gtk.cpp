#include "support/MessageBoxOnScreen.h"

#include "ui/controls/NativeFunction_gtk.h"

#include <wx/control.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace
{

struct ListLink
{
    void* Data;
    ListLink* Next;
    ListLink* Previous;
};

using Getter = void* (*)(void*);
using TextGetter = const char* (*)(void*);
using Check = int (*)(void*);

std::string TextOf(const char* getter, void* object)
{
    const char* text = NativeFunction<TextGetter>(getter)(object);
    return text == nullptr ? "" : text;
}

std::string Property(void* object, const char* name)
{
    char* value = nullptr;
    NativeFunction<void (*)(void*, const char*, ...)>("g_object_get")(object, name, &value, nullptr);
    std::string text = value == nullptr ? "" : value;
    NativeFunction<void (*)(void*)>("g_free")(value);
    return text;
}

bool IsMapped(void* widget)
{
    return NativeFunction<Check>("gtk_widget_get_mapped")(widget) != 0;
}

void* FindBox()
{
    auto* windows = NativeFunction<ListLink* (*)()>("gtk_window_list_toplevels")();
    void* found = nullptr;
    for (const ListLink* window = windows; window != nullptr; window = window->Next)
        if (TextOf("g_type_name_from_instance", window->Data) == "GtkMessageDialog" && IsMapped(window->Data))
            found = window->Data;
    NativeFunction<void (*)(ListLink*)>("g_list_free")(windows);
    return found;
}

long IconOf(void* box)
{
    static constexpr std::pair<std::string_view, long> icons[] = {{"dialog-information", wxICON_INFORMATION},
                                                                  {"dialog-warning", wxICON_WARNING},
                                                                  {"dialog-question", wxICON_QUESTION},
                                                                  {"dialog-error", wxICON_ERROR}};
    void* image = NativeFunction<Getter>("gtk_message_dialog_get_image")(box);
    if (image == nullptr || !IsMapped(image))
        return wxICON_NONE;
    const std::string name = Property(image, "icon-name");
    const auto* icon =
        std::ranges::find(icons, std::string_view(name), &std::pair<std::string_view, long>::first);
    return icon == std::end(icons) ? wxICON_NONE : icon->second;
}

} // namespace

std::optional<MessageBoxOnScreen> FindMessageBox()
{
    void* box = FindBox();
    if (box == nullptr)
        return std::nullopt;

    MessageBoxOnScreen found;
    found.Title = TextOf("gtk_window_get_title", box);
    found.Text = Property(box, "text");
    found.Icon = IconOf(box);
    const auto buttonOf = NativeFunction<void* (*)(void*, int)>("gtk_dialog_get_widget_for_response");
    for (const int response : {-5, -8, -9}) // OK, Yes, No
        if (void* button = buttonOf(box, response))
        {
            std::string caption = TextOf("gtk_button_get_label", button);
            std::erase(caption, '_');
            found.Buttons.push_back(caption);
        }
    std::ranges::sort(found.Buttons);
    using PairGetter = void (*)(void*, int*, int*);
    NativeFunction<PairGetter>("gtk_window_get_position")(box, &found.Place.x, &found.Place.y);
    NativeFunction<PairGetter>("gtk_window_get_size")(box, &found.Place.width, &found.Place.height);
    return found;
}
