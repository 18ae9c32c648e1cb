#include "framework/property_sheet.h"

#include <prsht.h>

#include <functional>
#include <memory>
#include <utility>

#include "framework/layout.h"
#include "framework/property_set.h"
#include "tests/framework/dialog_ids.h"
#include "tests/framework/framework_test.h"

namespace {

class TestPage : public PropertySheetPage {
  public:
    explicit TestPage(const wchar_t* name) : PropertySheetPage(nullptr, L"Page", TemplateProperties(name)) {}

    int setUps = 0;

  protected:
    void SetUpControls() override { ++setUps; }
};

// What is done to the sheet once it is up, and whether it has been.
std::function<void(HWND)> doing;
int sheetsSeen = 0;

BOOL CALLBACK TakeSheet(HWND window, LPARAM result) {
    if (FindWindowExW(window, nullptr, WC_TABCONTROLW, nullptr) == nullptr) return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

// Each time that it is called: the doing first, then the button of the sheet.
void CALLBACK PressCancel(HWND, UINT, UINT_PTR, DWORD) {
    HWND sheet = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeSheet, reinterpret_cast<LPARAM>(&sheet));
    if (sheet == nullptr || !IsWindowVisible(sheet)) return;
    ++sheetsSeen;
    if (doing) std::exchange(doing, {})(sheet);
    PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
}

class Sheets : public FrameworkTest {
  protected:
    Sheets() {
        sheetsSeen = 0;
        doing = {};
    }
    // Shows the pages in a sheet, which somebody cancels as soon as it is up.
    void Run(std::initializer_list<TestPage*> pages) {
        PropertySheetDialog sheet(&owner_, L"Sheet");
        for (TestPage* page : pages)
            sheet.AddPage(*page);
        const UINT_PTR timer = SetTimer(nullptr, 0, 20, &PressCancel);
        sheet.Run();
        KillTimer(nullptr, timer);
    }

    TestWindow owner_;
};

TEST_F(Sheets, show_their_pages_until_they_are_cancelled) {
    TestPage page(L"Page_E");
    HWND window = nullptr;
    doing = [&](HWND) {
        window = page.Handle();
        EXPECT_EQ(Application::Windows()->Find(window), &page);
        EXPECT_FALSE(IsWindowEnabled(owner_.Handle()));
    };
    Run({&page});
    EXPECT_EQ(page.setUps, 1);
    EXPECT_NE(window, nullptr);
    EXPECT_EQ(page.Handle(), nullptr);
    EXPECT_EQ(Application::Windows()->Find(window), nullptr);
    EXPECT_TRUE(IsWindowEnabled(owner_.Handle()));
}

TEST_F(Sheets, have_ok_and_cancel_alone_in_the_middle_of_their_owner) {
    constexpr int ApplyButton = 0x3021;
    owner_.Move(30, 20, 180, 240);
    TestPage page(L"Page_E");
    doing = [&](HWND sheet) {
        EXPECT_TRUE(IsWindowVisible(GetDlgItem(sheet, IDOK)));
        EXPECT_TRUE(IsWindowVisible(GetDlgItem(sheet, IDCANCEL)));
        const HWND apply = GetDlgItem(sheet, ApplyButton);
        EXPECT_TRUE(apply == nullptr || !IsWindowVisible(apply));
        RECT place{};
        GetWindowRect(sheet, &place);
        const LONG width = place.right - place.left;
        const LONG height = place.bottom - place.top;
        const RECT parent{30, 20, 210, 260};
        const POINT corner = CentredPosition(width, height, &parent, ce::GetSystemMetrics(SM_CXSCREEN),
                                             ce::GetSystemMetrics(SM_CYSCREEN));
        EXPECT_EQ(place.left, corner.x);
        EXPECT_EQ(place.top, corner.y);
    };
    Run({&page});
    EXPECT_GT(sheetsSeen, 0);
}

TEST_F(Sheets, keep_their_pages_when_a_page_is_told_once_more_that_it_was_created) {
    TestPage page(L"Page_E");
    // The system would swallow an access violation in what a timer does.
    bool cameBack = false;
    doing = [&](HWND) {
        const HWND window = page.Handle();
        SendMessageW(window, WM_INITDIALOG, 0, 0);
        EXPECT_EQ(Application::Windows()->Find(window), &page);
        cameBack = true;
    };
    Run({&page});
    EXPECT_TRUE(cameBack);
}

TEST_F(Sheets, are_not_shown_when_no_page_has_its_template) {
    TestPage missing(L"NoSuchTemplate_E");
    EXPECT_EQ(missing.CreatePage(), nullptr);
    Run({&missing});
    EXPECT_EQ(sheetsSeen, 0);
    EXPECT_TRUE(IsWindowEnabled(owner_.Handle()));
}

TEST_F(Sheets, leave_out_a_page_without_its_template) {
    TestPage missing(L"NoSuchTemplate_E");
    TestPage page(L"Page_E");
    int tabs = 0;
    doing = [&](HWND sheet) {
        tabs = static_cast<int>(SendMessageW(
            reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0)), TCM_GETITEMCOUNT, 0, 0));
    };
    Run({&missing, &page});
    EXPECT_EQ(tabs, 1);
    EXPECT_EQ(page.setUps, 1);
}

TEST_F(Sheets, can_be_cancelled_with_a_page_whose_control_cannot_be_made) {
    TestPage broken(L"Broken_E");
    TestPage page(L"Page_E");
    Run({&broken, &page});
    Run({&page, &broken});
    Run({&broken});
    EXPECT_EQ(broken.Handle(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(owner_.Handle()));
}

TEST_F(Sheets, can_be_cancelled_while_another_object_wraps_a_page_s_window) {
    TestPage page(L"Page_E");
    std::unique_ptr<WindowObject> wrapper;
    doing = [&](HWND) { wrapper = std::make_unique<WindowObject>(nullptr, page.Handle()); };
    Run({&page});
    ASSERT_NE(wrapper, nullptr);
    EXPECT_EQ(wrapper->Handle(), nullptr);
    EXPECT_EQ(page.Handle(), nullptr);
    Run({&page});
    EXPECT_EQ(page.setUps, 2);
}

TEST_F(Sheets, tell_their_pages_to_apply_and_ignore_a_notification_without_its_structure) {
    TestPage page(L"Page_E");
    Listener listener;
    page.OnApply(&listener, &Listener::TakeEvent);
    doing = [&](HWND sheet) {
        SendMessageW(page.Handle(), WM_NOTIFY, 0, 0);
        EXPECT_TRUE(listener.events.empty());
        SendNotification(page.Handle(), sheet, 0, static_cast<UINT>(PSN_SETACTIVE));
        EXPECT_TRUE(listener.events.empty());
        SendNotification(page.Handle(), sheet, 0, static_cast<UINT>(PSN_APPLY));
        EXPECT_EQ(listener.events.size(), 1U);
        EXPECT_EQ(GetWindowLongPtrW(page.Handle(), DWLP_MSGRESULT), PSNRET_NOERROR);
    };
    Run({&page});
    EXPECT_EQ(listener.events.size(), 1U);
}

// What the page has of its own, Cancel among it, is no end of a dialog.
TEST_F(Sheets, keep_their_page_when_a_key_of_it_means_cancel) {
    TestPage page(L"Page_E");
    doing = [&](HWND) {
        SendCommand(page.Handle(), IDCANCEL, 0, nullptr);
        EXPECT_TRUE(IsWindowVisible(page.Handle()));
    };
    Run({&page});
    EXPECT_EQ(page.setUps, 1);
}

}  // namespace
