#include "driver/properties.h"

#include "controls/list_controls.h"
#include "controls/text_box.h"
#include "driver/command_line.h"

#include <array>
#include <cstdio>

namespace zeugnis::driver {
namespace {

using Value = std::optional<std::string>;

std::string number(bool value) { return value ? "1" : "0"; }

std::string colour(Farbwert value) {
    std::array<char, 12> digits{};
    std::snprintf(digits.data(), digits.size(), "0x%06X", static_cast<unsigned>(value));
    return digits.data();
}

template <typename T, typename Read>
Value of(const Control& control, Read read) {
    const auto* typed = dynamic_cast<const T*>(&control);
    return typed == nullptr ? Value() : Value(read(*typed));
}

std::string listOf(const ListControl& list) {
    std::string json = "[";
    for (const Text& entry : list.entries())
        json += (json.size() > 1 ? "," : "") + jsonString(entry);
    return json + "]";
}

Value text(const Control& control) {
    if (Value value =
            of<TextBox>(control, [](const TextBox& box) { return jsonString(box.text()); }))
        return value;
    return of<ComboBox>(control, [](const ComboBox& box) { return jsonString(box.Inscription); });
}

Value value(const Control& control) {
    if (Value checked =
            of<CheckBox>(control, [](const CheckBox& box) { return number(box.value()); }))
        return checked;
    return of<OptionButton>(control, [](const OptionButton& box) { return number(box.value()); });
}

struct Property {
    const char* name;
    Value (*read)(const Control&);
};

constexpr auto Properties = std::to_array<Property>({
    {"Caption",
     [](const Control& c) {
         return of<CaptionedControl>(c, [](const auto& x) { return jsonString(x.Caption); });
     }},
    {"Text", text},
    {"Value", value},
    {"Enabled", [](const Control& c) { return Value(number(c.Enabled)); }},
    {"Visible", [](const Control& c) { return Value(number(c.Visible)); }},
    {"BackColor", [](const Control& c) { return Value(colour(c.BackColor)); }},
    {"ToolTip", [](const Control& c) { return Value(jsonString(c.ToolTip)); }},
    {"ListIndex",
     [](const Control& c) {
         return of<ListControl>(c, [](const auto& x) { return std::to_string(x.listIndex()); });
     }},
    {"List", [](const Control& c) { return of<ListControl>(c, listOf); }},
    {"Picture",
     [](const Control& c) {
         return of<PictureBox>(c, [](const auto& x) { return jsonString(x.picture()); });
     }},
    {"Locked",
     [](const Control& c) {
         return of<TextBox>(c, [](const auto& x) { return number(x.Locked); });
     }},
    {"Reachable", [](const Control& c) { return Value(number(c.reachable())); }},
});

} // namespace

std::vector<std::string> propertiesOf(const Control& control) {
    std::vector<std::string> names;
    for (const Property& property : Properties)
        if (property.read(control))
            names.emplace_back(property.name);
    return names;
}

std::optional<std::string> propertyValue(const Control& control, std::string_view name) {
    for (const Property& property : Properties)
        if (property.name == name)
            return property.read(control);
    return std::nullopt;
}

} // namespace zeugnis::driver
