#pragma once

// What the driver and the probe say to each other. The probe is a library of hook procedures that the driver
// brings into the program's process: menus, list cells and picker values can only be read from inside. The
// driver puts a question into a named section and sends the registered message to the main window; the hook
// answers it before the window itself sees the message.

#include <windows.h>

namespace probe {

constexpr wchar_t QuestionMessageName[] = L"QuorinProbeQuestion";
constexpr wchar_t HoldMessageName[] = L"QuorinProbeHold";
constexpr wchar_t SyncMessageName[] = L"QuorinProbeSync";

// Names of the section and the events; "%lu" is the program's process id. A sync has a number as well, which
// its message carries: one that comes late is not taken for the next one.
constexpr wchar_t SectionNameFormat[] = L"Local\\QuorinProbeSection-%lu";
constexpr wchar_t HeldEventNameFormat[] = L"Local\\QuorinProbeHeld-%lu";
constexpr wchar_t ReleaseEventNameFormat[] = L"Local\\QuorinProbeRelease-%lu";
constexpr wchar_t SyncEventNameFormat[] = L"Local\\QuorinProbeSync-%lu-%lu";

enum class Question : DWORD {
    Counters,    // searches begun, searches ended
    List,        // count, selected, focused, style, extended style, window rectangle
    Rows,        // numbers: first, count -> a record a row: five cells, parameter, state, image,
                 // the name's screen rectangle
    Columns,     // a record a column: heading, width, format, screen rectangle
    Menu,        // a record an item, popups before their items: depth, id, state, type, text,
                 // screen rectangle while the menu is open
    Bar,         // a record a button: command, image, state, style, text, screen rectangle
    Tabs,        // a record a tab: caption, current?, screen rectangle
    Control,     // numbers: page, id -> one record (ControlState)
    Combo,       // numbers: page, id -> selected index, then a record an entry
    Picker,      // numbers: page, id -> text, year, month, day, hour, minute, second
    Spin,        // numbers: page, id -> lower, upper, position word, error word
    Focus,       // a record a window from the focus up to the top: class, id
    Dialogs,     // a record a dialog of the program's thread: caption, texts of its controls by id
    SetPicker,   // numbers: page, id, yyyymmdd -> nothing
    SetFocus,    // numbers: page, id -> nothing
    SelectRow,   // numbers: row, 1 to select or 0 to deselect -> nothing
    ArmHold,     // numbers: rows to wait for, longest hold in milliseconds, 1 to stay awake -> nothing
    Repaint,     // nothing
    Tree,        // a record an item of the folder browser, parents first: depth, state, two images, text
    SelectItem,  // numbers: an item's place in that order -> nothing
    Destroy,     // numbers: a window -> nothing
    InputWaits,  // is a key or a click waiting in the queue?
    Notify,      // numbers: a control, a code; sends its parent the notification -> nothing
};

// Pages are told by number; these two are no pages.
constexpr int MainWindowPage = -1;
constexpr int FindingDialogPage = -2;

constexpr wchar_t FieldEnd = 0x1F;
constexpr wchar_t RecordEnd = 0x1E;

constexpr DWORD AnswerCapacity = 1u << 19;

// The section.
struct Exchange {
    Question question;
    int numbers[4];
    BOOL answered;   // set by the probe when it has understood and answered
    BOOL truncated;  // the answer did not fit
    DWORD length;    // units of the answer
    wchar_t answer[AnswerCapacity];
};

}  // namespace probe
