#include "app/main_window.h"

#include "app/page_navigation.h"
#include "app/product.h"
#include "app/uninstall.h"
#include "base/program_context.h"
#include "framework/layout.h"
#include "framework/message_boxes.h"
#include "framework/property_set.h"
#include "resources/resource_ids.h"

namespace {

constexpr int TabControlHeight = 126;

constexpr UINT_PTR CompletionTimer = 1;

constexpr UINT RoutedCommands[] = {COMMAND_FIND,        COMMAND_OPEN,          COMMAND_ADD_TO_START_MENU,
                                   COMMAND_DELETE,      COMMAND_RENAME,        COMMAND_PROPERTIES,
                                   COMMAND_EXIT,        COMMAND_LARGE_ICON,    COMMAND_SMALL_ICON,
                                   COMMAND_DETAILS,     COMMAND_VIEW_STATUS,   COMMAND_CHECK_CASE,
                                   COMMAND_SAVE_RESULT, COMMAND_NEW_CONDITION, COMMAND_ABOUT};

void PlaceProperties(PropertySet& properties, LONG x, LONG y, LONG width, LONG height) {
    properties.Set(property::X, static_cast<PropertyValue>(x));
    properties.Set(property::Y, static_cast<PropertyValue>(y));
    properties.Set(property::Width, static_cast<PropertyValue>(width));
    properties.Set(property::Height, static_cast<PropertyValue>(height));
}

}  // namespace

MainWindow::MainWindow(const wchar_t* title, PropertySet& properties, Application& application)
    : ApplicationView(nullptr, title, properties, &application) {
    AddBarButtons();
    CreateDialogs();
    OnMessage(WM_CLOSE, this, &MainWindow::OnWmClose);
    OnMessage(WM_ENDSESSION, this, &MainWindow::OnWmEndSession);
    OnMessage(WM_TIMER, this, &MainWindow::OnWmTimer);
    OnMessage(WM_INITMENUPOPUP, this, &MainWindow::OnWmInitMenuPopup);
    SetInitialMenuState();
    const RECT area = LayoutRectangle();
    CreateTabControl(area);
    namePage_ = std::make_unique<NamePage>(tabControl_.get(), Handle());
    CreatePage(*namePage_);
    CreateResultList(area);
    RouteCommands();
    ShowPage(0);
    namePage_->LoadSettings(ProductRegistryKey);
}

MainWindow::~MainWindow() {
    LeaveScreen();
}

void MainWindow::AddBarButtons() {
    if (CommandBar() == nullptr) return;
    const HWND bar = CommandBar()->Handle();
    TBADDBITMAP standard{HINST_COMMCTRL, IDB_STD_SMALL_COLOR};
    SendMessageW(bar, TB_ADDBITMAP, 15, reinterpret_cast<LPARAM>(&standard));
    TBADDBITMAP view{HINST_COMMCTRL, IDB_VIEW_SMALL_COLOR};
    SendMessageW(bar, TB_ADDBITMAP, 12, reinterpret_cast<LPARAM>(&view));
    TBBUTTON buttons[] = {{STD_FIND, COMMAND_FIND, TBSTATE_ENABLED, BTNS_BUTTON, {}, 0, -1},
                          {STD_PROPERTIES, COMMAND_PROPERTIES, TBSTATE_ENABLED, BTNS_BUTTON, {}, 0, -1}};
    SendMessageW(bar, TB_ADDBUTTONSW, 2, reinterpret_cast<LPARAM>(buttons));
}

void MainWindow::CreateDialogs() {
    aboutBox_ = std::make_unique<AboutBox>(this);
    aboutBox_->SetRegistryKeys(MakerRegistryKey, ProductRegistryKey);
    // QUIRK: uninstall-asks-nothing. Bound later than the box's own routine, so this one is found first.
    aboutBox_->OnCommand(BUTTON_UNINSTALL, this, &MainWindow::OnUninstall);
    fileOperation_ = std::make_unique<FileOperation>(this);
    abortDialog_ = std::make_unique<AbortDialog>(this);
    abortDialog_->OnRun(this, &MainWindow::OnSearchRun);
}

void MainWindow::SetInitialMenuState() {
    EnableResultCommands(false);
    // QUIRK: marks-on-missing-items. No menu has the commands 40201 to 40203 and 40207.
    CheckMenuRadioItem(Menu(), COMMAND_VIEW_BAR_FIRST, COMMAND_VIEW_BAR_LAST, COMMAND_VIEW_BAR_FIRST,
                       MF_BYCOMMAND);
    CheckMenuRadioItem(Menu(), COMMAND_LARGE_ICON, COMMAND_DETAILS, COMMAND_DETAILS, MF_BYCOMMAND);
    CheckMenuItem(Menu(), COMMAND_VIEW_STATUS, MF_BYCOMMAND | MF_CHECKED);
    CheckMenuItem(Menu(), COMMAND_CHECK_CASE, MF_BYCOMMAND | MF_CHECKED);
    EnableMenuItem(Menu(), COMMAND_SAVE_RESULT, MF_BYCOMMAND | MF_GRAYED);
}

void MainWindow::CreateTabControl(const RECT& area) {
    PropertySet properties;
    PlaceProperties(properties, area.left, area.top, area.right - area.left, TabControlHeight);
    properties.Set(property::Style, WS_TABSTOP | WS_CLIPSIBLINGS);
    tabControl_ = std::make_unique<TabControl>(this, properties);
    SetFont(tabControl_->Handle(), ce::ControlFont());
    tabControl_->Subclass();
    tabControl_->OnMessage(WM_KEYDOWN, this, &MainWindow::OnTabControlKeyDown);
    tabControl_->OnMessage(WM_CHAR, this, &MainWindow::OnTabControlChar);
    tabControl_->OnNotification(event::SelectionChanged, this, &MainWindow::OnPageChanged);
    tabControl_->AppendItem(InLanguage(L"Name", L"名前と場所"));
    tabControl_->AppendItem(InLanguage(L"Date", L"日付"));
    tabControl_->AppendItem(InLanguage(L"Etc", L"その他"));
}

void MainWindow::CreatePage(ConditionPage& page) {
    const RECT area = tabControl_->DisplayArea();
    page.MarkAsPage();
    page.CreateModeless();
    page.Move(area.left, area.top, area.right - area.left, area.bottom - area.top);
}

void MainWindow::CreateResultList(const RECT& area) {
    PropertySet properties;
    PlaceProperties(properties, area.left, area.top + TabControlHeight, area.right - area.left,
                    area.bottom - area.top - TabControlHeight);
    properties.Set(property::Style, WS_TABSTOP);
    results_ = std::make_unique<ResultList>(this, properties);
    resultCommands_ = std::make_unique<ResultCommands>(*this, *results_);
    results_->OnNotification(event::DoubleClick, this, &MainWindow::OnResultDoubleClick);
    results_->OnNotification(event::KeyDown, this, &MainWindow::OnResultKeyDown);
    results_->OnNotification(event::ItemChanged, this, &MainWindow::OnResultChanged);
    results_->OnNotification(event::EndLabelEdit, this, &MainWindow::OnResultRenamed);
}

void MainWindow::RouteCommands() {
    for (const UINT command : RoutedCommands)
        OnCommand(command, this, &MainWindow::OnMenuCommand, command);
}

void MainWindow::Show() {
    ApplicationView::Show();
    SetTimer(Handle(), CompletionTimer, USER_TIMER_MINIMUM, nullptr);
}

// The two other pages, the registered types and the icons are more than half the work of a start.
void MainWindow::CompleteParts() {
    KillTimer(Handle(), CompletionTimer);
    if (sizePage_ != nullptr) return;
    datePage_ = std::make_unique<DatePage>(tabControl_.get());
    CreatePage(*datePage_);
    fileTypes_ = std::make_unique<RegisteredFileTypes>();
    sizePage_ = std::make_unique<SizePage>(tabControl_.get(), fileTypes_.get());
    CreatePage(*sizePage_);
    results_->LoadIcons();
}

LRESULT MainWindow::OnWmTimer(MessageRecord& record) {
    if (record.wParam != CompletionTimer) return DefaultProcessing(record);
    CompleteParts();
    return 0;
}

LRESULT MainWindow::OnWmInitMenuPopup(MessageRecord& record) {
    results_->OvertakeClick();
    return DefaultProcessing(record);
}

ConditionPage* MainWindow::Page(int index) const {
    ConditionPage* const pages[PageCount] = {namePage_.get(), datePage_.get(), sizePage_.get()};
    return pages[index];
}

void MainWindow::ShowPage(int index) {
    Page(currentPage_)->Hide();
    tabControl_->Select(index);
    Page(index)->Show();
    currentPage_ = index;
    FocusOn(*tabControl_);
}

// A window that could not be created leaves the focus where it is: with no focus at all, keys would reach no
// window.
void MainWindow::FocusOn(const WindowObject& object) {
    if (object.Handle() != nullptr) SetFocus(object.Handle());
}

LRESULT MainWindow::OnPageChanged(EventArguments&) {
    CompleteParts();
    const int selected = tabControl_->Selected();
    if (selected >= 0 && selected < PageCount) ShowPage(selected);
    return 0;
}

LRESULT MainWindow::OnTabControlKeyDown(MessageRecord& record) {
    if (record.wParam != VK_TAB) return tabControl_->DefaultProcessing(record);
    const bool backwards = GetKeyState(VK_SHIFT) < 0;
    const HWND page = Page(currentPage_)->Handle();
    const HWND next = backwards ? LastTabStop(page) : FirstTabStop(page);
    if (next != nullptr) SetFocus(next);
    return 0;
}

LRESULT MainWindow::OnTabControlChar(MessageRecord& record) {
    return record.wParam == L'\t' ? 0 : tabControl_->DefaultProcessing(record);
}

bool MainWindow::PreTranslate(MSG& message) {
    if (ApplicationView::PreTranslate(message)) return true;
    return NavigateByKey(message, {tabControl_->Handle(), Page(currentPage_)->Handle(), results_->Handle()});
}

// The settings are saved before the window goes, so that a copy started right afterwards reads them.
LRESULT MainWindow::OnWmClose(MessageRecord& record) {
    const bool closesLater = EndWorkUnderWay();
    if (fileOperation_->IsRunning()) return 0;
    SaveSettingsOnce();
    LeaveScreen();
    return closesLater ? 0 : DefaultProcessing(record);
}

// If nothing can be posted the window closes at once: it must not stay open hidden or without its settings.
void MainWindow::PostClose() {
    if (!PostMessageW(Handle(), WM_CLOSE, 0, 0)) SendMessageW(Handle(), WM_CLOSE, 0, 0);
}

// Emptying a long list takes a while, so the window leaves the screen first.
void MainWindow::LeaveScreen() {
    if (Handle() == nullptr) return;
    EnableWindow(Handle(), FALSE);
    ShowWindow(Handle(), SW_HIDE);
}

// A running search or file operation still needs this window: it is ended first, and the window closes once
// it has unwound. A name being edited is accepted.
bool MainWindow::EndWorkUnderWay() {
    if (fileOperation_->IsRunning()) {
        fileOperation_->StopAndCloseParent();
        return true;
    }
    if (!abortDialog_->IsRunning()) {
        results_->EndEditing();
        return false;
    }
    closeAfterSearch_ = true;
    abortDialog_->Abort();
    return true;
}

// The system may end the process as soon as this returns, so the settings are saved here; closing the window
// does not save them again.
LRESULT MainWindow::OnWmEndSession(MessageRecord& record) {
    if (record.wParam == FALSE) return 0;
    SaveSettingsOnce();
    if (!EndWorkUnderWay()) PostClose();
    return 0;
}

// Activated from outside while a dialog is open, for instance by a click on a task bar.
LRESULT MainWindow::OnWmActivate(MessageRecord& record) {
    if (LOWORD(record.wParam) != WA_INACTIVE && ce::PassActivationOn(Handle())) return 0;
    return ApplicationView::OnWmActivate(record);
}

LRESULT MainWindow::OnWmDestroy(MessageRecord& record) {
    SaveSettingsOnce();
    return ApplicationView::OnWmDestroy(record);
}

void MainWindow::SaveSettingsOnce() {
    if (skipSaving_) return;
    namePage_->SaveSettings(ProductRegistryKey);
    skipSaving_ = true;
}

// F1 in a dialog arrives here too, passed on from dialog to owner; the box does not open over another dialog.
void MainWindow::ShowAbout() {
    if (!IsWindowEnabled(Handle())) return;
    aboutBox_->RunModal();
}

LRESULT MainWindow::OnUninstall(EventArguments&) {
    aboutBox_->End(Dialog::ResultCancel);
    UpdateWindow(Handle());
    if (!RemoveRegistryKeys(HKEY_CURRENT_USER, MakerRegistryKey, ProductRegistryKey)) {
        // QUIRK: uninstall-fail
        ShowError(Handle(), InLanguage(L"Uninstall fail!", L"ｱﾝｲﾝｽﾄｰﾙに失敗しました!"));
        return 0;
    }
    skipSaving_ = true;
    PostClose();
    return 0;
}
