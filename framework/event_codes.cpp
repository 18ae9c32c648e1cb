#include "framework/event_codes.h"

#include <algorithm>
#include <cwchar>

namespace {

constexpr std::uint32_t Code(int native) {
    return static_cast<std::uint32_t>(native);
}

constexpr NativeCode ListBoxCodes[] = {
    {Code(1), event::SelectionChanged}, {Code(2), event::DoubleClick}, {Code(3), event::SelectionCancelled},
    {Code(4), event::FocusGained},      {Code(5), event::FocusLost},   {Code(-2), event::OutOfMemory},
};

constexpr NativeCode EditCodes[] = {
    {Code(0x100), event::FocusGained},      {Code(0x200), event::FocusLost},
    {Code(0x300), event::TextChanged},      {Code(0x400), event::EditUpdated},
    {Code(0x500), event::OutOfMemory},      {Code(0x501), event::MaximumText},
    {Code(0x601), event::HorizontalScroll}, {Code(0x602), event::VerticalScroll},
};

constexpr NativeCode ButtonCodes[] = {
    {Code(0), event::Command},           {Code(1), event::ButtonPaint},
    {Code(2), event::ButtonHighlighted}, {Code(3), event::ButtonUnhighlighted},
    {Code(4), event::ButtonDisabled},    {Code(5), event::ButtonDoubleClicked},
    {Code(6), event::FocusGained},       {Code(7), event::FocusLost},
};

constexpr NativeCode ComboBoxCodes[] = {
    {Code(1), event::SelectionChanged}, {Code(2), event::DoubleClick},
    {Code(3), event::FocusGained},      {Code(4), event::FocusLost},
    {Code(5), event::ComboEditChanged}, {Code(6), event::ComboEditUpdated},
    {Code(7), event::DropDownOpened},   {Code(8), event::DropDownClosed},
    {Code(9), event::SelectionEndedOk}, {Code(10), event::SelectionEndedCancel},
    {Code(-1), event::OutOfMemory},
};

constexpr NativeCode RebarCodes[] = {
    {Code(-836), 44},
    {Code(-835), event::RebarBeginDrag},
    {Code(-834), event::RebarAutoSize},
    {Code(-833), 87},
    {Code(-831), 62},
};

constexpr NativeCode UpDownCodes[] = {{Code(-722), event::PositionChanging}};

constexpr NativeCode DatePickerCodes[] = {
    {Code(-759), event::DateTimeChanged},
    {Code(-754), event::DropDownOpened},
    {Code(-753), event::DropDownClosed},
    {Code(-745), 146},
    {Code(-744), 151},
    {Code(-743), 52},
    {Code(-742), 53},
};

// The program reads no header's notifications; the codes are those of the list view's counterparts.
constexpr NativeCode HeaderCodes[] = {
    {Code(-329), 56}, {Code(-328), 27}, {Code(-327), 28}, {Code(-326), 43},
    {Code(-325), 59}, {Code(-323), 60}, {Code(-322), 20}, {Code(-321), 76},
    {Code(-320), 77}, {Code(-311), 8},  {Code(-310), 5},
};

constexpr NativeCode ListViewCodes[] = {
    {Code(-179), 98},
    {Code(-178), 129},
    {Code(-177), 56},
    {Code(-176), event::EndLabelEdit},
    {Code(-175), 7},
    {Code(-156), 88},
    {Code(-155), event::KeyDown},
    {Code(-115), 99},
    {Code(-114), event::ItemActivated},
    {Code(-113), 97},
    {Code(-111), 8},
    {Code(-109), 5},
    {Code(-108), event::ColumnClick},
    {Code(-104), event::DeletingAllItems},
    {Code(-103), 26},
    {Code(-102), 74},
    {Code(-101), event::ItemChanged},
    {Code(-100), 77},
};

// The program shows no calendar by itself; these are a calendar's three notifications.
constexpr NativeCode MonthCalendarCodes[] = {
    {Code(-749), event::SelectionChanged}, {Code(-747), 54}, {Code(-746), event::SelectionEndedOk}};

constexpr NativeCode TreeViewCodes[] = {
    {Code(-460), event::EndLabelEdit},
    {Code(-459), 7},
    {Code(-458), 26},
    {Code(-457), 8},
    {Code(-456), 5},
    {Code(-455), 80},
    {Code(-454), 81},
    {Code(-453), 129},
    {Code(-452), 56},
    {Code(-451), 122},
    {Code(-450), event::SelectionChanging},
    {Code(-412), event::KeyDown},
};

constexpr NativeCode TabControlCodes[] = {{Code(-552), event::SelectionChanging},
                                          {Code(-551), event::SelectionChanged},
                                          {Code(-550), event::KeyDown}};

constexpr NativeCode CommonCodes[] = {{Code(-3), event::DoubleClick}};

struct ControlClass {
    const wchar_t* name;
    NativeCodeTable codes;
};

constexpr ControlClass ControlClasses[] = {
    {L"ListBox", ListBoxCodes},
    {L"Edit", EditCodes},
    {L"Button", ButtonCodes},
    {L"ReBarWindow32", RebarCodes},
    {L"msctls_updown32", UpDownCodes},
    // QUIRK: combobox-in-lower-case. Names are compared exactly.
    {L"combobox", ComboBoxCodes},
    {L"SysDateTimePick32", DatePickerCodes},
    {L"SysHeader32", HeaderCodes},
    {L"SysIPAddress32", {}},  // translates nothing
    {L"SysListView32", ListViewCodes},
    {L"SysMonthCal32", MonthCalendarCodes},
    {L"SysTreeView32", TreeViewCodes},
    {L"SysTabControl32", TabControlCodes},
};

}  // namespace

EventCode TranslateNativeCode(NativeCodeTable table, std::uint32_t native, EventCode missing) {
    const auto found =
        std::lower_bound(table.begin(), table.end(), native,
                         [](const NativeCode& pair, std::uint32_t code) { return pair.native < code; });
    return found != table.end() && found->native == native ? found->code : missing;
}

NativeCodeTable NativeCodesOfClass(const wchar_t* className) {
    for (const ControlClass& controlClass : ControlClasses) {
        if (std::wcscmp(controlClass.name, className) == 0) return controlClass.codes;
    }
    return {};
}

NativeCodeTable CommonNotificationCodes() {
    return CommonCodes;
}
