#include "tests/app/main_window_test.h"

#include "app/product.h"
#include "app/run.h"

MainWindowTest::MainWindowTest() {
    ForgetSettings();
}

MainWindowTest::~MainWindowTest() {
    Discard();
    ForgetSettings();
}

void MainWindowTest::ForgetSettings() {
    ce::RegDeleteKeyW(HKEY_CURRENT_USER, ProductRegistryKey);
}

void MainWindowTest::Open(UiLanguage language) {
    OpenFirstPicture(language);
    window_->CompleteParts();
    FindPages();
    PumpQueue();
}

void MainWindowTest::OpenFirstPicture(UiLanguage language) {
    ContextForStartUp().uiLanguage = language;
    ContextForStartUp().menuLanguage = language;
    properties_.Clear();
    DescribeMainWindow(properties_);
    window_ = std::make_unique<MainWindow>(ProductName, properties_, world_.TheApplication());
    window_->Show();
}

int MainWindowTest::RunToTheEnd(int firstCommand) {
    PostCommand(firstCommand);
    return world_.TheApplication().Run();
}

void MainWindowTest::FindPages() {
    constexpr int OwnControl[] = {CHECK_SUBFOLDERS, PICKER_FROM, SPIN_KILOBYTES};
    HWND page = nullptr;
    while ((page = FindWindowExW(Tab(), page, L"#32770", nullptr)) != nullptr) {
        for (int i = 0; i < 3; ++i) {
            if (GetDlgItem(page, OwnControl[i]) != nullptr) pages_[i] = page;
        }
    }
}

std::wstring MainWindowTest::TextOf(int page, int id) const {
    wchar_t text[512] = L"";
    GetWindowTextW(Item(page, id), text, 512);
    return text;
}

int MainWindowTest::ShownPage() const {
    int shown = -1;
    for (int i = 0; i < 3; ++i) {
        if (!IsWindowVisible(Page(i))) continue;
        EXPECT_EQ(shown, -1) << "two pages are shown at once";
        shown = i;
    }
    return shown;
}

void MainWindowTest::Key(HWND target, int key, std::initializer_list<int> modifiers) {
    const HeldKeys held(modifiers);
    MSG message = KeyDownMessage(target, key);
    if (!Window().PreTranslate(message)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    PumpQueue();
}

Texts MainWindowTest::RowNames() const {
    Texts names;
    for (int row = 0; row < RowCount(); ++row)
        names.push_back(CellOf(List(), row, ResultColumn::Name));
    return names;
}

void MainWindowTest::SelectRow(int row, bool select) const {
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED;
    item.state = select ? LVIS_SELECTED : 0;
    SendMessageW(List(), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}
