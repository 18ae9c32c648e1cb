#pragma once

// The numbered properties that configure a window object before it is created. Constructors add their
// defaults, callers set their values first, and the first pair with a key wins.

#include <array>
#include <cstdint>

using PropertyKey = std::uint32_t;

// The keys that the framework itself reads.
namespace property {

constexpr PropertyKey InitArgument = 101;
constexpr PropertyKey ExtraControlClasses = 1000;
constexpr PropertyKey Accelerators = 1001;
constexpr PropertyKey ClassBackground = 1004;
constexpr PropertyKey ClassName = 1011;
constexpr PropertyKey ClassStyle = 1012;
constexpr PropertyKey ClassExtraBytes = 1014;
constexpr PropertyKey ControlId = 1016;
constexpr PropertyKey ClassCursor = 1017;
constexpr PropertyKey HasRebar = 1021;
constexpr PropertyKey HasStatusBar = 1022;
constexpr PropertyKey RefuseEmpty = 1028;
constexpr PropertyKey ThumbTracking = 1030;
constexpr PropertyKey ExtendedStyle = 1032;
constexpr PropertyKey Height = 1046;
constexpr PropertyKey HorizontalMaximum = 1049;
constexpr PropertyKey HorizontalMinimum = 1050;
constexpr PropertyKey HorizontalPosition = 1051;
constexpr PropertyKey ClassIcon = 1052;
constexpr PropertyKey SmallIcon = 1053;
constexpr PropertyKey SecondStep = 1067;
constexpr PropertyKey MaximumEntries = 1075;
constexpr PropertyKey MenuBar = 1078;
constexpr PropertyKey ClassMenuName = 1079;
constexpr PropertyKey LineStep = 1093;
constexpr PropertyKey CreationParameter = 1095;
constexpr PropertyKey ClassIsRegistered = 1101;
constexpr PropertyKey FullScreenFlags = 1110;
constexpr PropertyKey Style = 1115;
constexpr PropertyKey DialogTemplate = 1117;
constexpr PropertyKey TabNotification = 1126;
constexpr PropertyKey VerticalMaximum = 1129;
constexpr PropertyKey VerticalMinimum = 1130;
constexpr PropertyKey VerticalPosition = 1131;
constexpr PropertyKey Width = 1135;
constexpr PropertyKey ViewIcon = 1136;  // set on the class after the view is created
constexpr PropertyKey WindowExtraBytes = 1137;
constexpr PropertyKey WindowProcedure = 1138;
constexpr PropertyKey X = 1139;
constexpr PropertyKey Y = 1140;

}  // namespace property

// A number, a handle, or the address of something that the caller keeps alive until the construction is over.
using PropertyValue = std::uintptr_t;

class PropertySet {
  public:
    static constexpr int Capacity = 50;

    // Changes the first pair with the key, or appends one. The value of a style key is or-ed in, any other is
    // replaced. A full set drops what would be appended.
    void Set(PropertyKey key, PropertyValue value);

    // Ors into the style keys like Set; any other pair is appended even if the key is present, so it acts as
    // set-unless-already-set.
    void Add(PropertyKey key, PropertyValue value);

    // The value of the first pair with the key; the other value if there is none.
    [[nodiscard]] PropertyValue Get(PropertyKey key, PropertyValue otherwise = 0) const;

    [[nodiscard]] bool Has(PropertyKey key) const;
    [[nodiscard]] int Count() const { return count_; }
    void Clear() { count_ = 0; }

    // The same for texts, stored by their address.
    void SetText(PropertyKey key, const wchar_t* text) { Set(key, reinterpret_cast<PropertyValue>(text)); }
    void AddText(PropertyKey key, const wchar_t* text) { Add(key, reinterpret_cast<PropertyValue>(text)); }
    [[nodiscard]] const wchar_t* GetText(PropertyKey key) const {
        return reinterpret_cast<const wchar_t*>(Get(key));
    }

  private:
    struct Pair {
        PropertyKey key;
        PropertyValue value;
    };

    [[nodiscard]] int IndexOf(PropertyKey key) const;
    void Append(PropertyKey key, PropertyValue value);

    int count_ = 0;
    std::array<Pair, Capacity> pairs_{};
};

// A set that holds only the name of a dialog's template; the name is not copied.
[[nodiscard]] inline PropertySet TemplateProperties(const wchar_t* templateName) {
    PropertySet properties;
    properties.SetText(property::DialogTemplate, templateName);
    return properties;
}
