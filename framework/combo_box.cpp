#include "framework/combo_box.h"

#include "framework/application.h"

namespace {

constexpr EventCode KeyEvents[] = {event::EnterKey, event::TabKey};

bool IsShiftDown() {
    return GetKeyState(VK_SHIFT) < 0;
}

}  // namespace

TextField::TextField(WindowObject* parentObject, HWND edit, Ownership ownership)
    : Control(parentObject, edit, L"Edit", ownership) {
    Subclass();
    OnMessage(WM_KEYDOWN, this, &TextField::OnKeyDown);
    OnMessage(WM_CHAR, this, &TextField::OnCharacter);
    OnMessage(WM_GETDLGCODE, this, &TextField::OnGetDialogCode);
    OnMessage(WM_IME_STARTCOMPOSITION, this, &TextField::OnComposition, TRUE);
    OnMessage(WM_IME_ENDCOMPOSITION, this, &TextField::OnComposition, FALSE);
}

std::span<const EventCode> TextField::OwnEvents() const {
    return KeyEvents;
}

bool TextField::Takes(WPARAM key) const {
    return key == VK_RETURN || (key == VK_TAB && tabNotification_);
}

// While an input method is composing, the keys belong to it. Most methods turn them into VK_PROCESSKEY; some
// leave Enter and Tab as they are.
LRESULT TextField::OnKeyDown(MessageRecord& record) {
    if (!Takes(record.wParam)) return DefaultProcessing(record);
    if (composing_) return 0;
    const auto source = reinterpret_cast<EventSource>(Handle());
    if (record.wParam == VK_RETURN) {
        RaiseEvent(event::EnterKey, source, 0, record);
    } else {
        RaiseEvent(event::TabKey, source, IsShiftDown() ? 1 : 0, record);
    }
    return 0;
}

// Swallows the characters of those keys, at which an edit control would beep.
LRESULT TextField::OnCharacter(MessageRecord& record) {
    return Takes(record.wParam) ? 0 : DefaultProcessing(record);
}

// The dialog manager asks this for each key: those keys are for the field itself.
LRESULT TextField::OnGetDialogCode(MessageRecord& record) {
    const LRESULT usual = DefaultProcessing(record);
    const auto* message = reinterpret_cast<const MSG*>(record.lParam);
    const bool wanted = message != nullptr &&
                        (message->message == WM_KEYDOWN || message->message == WM_CHAR) &&
                        Takes(message->wParam);
    return wanted ? usual | DLGC_WANTMESSAGE : usual;
}

LRESULT TextField::OnComposition(MessageRecord& record) {
    composing_ = record.extra != FALSE;
    return DefaultProcessing(record);
}

void ComboBox::ReadText(int index, std::span<wchar_t> text) const {
    text[0] = L'\0';
    if (Send(CB_GETLBTEXTLEN, index) < static_cast<LRESULT>(text.size()))
        Send(CB_GETLBTEXT, index, text.data());
}

const void* ComboBox::Data(int index) const {
    const LRESULT data = Send(CB_GETITEMDATA, index);
    return data != CB_ERR ? reinterpret_cast<const void*>(data) : nullptr;
}

LONG ComboBox::HeightWithList() const {
    RECT open{};
    Send(CB_GETDROPPEDCONTROLRECT, 0, &open);
    return open.bottom - open.top;
}

ComboBoxControl::ComboBoxControl(WindowObject* parentObject, HWND existing)
    : Control(parentObject, existing, L"combobox"),
      edit_(this, GetWindow(existing, GW_CHILD), Ownership::Wrapped) {
    edit_.OnNotification(event::EnterKey, this, &ComboBoxControl::OnEditKey, event::EnterKey);
    edit_.OnNotification(event::TabKey, this, &ComboBoxControl::OnEditKey, event::TabKey);
}

std::span<const EventCode> ComboBoxControl::OwnEvents() const {
    return KeyEvents;
}

LRESULT ComboBoxControl::OnEditKey(EventArguments& arguments) {
    if (Box().IsListOpen()) {
        // As in any combo box, the first Enter accepts the entry chosen in the open list. The parent is
        // notified meanwhile, and may delete this object.
        const HWND window = Handle();
        const ComboBox box = Box();
        const bool enter = arguments.extra == event::EnterKey;
        if (enter) SendMessageW(window, WM_KEYDOWN, VK_RETURN, 0);
        box.CloseList();
        if (enter || !IsObjectOf(window)) return 0;
    }
    RaiseEvent(static_cast<EventCode>(arguments.extra), reinterpret_cast<EventSource>(Handle()),
               arguments.argument, arguments.record);
    return arguments.record.result;
}

// Does not touch the object itself, which may be gone.
bool ComboBoxControl::IsObjectOf(HWND window) const {
    const WindowMap* map = Application::Windows();
    return map != nullptr && map->Find(window) == this;
}
