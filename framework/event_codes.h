#pragma once

// The one framework-wide numbering of what controls and windows report, and the tables that turn the system's
// notification codes into it: one per control class.

#include <cstdint>
#include <span>

using EventCode = std::uint32_t;

namespace event {

constexpr EventCode Command = 0;  // also a button's click
constexpr EventCode RebarAutoSize = 3;
constexpr EventCode RebarBeginDrag = 5;
constexpr EventCode BeginLabelEdit = 7;
constexpr EventCode TextChanged = 13;
constexpr EventCode DropDownClosed = 18;
constexpr EventCode DateTimeChanged = 24;
constexpr EventCode ColumnClick = 19;
constexpr EventCode DeletingAllItems = 25;
constexpr EventCode PositionChanging = 29;
constexpr EventCode ButtonDisabled = 30;
constexpr EventCode DoubleClick = 32;
constexpr EventCode ButtonDoubleClicked = 33;
constexpr EventCode DrawItem = 37;
constexpr EventCode DropDownOpened = 38;
constexpr EventCode ComboEditChanged = 40;
constexpr EventCode ComboEditUpdated = 41;
constexpr EventCode EndLabelEdit = 46;
constexpr EventCode OutOfMemory = 48;
constexpr EventCode DialogRun = 49;
constexpr EventCode ButtonHighlighted = 66;
constexpr EventCode HorizontalScroll = 67;
constexpr EventCode ItemActivated = 75;
constexpr EventCode ItemChanged = 76;
constexpr EventCode KeyDown = 84;
constexpr EventCode FocusLost = 86;
constexpr EventCode MaximumText = 89;
constexpr EventCode RaiseAsCommand = 90;  // raised as a menu command with the control's id
constexpr EventCode AskControl = 96;      // the window leaves the answer to the control's own table
constexpr EventCode ButtonPaint = 103;
constexpr EventCode SelectionCancelled = 120;
constexpr EventCode SelectionChanged = 121;
constexpr EventCode SelectionChanging = 123;
constexpr EventCode SelectionEndedCancel = 124;
constexpr EventCode SelectionEndedOk = 125;
constexpr EventCode FocusGained = 130;
constexpr EventCode ButtonUnhighlighted = 144;
constexpr EventCode EditUpdated = 145;
constexpr EventCode VerticalScroll = 147;

// Raised by the program's own controls and pages; they have no native code.
constexpr EventCode EnterKey = 200;
constexpr EventCode Apply = 202;   // a property sheet's page is to apply its changes
constexpr EventCode TabKey = 201;  // the argument is 1 with Shift held, else 0

}  // namespace event

// One pair; a table is sorted by the native code as an unsigned number, so the positive codes come first.
struct NativeCode {
    std::uint32_t native;
    EventCode code;
};
using NativeCodeTable = std::span<const NativeCode>;

// The event code of a native code; `missing` if the table does not have it.
[[nodiscard]] EventCode TranslateNativeCode(NativeCodeTable table, std::uint32_t native,
                                            EventCode missing = event::Command);

// The table of a window class, by its exact spelling; empty for an unknown class. The combo box is in lower
// case, unlike the others, and has no other spelling (combobox-in-lower-case).
[[nodiscard]] NativeCodeTable NativeCodesOfClass(const wchar_t* className);

// The notifications common to all classes, which a window translates before it asks the control.
[[nodiscard]] NativeCodeTable CommonNotificationCodes();
