#include "framework/application_view.h"

#include "tests/framework/dialog_ids.h"
#include "tests/framework/framework_test.h"

namespace {

constexpr int BarHeight = 26;

PropertySet ViewProperties() {
    PropertySet properties;
    properties.Set(property::X, 0);
    properties.Set(property::Y, 0);
    properties.Set(property::Width, 200);
    properties.Set(property::Height, 180);
    properties.Set(property::Style, WS_POPUP);
    return properties;
}

class TestView : public ApplicationView {
  public:
    explicit TestView(PropertySet properties, Application* owner = nullptr)
        : ApplicationView(nullptr, L"View", properties, owner) {}

    int aboutShown = 0;

  protected:
    void ShowAbout() override { ++aboutShown; }
};

class ApplicationViews : public FrameworkTest {
  protected:
    // WM_QUIT is taken out of the queue so that no later test stumbles over it.
    static bool TakeQuit() {
        MSG message{};
        return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) && message.message == WM_QUIT;
    }

    static RECT InParent(HWND window) {
        RECT place{};
        GetWindowRect(window, &place);
        MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }

    Listener listener_;
};

TEST_F(ApplicationViews, have_a_class_of_their_own_unless_the_caller_names_one) {
    {
        const TestView view(ViewProperties());
        wchar_t name[32] = L"";
        GetClassNameW(view.Handle(), name, 32);
        EXPECT_EQ(std::wstring(name), L"ApplicationView");
    }
    PropertySet named = ViewProperties();
    named.SetText(property::ClassName, L"NamedViewClass");
    const TestView view(named);
    wchar_t name[32] = L"";
    GetClassNameW(view.Handle(), name, 32);
    EXPECT_EQ(std::wstring(name), L"NamedViewClass");
    TakeQuit();
}

TEST_F(ApplicationViews, are_visible_and_placed_by_the_system_by_default) {
    PropertySet properties;
    const TestView view(properties);
    ASSERT_NE(view.Handle(), nullptr);
    EXPECT_TRUE(IsWindowVisible(view.Handle()));
    RECT place{};
    GetWindowRect(view.Handle(), &place);
    EXPECT_GT(place.right - place.left, 100);
    EXPECT_GT(place.bottom - place.top, 100);
}

TEST_F(ApplicationViews, keep_the_caller_s_place) {
    const TestView view(ViewProperties());
    RECT place{};
    GetWindowRect(view.Handle(), &place);
    EXPECT_EQ(place.right, 200);
    EXPECT_EQ(place.bottom, 180);
    EXPECT_EQ(GetWindowLongW(view.Handle(), GWL_STYLE) & (WS_VISIBLE | WS_CLIPCHILDREN),
              WS_VISIBLE | WS_CLIPCHILDREN);
}

TEST_F(ApplicationViews, with_a_bar_have_its_menu_and_its_tool_bar) {
    PropertySet properties = ViewProperties();
    properties.Set(property::MenuBar, VIEW_MENU_BAR);
    const TestView view(properties);
    ASSERT_NE(view.MenuBar(), nullptr);
    EXPECT_EQ(GetParent(view.MenuBar()->Handle()), view.Handle());
    EXPECT_EQ(view.CommandBar(), view.MenuBar());
    ASSERT_NE(view.Menu(), nullptr);
    EXPECT_EQ(GetMenuItemCount(view.Menu()), 1);
    EXPECT_NE(GetMenuState(view.Menu(), VIEW_COMMAND, MF_BYCOMMAND), ~0U);
    const HWND toolBar = GetWindow(view.MenuBar()->Handle(), GW_CHILD);
    EXPECT_NE(Application::Windows()->Find(toolBar), nullptr);
    EXPECT_EQ(Application::Windows()->Find(view.MenuBar()->Handle()), view.MenuBar());
}

TEST_F(ApplicationViews, whose_bar_cannot_be_made_have_neither_bar_nor_menu) {
    PropertySet properties = ViewProperties();
    properties.Set(property::MenuBar, VIEW_MISSING_BAR);
    const TestView missing(properties);
    ASSERT_NE(missing.Handle(), nullptr);
    EXPECT_EQ(missing.MenuBar(), nullptr);
    EXPECT_EQ(missing.CommandBar(), nullptr);
    EXPECT_EQ(missing.Menu(), nullptr);
    const TestView unwanted(ViewProperties());
    EXPECT_EQ(unwanted.MenuBar(), nullptr);
}

TEST_F(ApplicationViews, leave_26_pixels_at_the_bottom_to_the_bar) {
    PropertySet properties = ViewProperties();
    properties.Set(property::MenuBar, VIEW_MENU_BAR);
    const TestView view(properties);
    const RECT area = view.LayoutRectangle();
    EXPECT_EQ(area.left, 0);
    EXPECT_EQ(area.top, 0);
    EXPECT_EQ(area.right, 200);
    EXPECT_EQ(area.bottom, 180 - BarHeight);
    EXPECT_EQ(InParent(view.MenuBar()->Handle()).top, area.bottom);
}

TEST_F(ApplicationViews, leave_26_pixels_at_the_bottom_without_a_bar_as_well) {
    const TestView view(ViewProperties());
    ASSERT_EQ(view.MenuBar(), nullptr);
    EXPECT_EQ(view.LayoutRectangle().bottom, 180 - BarHeight);
}

TEST_F(ApplicationViews, pass_a_new_size_on_to_the_bar_and_leave_the_children_alone) {
    PropertySet properties = ViewProperties();
    properties.Set(property::MenuBar, VIEW_MENU_BAR);
    TestView view(properties);
    PropertySet place = ChildProperties(5);
    place.SetText(property::ClassName, L"FrameworkTestChild");
    place.Set(property::Style, WS_CHILD);
    const WindowObject child(&view, L"", place);
    const RECT before = InParent(child.Handle());
    view.Move(0, 0, 180, 150);
    const RECT bar = InParent(view.MenuBar()->Handle());
    EXPECT_EQ(bar.top, 150 - BarHeight);
    EXPECT_EQ(bar.right, 180);
    const RECT after = InParent(child.Handle());
    EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(ApplicationViews, have_a_small_icon_when_asked) {
    {
        PropertySet properties = ViewProperties();
        properties.Set(property::SmallIcon, VIEW_ICON);
        const TestView view(properties);
        const auto icon = reinterpret_cast<HICON>(SendMessageW(view.Handle(), WM_GETICON, ICON_SMALL, 0));
        ASSERT_NE(icon, nullptr);
        ICONINFO parts{};
        ASSERT_TRUE(GetIconInfo(icon, &parts));
        BITMAP mask{};
        GetObjectW(parts.hbmMask, sizeof mask, &mask);
        EXPECT_EQ(mask.bmWidth, 16);
        DeleteObject(parts.hbmMask);
        DeleteObject(parts.hbmColor);
    }
    const TestView plain(ViewProperties());
    EXPECT_EQ(SendMessageW(plain.Handle(), WM_GETICON, ICON_SMALL, 0), 0);
}

TEST_F(ApplicationViews, release_their_small_icon) {
    HICON icon = nullptr;
    {
        PropertySet properties = ViewProperties();
        properties.Set(property::SmallIcon, VIEW_ICON);
        const TestView view(properties);
        icon = reinterpret_cast<HICON>(SendMessageW(view.Handle(), WM_GETICON, ICON_SMALL, 0));
        ASSERT_NE(icon, nullptr);
    }
    ICONINFO parts{};
    EXPECT_FALSE(GetIconInfo(icon, &parts));
}

TEST_F(ApplicationViews, make_the_standard_controls_known) {
    const TestView view(ViewProperties());
    const wchar_t* const classes[] = {L"SysListView32",   L"SysTreeView32",     L"SysTabControl32",
                                      L"msctls_updown32", L"msctls_progress32", L"ReBarWindow32"};
    for (const wchar_t* name : classes) {
        WNDCLASSW known{};
        EXPECT_TRUE(GetClassInfoW(nullptr, name, &known));
    }
}

TEST_F(ApplicationViews, that_are_main_views_translate_their_accelerators_in_the_message_loop) {
    PropertySet properties = ViewProperties();
    properties.Set(property::Accelerators, VIEW_ACCELERATORS);
    TestView view(properties, &application_);
    view.OnCommand(VIEW_COMMAND, &listener_, &Listener::TakeEvent);
    view.OnMessage(WM_KEYDOWN, &listener_, &Listener::TakeMessage);
    SetFocus(view.Handle());
    PostMessageW(view.Handle(), WM_KEYDOWN, VK_F2, 1);
    PostMessageW(view.Handle(), WM_KEYDOWN, VK_F3, 1);
    PostMessageW(view.Handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(application_.Run(), 0);
    EXPECT_EQ(listener_.events.size(), 1U);
    ASSERT_EQ(listener_.messages.size(), 1U) << "the accelerator's key is consumed";
    EXPECT_EQ(listener_.messages[0].wParam, static_cast<WPARAM>(VK_F3));
}

TEST_F(ApplicationViews, without_accelerators_consume_nothing) {
    TestView view(ViewProperties(), &application_);
    MSG key{view.Handle(), WM_KEYDOWN, VK_F2, 1, 0, {}};
    EXPECT_FALSE(view.PreTranslate(key));
}

TEST_F(ApplicationViews, end_the_message_loop_when_they_are_destroyed) {
    const TestView view(ViewProperties(), &application_);
    DestroyWindow(view.Handle());
    EXPECT_TRUE(TakeQuit());
}

TEST_F(ApplicationViews, show_about_on_help) {
    TestView view(ViewProperties());
    HELPINFO help{};
    help.cbSize = sizeof help;
    SendMessageW(view.Handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    EXPECT_EQ(view.aboutShown, 1);
}

TEST_F(ApplicationViews, are_shown_as_the_program_was_asked_to_start_when_they_are_main_views) {
    ContextForStartUp().showCommand = SW_HIDE;
    TestView main(ViewProperties(), &application_);
    TestView other(ViewProperties());
    ShowWindow(other.Handle(), SW_HIDE);
    main.Show();
    other.Show();
    EXPECT_FALSE(IsWindowVisible(main.Handle()));
    EXPECT_TRUE(IsWindowVisible(other.Handle()));
}

class Loop : public FrameworkTest {};

TEST_F(Loop, answers_what_the_quit_message_says) {
    PostQuitMessage(23);
    EXPECT_EQ(application_.Run(), 23);
}

TEST_F(Loop, belongs_to_an_application_that_keeps_its_name_and_words) {
    const wchar_t* const words[] = {L"one", L"two"};
    const Application second(L"Second", 2, words);
    EXPECT_EQ(std::wstring(second.Name()), L"Second");
    EXPECT_EQ(second.WordCount(), 2);
    EXPECT_EQ(second.Words(), words);
    EXPECT_NE(Application::Windows(), nullptr);
}

}  // namespace
