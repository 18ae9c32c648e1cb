#include <gtest/gtest.h>

#include <string>

#include "platform/windows_ce.h"
#include "tests/platform/bar_ids.h"
#include "tests/support/replaced_calls.h"

namespace {

std::wstring ClassNameOf(HWND window, int capacity) {
    std::wstring name(64, L'#');
    const int length = ce::GetClassNameW(window, name.data(), capacity);
    EXPECT_EQ(static_cast<std::size_t>(length), std::wcslen(name.c_str()));
    return name.substr(0, static_cast<std::size_t>(length));
}

// Any window at all of a system class, destroyed with the object.
class SystemWindow {
  public:
    explicit SystemWindow(const wchar_t* className)
        : window_(::CreateWindowExW(0, className, L"", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr,
                                    GetModuleHandleW(nullptr), nullptr)) {}
    ~SystemWindow() { DestroyWindow(window_); }
    SystemWindow(const SystemWindow&) = delete;
    SystemWindow& operator=(const SystemWindow&) = delete;
    [[nodiscard]] HWND Handle() const { return window_; }

  private:
    HWND window_;
};

TEST(ClassNames, a_dialog_s_class_reads_dialog) {
    const SystemWindow dialog(L"#32770");
    ASSERT_NE(dialog.Handle(), nullptr);
    EXPECT_EQ(ClassNameOf(dialog.Handle(), 64), L"Dialog");
    EXPECT_EQ(ClassNameOf(dialog.Handle(), 7), L"Dialog");
}

TEST(ClassNames, a_dialog_s_class_is_cut_to_the_buffer) {
    const SystemWindow dialog(L"#32770");
    EXPECT_EQ(ClassNameOf(dialog.Handle(), 4), L"Dia");
    wchar_t untouched = L'#';
    EXPECT_EQ(ce::GetClassNameW(dialog.Handle(), &untouched, 0), 0);
    EXPECT_EQ(untouched, L'#');
}

TEST(ClassNames, other_classes_read_as_the_system_calls_them) {
    EXPECT_EQ(ClassNameOf(SystemWindow(L"combobox").Handle(), 64), L"ComboBox");
    EXPECT_EQ(ClassNameOf(SystemWindow(L"edit").Handle(), 64), L"Edit");
    EXPECT_EQ(ClassNameOf(SystemWindow(L"button").Handle(), 64), L"Button");
    EXPECT_EQ(ClassNameOf(SystemWindow(L"listbox").Handle(), 64), L"ListBox");
    EXPECT_EQ(ClassNameOf(SystemWindow(L"static").Handle(), 64), L"Static");
}

TEST(ClassNames, of_no_window_is_nothing) {
    wchar_t name[8] = L"before";
    EXPECT_EQ(ce::GetClassNameW(nullptr, name, 8), 0);
}

TEST(SystemColors, are_the_same_with_and_without_the_flag) {
    EXPECT_EQ(ce::GetSysColor(0x4000000D), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(ce::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_NE(::GetSysColor(COLOR_HIGHLIGHT), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(ce::GetSysColorBrush(0x40000005), ::GetSysColorBrush(COLOR_WINDOW));
    EXPECT_EQ(ce::GetSysColorBrush(COLOR_BTNFACE), ::GetSysColorBrush(COLOR_BTNFACE));
}

// The class as registered, unregistered with the object.
class TestClass {
  public:
    TestClass(HBRUSH background, HCURSOR cursor) {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = DefWindowProcW;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.hbrBackground = background;
        windowClass.hCursor = cursor;
        windowClass.lpszClassName = Name;
        EXPECT_NE(ce::RegisterClassW(&windowClass), 0);
        EXPECT_EQ(windowClass.hbrBackground, background) << "the caller's record is not touched";
        EXPECT_TRUE(GetClassInfoW(GetModuleHandleW(nullptr), Name, &registered));
    }
    ~TestClass() { UnregisterClassW(Name, GetModuleHandleW(nullptr)); }
    TestClass(const TestClass&) = delete;
    TestClass& operator=(const TestClass&) = delete;

    static constexpr wchar_t Name[] = L"ClassUnderTest";
    WNDCLASSW registered{};
};

TEST(ClassRegistration, a_flagged_background_index_becomes_the_desktop_s_index) {
    const TestClass made(reinterpret_cast<HBRUSH>(static_cast<ULONG_PTR>(0x40000010)), nullptr);
    EXPECT_EQ(reinterpret_cast<ULONG_PTR>(made.registered.hbrBackground), 16u);
    EXPECT_EQ(COLOR_BTNFACE + 1, 16);
}

TEST(ClassRegistration, a_real_brush_stays_that_brush) {
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    {
        const TestClass made(brush, nullptr);
        EXPECT_EQ(made.registered.hbrBackground, brush);
    }
    DeleteObject(brush);
}

TEST(ClassRegistration, a_class_without_a_cursor_gets_the_arrow) {
    EXPECT_EQ(TestClass(nullptr, nullptr).registered.hCursor, LoadCursorW(nullptr, IDC_ARROW));
    const HCURSOR hand = LoadCursorW(nullptr, IDC_HAND);
    EXPECT_EQ(TestClass(nullptr, hand).registered.hCursor, hand);
}

class TopLevelWindow : public testing::Test {
  protected:
    void TearDown() override {
        if (window_ != nullptr) DestroyWindow(window_);
    }
    void Create(DWORD style, int x, int y, int width, int height, HWND parent = nullptr) {
        window_ = ce::CreateWindowExW(0, TestClass::Name, L"Title", style, x, y, width, height, parent,
                                      nullptr, GetModuleHandleW(nullptr), nullptr);
        ASSERT_NE(window_, nullptr);
    }
    [[nodiscard]] RECT Rectangle() const {
        RECT rectangle{};
        GetWindowRect(window_, &rectangle);
        return rectangle;
    }
    [[nodiscard]] LONG_PTR Style() const { return GetWindowLongPtrW(window_, GWL_STYLE); }

    TestClass made_{nullptr, nullptr};
    HWND window_ = nullptr;
};

void ExpectSame(const RECT& actual, const RECT& expected) {
    EXPECT_EQ(actual.left, expected.left);
    EXPECT_EQ(actual.top, expected.top);
    EXPECT_EQ(actual.right, expected.right);
    EXPECT_EQ(actual.bottom, expected.bottom);
}

constexpr int Default = CW_USEDEFAULT;

TEST_F(TopLevelWindow, with_default_place_fills_the_work_area_of_a_handheld_s_screen) {
    const int width = ::GetSystemMetrics(SM_CXSCREEN);
    const int height = ::GetSystemMetrics(SM_CYSCREEN);
    ASSERT_LE(width, 800) << "this test is for a screen of a handheld's size";
    ASSERT_LE(height, 480);
    RECT workArea{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &workArea, 0);
    Create(WS_VISIBLE, Default, Default, Default, Default);
    ExpectSame(Rectangle(), workArea);
    EXPECT_EQ(Style() & (WS_CAPTION | WS_SYSMENU), WS_CAPTION | WS_SYSMENU);
    EXPECT_EQ(Style() & (WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX), 0);
    EXPECT_TRUE(IsWindowVisible(window_));
}

TEST_F(TopLevelWindow, with_default_place_has_handheld_proportions_on_a_large_screen) {
    const Replaced screen(ce::systemCalls.getSystemMetrics,
                          [](int index) { return index == SM_CXSCREEN ? 1920 : 1080; });
    Create(0, Default, Default, Default, Default);
    EXPECT_EQ(Style() & (WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX), WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX);
    EXPECT_EQ(Style() & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
    EXPECT_FALSE(IsWindowVisible(window_));
}

TEST_F(TopLevelWindow, with_a_place_of_its_own_is_made_as_asked) {
    Create(WS_POPUP, 10, 20, 130, 140);
    ExpectSame(Rectangle(), RECT{10, 20, 140, 160});
    EXPECT_EQ(Style() & WS_CAPTION, 0);
}

TEST_F(TopLevelWindow, with_only_its_size_left_to_the_system_is_made_as_asked) {
    Create(WS_POPUP, 10, 20, Default, Default);
    EXPECT_EQ(Rectangle().left, 10);
    EXPECT_EQ(Style() & WS_CAPTION, 0);
}

TEST_F(TopLevelWindow, that_cannot_be_made_is_null) {
    EXPECT_EQ(ce::CreateWindowExW(0, L"NoSuchClass", L"", 0, Default, Default, Default, Default, nullptr,
                                  nullptr, GetModuleHandleW(nullptr), nullptr),
              nullptr);
}

TEST(ChildWindow, is_made_as_asked) {
    const TestClass made(nullptr, nullptr);
    const SystemWindow parent(L"static");
    const HWND child = ce::CreateWindowExW(0, TestClass::Name, L"", WS_CHILD, 5, 6, 7, 8, parent.Handle(),
                                           nullptr, GetModuleHandleW(nullptr), nullptr);
    RECT rectangle{};
    GetWindowRect(child, &rectangle);
    MapWindowPoints(HWND_DESKTOP, parent.Handle(), reinterpret_cast<POINT*>(&rectangle), 2);
    ExpectSame(rectangle, RECT{5, 6, 12, 14});
}

LRESULT CALLBACK AnswerSeven(HWND, UINT, WPARAM, LPARAM) {
    return 7;
}

TEST(WindowProcedures, take_each_other_s_place) {
    const SystemWindow window(L"static");
    const WNDPROC own = ce::WindowProcedure(window.Handle());
    EXPECT_NE(own, nullptr);
    EXPECT_EQ(ce::SetWindowProcedure(window.Handle(), &AnswerSeven), own);
    EXPECT_EQ(ce::WindowProcedure(window.Handle()), &AnswerSeven);
    EXPECT_EQ(SendMessageW(window.Handle(), WM_USER, 0, 0), 7);
    EXPECT_EQ(ce::SetWindowProcedure(window.Handle(), own), &AnswerSeven);
    EXPECT_EQ(SendMessageW(window.Handle(), WM_USER, 0, 0), 0);
}

TEST(WindowProcedures, of_no_window_are_null) {
    EXPECT_EQ(ce::WindowProcedure(nullptr), nullptr);
    EXPECT_EQ(ce::SetWindowProcedure(nullptr, &AnswerSeven), nullptr);
}

TEST(DialogResults, are_what_the_dialog_s_procedure_answers) {
    const auto procedure = [](HWND dialog, UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message != WM_USER) return FALSE;
        ce::SetDialogResult(dialog, 12);
        return TRUE;
    };
    const HWND dialog =
        CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(DIALOG_PLAIN), nullptr, procedure, 0);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(SendMessageW(dialog, WM_USER, 0, 0), 12);
    DestroyWindow(dialog);
}

TEST(Resources, are_read_where_they_are) {
    const HMODULE module = GetModuleHandleW(nullptr);
    const auto* bar =
        static_cast<const WORD*>(ce::ResourceBytes(module, MAKEINTRESOURCEW(BAR_ENGLISH), RT_RCDATA));
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar[0], BAR_ENGLISH);
    EXPECT_EQ(bar[1], 3);
}

TEST(Resources, that_are_missing_have_no_bytes) {
    const HMODULE module = GetModuleHandleW(nullptr);
    EXPECT_EQ(ce::ResourceBytes(module, MAKEINTRESOURCEW(BAR_MISSING), RT_RCDATA), nullptr);
    EXPECT_EQ(ce::ResourceBytes(module, MAKEINTRESOURCEW(BAR_ENGLISH), RT_BITMAP), nullptr);
}

}  // namespace
