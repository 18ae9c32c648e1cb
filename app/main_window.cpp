#include "app/main_window.h"

#include "base/language.h"
#include "app/page_navigation.h"
#include "base/product.h"
#include "app/uninstall.h"
#include "framework/message_boxes.h"
#include "framework/property_keys.h"
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
    SetInitialMenuState();
    const RECT area = LayoutRectangle();
    CreateTabControl(area);
    namePage = std::make_unique<NamePage>(tabControl.get(), Handle());
    CreatePage(*namePage);
    CreateResultList(area);
    RouteCommands();
    ShowPage(0);
    namePage->LoadSettings(ProductRegistryKey);
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
    aboutBox = std::make_unique<AboutBox>(this);
    aboutBox->SetRegistryKeys(MakerRegistryKey, ProductRegistryKey);
    // Bound later than the box's own routine, so this one is found first.
    aboutBox->OnCommand(BUTTON_UNINSTALL, this, &MainWindow::OnUninstall);
    fileOperation = std::make_unique<FileOperation>(this);
    abortDialog = std::make_unique<AbortDialog>(this);
    abortDialog->OnRun(this, &MainWindow::OnSearchRun);
}

void MainWindow::SetInitialMenuState() {
    EnableResultCommands(false);
    // The commands 40201 to 40203 and 40207 stand in no menu; their marks change nothing and are kept.
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
    tabControl = std::make_unique<TabControl>(this, properties);
    SendMessageW(tabControl->Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
    tabControl->Subclass();
    tabControl->OnMessage(WM_KEYDOWN, this, &MainWindow::OnTabControlKeyDown);
    tabControl->OnMessage(WM_CHAR, this, &MainWindow::OnTabControlChar);
    tabControl->OnNotification(event::SelectionChanged, this, &MainWindow::OnPageChanged);
    tabControl->AppendItem(InLanguage(L"Name", L"名前と場所"));
    tabControl->AppendItem(InLanguage(L"Date", L"日付"));
    tabControl->AppendItem(InLanguage(L"Etc", L"その他"));
}

void MainWindow::CreatePage(ConditionPage& page) {
    const RECT area = tabControl->DisplayArea();
    page.MarkAsPage();
    page.CreateModeless();
    page.Move(area.left, area.top, area.right - area.left, area.bottom - area.top);
}

void MainWindow::CreateResultList(const RECT& area) {
    PropertySet properties;
    PlaceProperties(properties, area.left, area.top + TabControlHeight, area.right - area.left,
                    area.bottom - area.top - TabControlHeight);
    properties.Set(property::Style, WS_TABSTOP);
    results = std::make_unique<ResultList>(this, properties);
    resultCommands = std::make_unique<ResultCommands>(*this, *results);
    results->OnNotification(event::DoubleClick, this, &MainWindow::OnResultDoubleClick);
    results->OnNotification(event::KeyDown, this, &MainWindow::OnResultKeyDown);
    results->OnNotification(event::ItemChanged, this, &MainWindow::OnResultChanged);
    results->OnNotification(event::EndLabelEdit, this, &MainWindow::OnResultRenamed);
}

void MainWindow::RouteCommands() {
    for (const UINT command : RoutedCommands)
        OnCommand(command, this, &MainWindow::OnMenuCommand, command);
}

void MainWindow::Show() {
    ApplicationView::Show();
    SetTimer(Handle(), CompletionTimer, USER_TIMER_MINIMUM, nullptr);
}

// The two other pages, the registered types and the icons are more than half of all that a start has to make.
void MainWindow::CompleteParts() {
    KillTimer(Handle(), CompletionTimer);
    if (sizePage != nullptr) return;
    datePage = std::make_unique<DatePage>(tabControl.get());
    CreatePage(*datePage);
    fileTypes = std::make_unique<RegisteredFileTypes>();
    sizePage = std::make_unique<SizePage>(tabControl.get(), fileTypes.get());
    CreatePage(*sizePage);
    results->LoadIcons();
}

LRESULT MainWindow::OnWmTimer(MessageRecord& record) {
    if (record.wParam != CompletionTimer) return DefaultProcessing(record);
    CompleteParts();
    return 0;
}

ConditionPage* MainWindow::Page(int index) const {
    ConditionPage* const pages[PageCount] = {namePage.get(), datePage.get(), sizePage.get()};
    return pages[index];
}

void MainWindow::ShowPage(int index) {
    Page(currentPage)->Hide();
    tabControl->Select(index);
    Page(index)->Show();
    currentPage = index;
    FocusOn(*tabControl);
}

// One that could not be made leaves the focus where it is: without any the keys would reach nobody.
void MainWindow::FocusOn(const WindowObject& object) {
    if (object.Handle() != nullptr) SetFocus(object.Handle());
}

LRESULT MainWindow::OnPageChanged(EventArguments&) {
    CompleteParts();
    const int selected = tabControl->Selected();
    if (selected >= 0 && selected < PageCount) ShowPage(selected);
    return 0;
}

LRESULT MainWindow::OnTabControlKeyDown(MessageRecord& record) {
    if (record.wParam != VK_TAB) return tabControl->DefaultProcessing(record);
    const bool backwards = GetKeyState(VK_SHIFT) < 0;
    const HWND page = Page(currentPage)->Handle();
    const HWND next = backwards ? LastTabStop(page) : FirstTabStop(page);
    if (next != nullptr) SetFocus(next);
    return 0;
}

LRESULT MainWindow::OnTabControlChar(MessageRecord& record) {
    return record.wParam == L'\t' ? 0 : tabControl->DefaultProcessing(record);
}

bool MainWindow::PreTranslate(MSG& message) {
    if (ApplicationView::PreTranslate(message)) return true;
    return NavigateByKey(message, {tabControl->Handle(), Page(currentPage)->Handle(), results->Handle()});
}

// What is saved is there for a copy that is started as soon as this window is gone.
LRESULT MainWindow::OnWmClose(MessageRecord& record) {
    const bool closesLater = EndWorkUnderWay();
    if (fileOperation->IsRunning()) return 0;
    SaveSettingsOnce();
    LeaveScreen();
    return closesLater ? 0 : DefaultProcessing(record);
}

// Taking a long list apart takes its time, and nobody is to watch it.
void MainWindow::LeaveScreen() {
    if (Handle() == nullptr) return;
    EnableWindow(Handle(), FALSE);
    ShowWindow(Handle(), SW_HIDE);
}

// A search or a file operation stands on this window: it is ended first, and the window closes when it has
// unwound. A name that is being edited is taken.
bool MainWindow::EndWorkUnderWay() {
    if (fileOperation->IsRunning()) {
        fileOperation->StopAndCloseParent();
        return true;
    }
    if (!abortDialog->IsRunning()) {
        results->EndEditing();
        return false;
    }
    closeAfterSearch = true;
    abortDialog->Abort();
    return true;
}

// The system may end the process as soon as this has been answered, so the settings are saved here and now;
// the window's own end saves them no second time.
LRESULT MainWindow::OnWmEndSession(MessageRecord& record) {
    if (record.wParam == FALSE) return 0;
    SaveSettingsOnce();
    if (!EndWorkUnderWay()) PostMessageW(Handle(), WM_CLOSE, 0, 0);
    return 0;
}

// Activated from outside while a dialog is open, as by a click on a task bar.
LRESULT MainWindow::OnWmActivate(MessageRecord& record) {
    if (LOWORD(record.wParam) != WA_INACTIVE && ce::PassActivationOn(Handle())) return 0;
    return ApplicationView::OnWmActivate(record);
}

LRESULT MainWindow::OnWmDestroy(MessageRecord& record) {
    SaveSettingsOnce();
    return ApplicationView::OnWmDestroy(record);
}

void MainWindow::SaveSettingsOnce() {
    if (skipSaving || namePage == nullptr) return;
    namePage->SaveSettings(ProductRegistryKey);
    skipSaving = true;
}

// F1 in a dialog comes here as well, from dialog to owner: the box does not open over another one.
void MainWindow::ShowAbout() {
    if (!IsWindowEnabled(Handle())) return;
    aboutBox->RunModal();
}

LRESULT MainWindow::OnUninstall(EventArguments&) {
    aboutBox->End(Dialog::ResultCancel);
    UpdateWindow(Handle());
    if (!RemoveRegistryKeys(HKEY_CURRENT_USER, MakerRegistryKey, ProductRegistryKey)) {
        ShowError(Handle(), InLanguage(L"Uninstall fail!", L"ｱﾝｲﾝｽﾄｰﾙに失敗しました!"));
        return 0;
    }
    skipSaving = true;
    PostMessageW(Handle(), WM_CLOSE, 0, 0);
    return 0;
}
