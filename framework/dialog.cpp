#include "framework/dialog.h"

#include <iterator>

#include "base/program_context.h"
#include "framework/application.h"
#include "framework/control.h"
#include "framework/layout.h"
#include "framework/property_set.h"
#include "resources/resource_ids.h"

namespace {

constexpr int ClassNameCapacity = 128;
constexpr int FontHeight = -12;

// A Done button and full-screen size.
constexpr DWORD DefaultFullScreenFlags = ce::DialogDoneButton | ce::DialogSizeFullScreen;

constexpr int LastTitleStatic = STATIC_TITLE + 9;

HFONT CreateDialogFont() {
    LOGFONTW font{};
    font.lfHeight = FontHeight;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    return CreateFontIndirectW(&font);
}

HBRUSH WhiteBrush() {
    return static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
}

NativeCodeTable NativeCodesByClassName(HWND control) {
    wchar_t className[ClassNameCapacity] = L"";
    ce::GetClassNameW(control, className, ClassNameCapacity);
    return NativeCodesOfClass(className);
}

}  // namespace

Dialog::Dialog(WindowObject* parentObject, const PropertySet& properties)
    : ContainerWindow(parentObject, nullptr, Ownership::Wrapped),
      templateName_(properties.GetText(property::DialogTemplate)),
      initArgument_(properties.Get(property::InitArgument)),
      fullScreenFlags_(static_cast<DWORD>(properties.Get(property::FullScreenFlags, DefaultFullScreenFlags))),
      font_(CreateDialogFont()) {}

Dialog::~Dialog() {
    Dialog::End(ResultCancel);
    DestroyMenuBar();
    const HWND window = Handle();
    Detach();
    if (window != nullptr && IsWindow(window)) DestroyWindow(window);
}

const DLGTEMPLATE* Dialog::FindTemplate() const {
    return static_cast<const DLGTEMPLATE*>(ce::ResourceBytes(Context().instance, templateName_, RT_DIALOG));
}

void Dialog::CreateModeless() {
    if (Handle() != nullptr) return;
    const DLGTEMPLATE* dialogTemplate = FindTemplate();
    if (dialogTemplate == nullptr) return;
    const HWND created = CreateDialogIndirectParamW(Context().instance, dialogTemplate, ParentHandle(),
                                                    &ModelessProcedure, reinterpret_cast<LPARAM>(this));
    // A dialog that messages cannot find would not respond to anything.
    if (created != nullptr && ObjectOf(created) == nullptr) DestroyWindow(created);
}

void Dialog::ShowModeless() {
    CreateModeless();
    ShowWindow(Handle(), SW_SHOW);
    SetForegroundWindow(Handle());
}

INT_PTR Dialog::RunModal() {
    if (Handle() != nullptr) return -1;
    const DLGTEMPLATE* dialogTemplate = FindTemplate();
    if (dialogTemplate == nullptr) return -1;
    return DialogBoxIndirectParamW(Context().instance, dialogTemplate, ParentHandle(), &ModalProcedure,
                                   reinterpret_cast<LPARAM>(this));
}

void Dialog::End(INT_PTR result) {
    if (!canEnd_) return;
    canEnd_ = false;
    DestroyMenuBar();
    EndDialog(Handle(), result);
}

INT_PTR CALLBACK Dialog::ModalProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (TellsOfCreation(window, message)) {
        auto* created = reinterpret_cast<Dialog*>(lParam);
        if (!created->TakeWindow(window)) {
            EndDialog(window, -1);
            return 0;
        }
        created->canEnd_ = true;
    }
    if (message == WM_DESTROY || message == WM_NCDESTROY) {
        WindowIsGone(window);
        return 0;
    }
    return DispatchToObject(window, message, wParam, lParam);
}

INT_PTR CALLBACK Dialog::ModelessProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (TellsOfCreation(window, message)) {
        if (!reinterpret_cast<Dialog*>(lParam)->TakeWindow(window)) return 0;
    }
    const INT_PTR result = DispatchToObject(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) WindowIsGone(window);
    return result;
}

bool Dialog::TellsOfCreation(HWND window, UINT message) {
    return message == WM_INITDIALOG && GetWindowLongW(window, DWLP_USER) == 0;
}

bool Dialog::TakeWindow(HWND window) {
    SetWindowLongW(window, DWLP_USER, 1);
    ForgetFocus();
    const bool found = Attach(window);
    if (!found) Detach();
    return found;
}

INT_PTR Dialog::DispatchToObject(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    WindowObject* object = ObjectOf(window);
    if (object == nullptr) return 0;
    MessageRecord record{message, wParam, lParam, 0, 0};
    return object->Dispatch(record);
}

// A modal run that loses its window must end too, or its owner would stay disabled.
void Dialog::LoseWindow() {
    Dialog::End(ResultCancel);
    DestroyMenuBar();
    ContainerWindow::LoseWindow();
}

void Dialog::Forget(const WindowObject* gone) {
    ContainerWindow::Forget(gone);
    if (initialisation_.target == gone) initialisation_ = {};
}

LRESULT Dialog::DispatchToClass(MessageRecord& record) {
    switch (record.message) {
        case WM_INITDIALOG:
            return OnInitDialog(record);
        case WM_PAINT:
            return OnWmPaint(record);
        case WM_CTLCOLORSTATIC:
            return OnWmCtlColorStatic(record);
        case WM_CTLCOLORDLG:
            return OnWmCtlColorDialog(record);
        default:
            return ContainerWindow::DispatchToClass(record);
    }
}

LRESULT Dialog::DefaultProcessing(MessageRecord&) {
    return 0;
}

LRESULT Dialog::OnWmCommand(MessageRecord& record) {
    const auto control = reinterpret_cast<HWND>(record.lParam);
    const EventSource id = LOWORD(record.wParam);
    if (control != nullptr) {
        if (IsOwnControl(control))
            RaiseEvent(TranslateByClassName(control, CommandCodeOf(record)), id, 0, record);
    } else if (id == IDCANCEL) {
        End(ResultCancel);
    } else {
        RaiseEvent(event::Command, id, 0, record);
    }
    return record.result;
}

// A control without an object is known by its class. A button's tooltip notifies the dialog with the button's
// id, which is not a click.
LRESULT Dialog::OnWmNotify(MessageRecord& record) {
    const auto* header = reinterpret_cast<const NMHDR*>(record.lParam);
    if (header == nullptr || !IsOwnControl(header->hwndFrom)) return record.result;
    const WindowObject* object = ObjectOf(header->hwndFrom);
    const NativeCodeTable codes =
        object != nullptr ? object->NativeCodes() : NativeCodesByClassName(header->hwndFrom);
    RaiseNotification(codes, static_cast<EventSource>(header->idFrom), record);
    return record.result;
}

// Raised by handle for a control that has an object, else by id, under which handlers are registered here.
LRESULT Dialog::OnWmDrawItem(MessageRecord& record) {
    const auto* item = reinterpret_cast<const DRAWITEMSTRUCT*>(record.lParam);
    if (item == nullptr) return 1;
    const bool byHandle =
        ObjectOf(item->hwndItem) != nullptr &&
        RaiseEvent(event::DrawItem, reinterpret_cast<EventSource>(item->hwndItem), record.lParam, record);
    if (!byHandle) RaiseEvent(event::DrawItem, item->CtlID, record.lParam, record);
    return 1;
}

bool Dialog::IsOwnControl(HWND window) const {
    return IsChild(Handle(), window) && GetParent(window) == Handle();
}

EventCode Dialog::TranslateByClassName(HWND control, std::uint32_t native) {
    return TranslateNativeCode(NativeCodesByClassName(control), native);
}

LRESULT Dialog::OnWmActivate(MessageRecord& record) {
    KeepFocus(record);
    return 1;
}

LRESULT Dialog::OnInitDialog(MessageRecord& record) {
    CallInitialisation(record);
    SetUpShell(fullScreenFlags_, DialogBar::CancelAndOk);
    return 1;
}

void Dialog::CallInitialisation(MessageRecord& record) {
    if (initialisation_.target == nullptr) return;
    EventArguments arguments{initialisation_.extra, static_cast<std::intptr_t>(initArgument_), record};
    (initialisation_.target->*initialisation_.method)(arguments);
}

void Dialog::SetUpShell(DWORD flags, DialogBar bar) {
    const ce::DialogInitInfo info{1, Handle(), flags};
    ce::SHInitDialog(&info);
    CreateMenuBar(bar);
    ShowIconOfOwner();
}

// A caption with a close box shows an icon; without one of its own it would be the system's.
void Dialog::ShowIconOfOwner() {
    const HWND owner = GetWindow(Handle(), GW_OWNER);
    const LRESULT icon = owner != nullptr ? SendMessageW(owner, WM_GETICON, ICON_SMALL, 0) : 0;
    if (icon != 0) SendMessageW(Handle(), WM_SETICON, ICON_SMALL, icon);
}

void Dialog::CreateMenuBar(DialogBar bar) {
    ce::MenuBarInfo info{};
    info.cbSize = sizeof info;
    info.hwndParent = Handle();
    info.nToolBarId = MENU_BAR_DIALOG;
    info.hInstRes = Context().instance;
    info.nBmpId = BITMAP_DIALOG_BAR;
    info.cBmpImages = 5;
    if (bar == DialogBar::None || !ce::SHCreateMenuBar(&info)) return;
    menuBar_ = info.hwndMB;

    // QUIRK: bar-labels-are-english
    static const wchar_t* const labels[] = {L"Cancel", L"OK"};
    SendMessageW(menuBar_, ce::ToolBarSetToolTips, std::size(labels), reinterpret_cast<LPARAM>(labels));
    TBBUTTON buttons[] = {{0, IDCANCEL, TBSTATE_ENABLED, BTNS_BUTTON, {}, 0, -1},
                          {1, IDOK, TBSTATE_ENABLED, BTNS_BUTTON, {}, 0, -1}};
    SendMessageW(menuBar_, TB_ADDBUTTONSW, static_cast<WPARAM>(bar), reinterpret_cast<LPARAM>(buttons));
}

void Dialog::DestroyMenuBar() {
    if (menuBar_ != nullptr && IsWindow(menuBar_)) DestroyWindow(menuBar_);
    menuBar_ = nullptr;
}

void Dialog::Centre() {
    CentreOn(Handle(), ParentHandle());
}

LRESULT Dialog::OnWmPaint(MessageRecord& record) {
    if (DialogItem(*this, STATIC_TITLE) == nullptr) return DefaultProcessing(record);
    const PaintContext context(Handle());
    const POINT line[] = {{0, TitleLineY}, {ce::GetSystemMetrics(SM_CXSCREEN), TitleLineY}};
    Polyline(context.Get(), line, static_cast<int>(std::size(line)));
    return 1;
}

LRESULT Dialog::OnWmCtlColorStatic(MessageRecord& record) {
    const auto context = reinterpret_cast<HDC>(record.wParam);
    const int id = GetDlgCtrlID(reinterpret_cast<HWND>(record.lParam));
    if (id >= STATIC_TITLE && id <= LastTitleStatic) {
        SetBkMode(context, TRANSPARENT);
        SetTextColor(context, ce::GetSysColor(static_cast<int>(ce::SystemColorFlag | COLOR_HIGHLIGHT)));
    }
    // QUIRK: statics-are-white
    return reinterpret_cast<LRESULT>(WhiteBrush());
}

// Dialogs are white, whatever the system's colour for them is.
LRESULT Dialog::OnWmCtlColorDialog(MessageRecord&) {
    return reinterpret_cast<LRESULT>(WhiteBrush());
}
