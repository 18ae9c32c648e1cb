// Each property by its number, and what the framework does with it: the numbers are shared with everybody who
// fills a set.

#include "framework/application_view.h"
#include "framework/scrolling_view.h"
#include "resources/resource_ids.h"
#include "tests/framework/dialog_ids.h"
#include "tests/framework/test_dialog.h"

namespace {

PropertyValue Address(const void* pointer) {
    return reinterpret_cast<PropertyValue>(pointer);
}

LRESULT CALLBACK OwnProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(window, message, wParam, lParam);
}

class PropertyKeys : public FrameworkTest {
  protected:
    // Makes a window of the class, with one property more, and gives what the system knows of the class.
    static WNDCLASSW ClassWith(const wchar_t* name, PropertyKey key, PropertyValue value) {
        PropertySet properties;
        properties.Set(1011, Address(name));
        properties.Set(1115, WS_POPUP);
        properties.Set(key, value);
        const WindowObject object(nullptr, L"", properties);
        WNDCLASSW known{};
        EXPECT_TRUE(GetClassInfoW(Context().instance, name, &known));
        return known;
    }

    // A place for a view at the screen's corner.
    static PropertySet ViewSet() {
        PropertySet properties;
        properties.Set(1115, WS_POPUP);
        properties.Set(1139, 0);
        properties.Set(1140, 0);
        properties.Set(1135, 200);
        properties.Set(1046, 180);
        return properties;
    }

    Listener listener_;
};

TEST_F(PropertyKeys, describe_a_window_class) {
    const HICON icon = LoadIconW(nullptr, IDI_APPLICATION);
    const HCURSOR cursor = LoadCursorW(nullptr, IDC_CROSS);
    const HGDIOBJ brush = GetStockObject(GRAY_BRUSH);
    EXPECT_EQ(ClassWith(L"Key1004", 1004, Address(brush)).hbrBackground, brush);
    EXPECT_EQ(ClassWith(L"Key1012", 1012, CS_DBLCLKS).style, static_cast<UINT>(CS_DBLCLKS));
    EXPECT_EQ(ClassWith(L"Key1014", 1014, 8).cbClsExtra, 8);
    EXPECT_EQ(ClassWith(L"Key1017", 1017, Address(cursor)).hCursor, cursor);
    EXPECT_EQ(ClassWith(L"Key1052", 1052, Address(icon)).hIcon, icon);
    EXPECT_EQ(ClassWith(L"Key1137", 1137, 24).cbWndExtra, 24);
    EXPECT_EQ(ClassWith(L"Key1138", 1138, Address(reinterpret_cast<const void*>(&OwnProcedure))).lpfnWndProc,
              &OwnProcedure);
    const WNDCLASSW withMenu = ClassWith(L"Key1079", 1079, Address(L"SomeMenu"));
    ASSERT_NE(withMenu.lpszMenuName, nullptr);
    EXPECT_EQ(std::wstring(withMenu.lpszMenuName), L"SomeMenu");
}

TEST_F(PropertyKeys, describe_a_window) {
    TestWindow parent;
    PropertySet properties;
    properties.Set(1011, Address(L"Edit"));
    properties.Set(1101, 1);
    properties.Set(1115, WS_CHILD);
    properties.Set(1032, WS_EX_CLIENTEDGE);
    properties.Set(1016, 4321);
    properties.Set(1139, 11);
    properties.Set(1140, 22);
    properties.Set(1135, 133);
    properties.Set(1046, 44);
    const WindowObject object(&parent, L"", properties);
    ASSERT_NE(object.Handle(), nullptr);
    WNDCLASSW own{};
    const HINSTANCE instance = Context().instance;
    EXPECT_TRUE(!GetClassInfoW(instance, L"Edit", &own) || own.lpfnWndProc != &FrameworkWindowProcedure)
        << "registered elsewhere";
    EXPECT_EQ(GetDlgCtrlID(object.Handle()), 4321);
    EXPECT_NE(GetWindowLongW(object.Handle(), GWL_STYLE) & WS_CHILD, 0);
    EXPECT_NE(GetWindowLongW(object.Handle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
    RECT place{};
    GetWindowRect(object.Handle(), &place);
    MapWindowPoints(nullptr, parent.Handle(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, 11);
    EXPECT_EQ(place.top, 22);
    EXPECT_EQ(place.right - place.left, 133);
    EXPECT_EQ(place.bottom - place.top, 44);
}

std::uintptr_t seenParameter = 0;

LRESULT CALLBACK ParameterProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        seenParameter =
            reinterpret_cast<std::uintptr_t>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

TEST_F(PropertyKeys, bring_the_creation_parameter) {
    PropertySet properties;
    properties.Set(1011, Address(L"Key1095"));
    properties.Set(1115, WS_POPUP);
    properties.Set(1138, Address(reinterpret_cast<const void*>(&ParameterProcedure)));
    properties.Set(1095, 4711);
    const WindowObject object(nullptr, L"", properties);
    EXPECT_EQ(seenParameter, 4711U);
}

TEST_F(PropertyKeys, describe_a_dialog) {
    PropertySet properties;
    properties.Set(1117, Address(L"Plain_E"));
    properties.Set(101, 77);
    properties.Set(1110, 8);
    class Watched : public TestDialog {
      public:
        using Dialog::FullScreenFlags;
        using TestDialog::TestDialog;
    };
    Watched dialog(properties);
    dialog.OnInitialise(&listener_, &Listener::TakeEvent);
    dialog.CreateModeless();
    EXPECT_EQ(TextOf(dialog.Handle()), L"Plain");
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].argument, 77);
    EXPECT_EQ(dialog.FullScreenFlags(), 8U);
}

TEST_F(PropertyKeys, describe_a_top_level_view) {
    PropertySet properties = ViewSet();
    properties.Set(1001, VIEW_ACCELERATORS);
    properties.Set(1053, VIEW_ICON);
    properties.Set(1078, VIEW_MENU_BAR);
    ApplicationView view(nullptr, L"View", properties, nullptr);
    EXPECT_NE(view.MenuBar(), nullptr);
    EXPECT_NE(SendMessageW(view.Handle(), WM_GETICON, ICON_SMALL, 0), 0);
    EXPECT_EQ(view.ViewRebar(), nullptr);
    EXPECT_EQ(view.ViewStatusBar(), nullptr);
    MSG key{view.Handle(), WM_KEYDOWN, VK_F2, 1, 0, {}};
    EXPECT_TRUE(view.PreTranslate(key));
}

TEST_F(PropertyKeys, ask_for_a_views_further_bars) {
    PropertySet rebar = ViewSet();
    rebar.Set(1021, 1);
    const ApplicationView withRebar(nullptr, L"View", rebar, nullptr);
    EXPECT_NE(withRebar.ViewRebar(), nullptr);
    EXPECT_EQ(withRebar.ViewStatusBar(), nullptr);
    PropertySet status = ViewSet();
    status.Set(1022, 1);
    const ApplicationView withStatus(nullptr, L"View", status, nullptr);
    EXPECT_NE(withStatus.ViewStatusBar(), nullptr);
    EXPECT_EQ(withStatus.ViewRebar(), nullptr);
}

class SteppedView : public ScrollingView {
  public:
    explicit SteppedView(PropertySet properties) : ScrollingView(nullptr, L"Steps", properties) {}
    using ScrollingView::LineStep;
    using ScrollingView::SecondStep;
};

TEST_F(PropertyKeys, describe_what_scrolls) {
    PropertySet properties = PopupProperties();
    properties.Set(1050, 3);
    properties.Set(1049, 300);
    properties.Set(1051, 33);
    properties.Set(1130, 4);
    properties.Set(1129, 400);
    properties.Set(1131, 44);
    properties.Set(1093, 5);
    properties.Set(1067, 6);
    const HICON icon = LoadIconW(nullptr, IDI_WARNING);
    properties.Set(1136, Address(icon));
    properties.Set(1011, Address(L"Key1136"));
    const SteppedView view(properties);
    EXPECT_EQ(view.Bar(SB_HORZ).Range().minimum, 3);
    EXPECT_EQ(view.Bar(SB_HORZ).Range().maximum, 300);
    EXPECT_EQ(view.Bar(SB_HORZ).Position(), 33);
    EXPECT_EQ(view.Bar(SB_VERT).Range().minimum, 4);
    EXPECT_EQ(view.Bar(SB_VERT).Range().maximum, 400);
    EXPECT_EQ(view.Bar(SB_VERT).Position(), 44);
    EXPECT_EQ(view.LineStep(), 5);
    EXPECT_EQ(view.SecondStep(), 6);
    EXPECT_EQ(reinterpret_cast<HICON>(GetClassLongPtrW(view.Handle(), GCLP_HICON)), icon);
}

TEST_F(PropertyKeys, let_a_box_be_tracked) {
    for (const bool tracking : {false, true}) {
        PropertySet properties = PopupProperties();
        properties.Set(1129, 400);
        if (tracking) properties.Set(1030, 1);
        SteppedView view(properties);
        const MessageRecord record{WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 50), 0, 0, 0};
        view.Scroll(SB_VERT, record);
        EXPECT_EQ(view.Bar(SB_VERT).Position(), tracking ? 50 : 0);
    }
}

}  // namespace
