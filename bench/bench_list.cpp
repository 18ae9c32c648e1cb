#include "bench/bench_list.h"

#include "base/program_context.h"
#include "framework/property_set.h"

namespace {

constexpr int ScreenWidth = 240;
constexpr int ScreenHeight = 320;

HWND MakeScreen() {
    return CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, ScreenWidth, ScreenHeight, nullptr,
                           nullptr, GetModuleHandleW(nullptr), nullptr);
}

}  // namespace

BenchList::BenchList() {
    ContextForStartUp().instance = GetModuleHandleW(nullptr);
    application_ = std::make_unique<Application>(L"QuorinSearch", 0, nullptr);
    const INITCOMMONCONTROLSEX listView = {sizeof(listView), ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&listView);
    screen_ = std::make_unique<WindowObject>(nullptr, MakeScreen(), Ownership::Owned);
    PropertySet properties;
    properties.Add(property::Width, ScreenWidth);
    properties.Add(property::Height, ScreenHeight);
    list_ = std::make_unique<ResultList>(screen_.get(), properties);
}
