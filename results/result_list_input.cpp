// What a user does in the list itself: editing a name in place, and the keys.

#include <cwchar>

#include "results/result_list.h"

namespace {

// How far an arrow key moves the columns, in pixels.
constexpr int ScrollStep = 40;

// In a key message's lParam: the key was already down, so this is a repeat.
constexpr LPARAM KeyWasDown = 1L << 30;

}  // namespace

// A list view edits only while it has the focus.
void ResultList::EditName(int row) {
    SetFocus(Handle());
    BringIntoView(row);
    const RECT bounds = BoundsOf(row);
    if (bounds.left < 0) ScrollSideways(bounds.left);
    editingByCommand_ = true;
    BeginEditing(row);
    editingByCommand_ = false;
}

void ResultList::EndEditing() {
    OvertakeClick();
    if (EditControl() == nullptr) return;
    SetFocus(Handle());
    // If the focus could not be moved, the edit is cancelled.
    if (EditControl() != nullptr) CancelEditing();
}

int ResultList::EditedRow(const NMLVDISPINFOW& edited) const {
    return editedNumber_ ? RowWithNumber(*editedNumber_) : edited.item.iItem;
}

LRESULT ResultList::OnBeginNameEdit(EventArguments& arguments) {
    if (!MayBeEdited()) return TRUE;
    editedNumber_ = reinterpret_cast<const NMLVDISPINFOW*>(arguments.argument)->item.lParam;
    const HWND edit = EditControl();
    if (edit != nullptr) nameEdit_.reset(new (std::nothrow) NameEdit(this, edit));
    return FALSE;
}

bool ResultList::MayBeEdited() const {
    if (filling_ || !IsWindowEnabled(ParentHandle())) return false;
    return editingByCommand_ || editingClick_ != EditingClick::Overtaken;
}

LRESULT ResultList::OnLeftButtonDown(MessageRecord& record) {
    editingClick_ = EditingClick::Awaited;
    return DefaultProcessing(record);
}

LRESULT ResultList::OnFocusLost(MessageRecord& record) {
    OvertakeClick();
    return DefaultProcessing(record);
}

void ResultList::OvertakeClick() {
    if (editingClick_ == EditingClick::Awaited) editingClick_ = EditingClick::Overtaken;
}

bool ResultList::EditedName(const NMLVDISPINFOW& edited, std::wstring& name) const {
    if ((edited.item.mask & LVIF_TEXT) == 0) return false;
    if (edited.item.pszText != nullptr) {
        name = edited.item.pszText;
        return true;
    }
    // A null text is how the list view reports a cancelled edit, but also an empty or unchanged text.
    if (nameEdit_ == nullptr || nameEdit_->Handle() == nullptr || !nameEdit_->IsTaken()) return false;
    name = nameEdit_->Text();
    return true;
}

LRESULT ResultList::OnKeyDown(MessageRecord& record) {
    OvertakeClick();
    // A held key counts as one press: a file is opened once.
    const bool isRepeated = (record.lParam & KeyWasDown) != 0;
    if (record.wParam == VK_RETURN && isRepeated) return 0;
    // Ctrl+Alt is AltGr, which types another character.
    const bool controlAlone = GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0;
    const auto column = static_cast<int>(record.wParam) - L'1';
    if (controlAlone && column >= 0 && column < ResultColumnCount) {
        SortByKey(column);
        return 0;
    }
    return ScrollByKey(record.wParam) ? 0 : DefaultProcessing(record);
}

// The columns are wider than a small screen, and not every list view scrolls sideways with the arrow keys.
bool ResultList::ScrollByKey(WPARAM key) {
    const bool isReport = (GetWindowLongW(Handle(), GWL_STYLE) & LVS_TYPEMASK) == LVS_REPORT;
    if (!isReport || (key != VK_LEFT && key != VK_RIGHT)) return false;
    ScrollSideways(key == VK_LEFT ? -ScrollStep : ScrollStep);
    return true;
}

// Headings can only be clicked with a pointer: Ctrl+1 to Ctrl+5 do the same from the keyboard.
void ResultList::SortByKey(int column) {
    NMLISTVIEW click{};
    click.hdr = {Handle(), static_cast<UINT_PTR>(GetDlgCtrlID(Handle())), static_cast<UINT>(LVN_COLUMNCLICK)};
    click.iItem = -1;
    click.iSubItem = column;
    SendMessageW(GetParent(Handle()), WM_NOTIFY, click.hdr.idFrom, reinterpret_cast<LPARAM>(&click));
}

LRESULT ResultList::OnSystemKey(MessageRecord& record) {
    if (record.message == WM_SYSKEYDOWN) OvertakeClick();
    const bool taken = ce::TakeAltEnter(Handle(), record.message, record.wParam, record.lParam);
    return taken ? 0 : DefaultProcessing(record);
}
