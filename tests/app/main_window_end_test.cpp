// What others see of the main window while it is being taken apart: the list's end is where it takes its
// time.

#include "app/product.h"
#include "app/start_up.h"
#include "base/registry_key.h"
#include "tests/app/main_window_test.h"

namespace {

struct SeenAtTheEnd {
    int ends = 0;
    bool visible = true;
    bool countsAsRunning = true;
    bool saved = false;
};
SeenAtTheEnd seen;

bool AreSettingsSaved() {
    DWORD subFolders = 0;
    return ReadRegistryDword(HKEY_CURRENT_USER, ProductRegistryKey, L"Sub Folder", subFolders) ==
           ERROR_SUCCESS;
}

LRESULT CALLBACK LookAtTheEnd(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_DESTROY) {
        ++seen.ends;
        seen.visible = IsWindowVisible(GetParent(list));
        seen.countsAsRunning = BringRunningCopyForward();
        seen.saved = AreSettingsSaved();
    }
    return DefSubclassProc(list, message, wParam, lParam);
}

}  // namespace

class MainWindowEnd : public MainWindowTest {
  protected:
    void SetUp() override {
        seen = SeenAtTheEnd();
        Open();
        ASSERT_TRUE(IsWindowVisible(Handle()));
        ASSERT_TRUE(BringRunningCopyForward());
        ASSERT_FALSE(AreSettingsSaved());
        SetWindowSubclass(List(), &LookAtTheEnd, 1, 0);
    }
    static void ExpectGone() {
        EXPECT_EQ(seen.ends, 1);
        EXPECT_FALSE(seen.visible);
        EXPECT_FALSE(seen.countsAsRunning);
    }
};

TEST_F(MainWindowEnd, a_closed_window_has_left_the_screen_and_saved_its_settings_when_the_list_goes) {
    SendMessageW(Handle(), WM_CLOSE, 0, 0);
    ExpectGone();
    EXPECT_TRUE(seen.saved);
}

TEST_F(MainWindowEnd, a_window_whose_program_quits_has_left_the_screen_when_the_list_goes) {
    Discard();
    ExpectGone();
}
