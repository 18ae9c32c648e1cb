#include <cstdio>
#include <cwchar>
#include <utility>
#include <vector>

#include "app/app_globals.h"
#include "bench/bench_search.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "framework/application.h"
#include "framework/property_keys.h"
#include "results/result_list.h"

namespace {

// The screen of the smaller device.
constexpr int ScreenWidth = 240;
constexpr int ScreenHeight = 320;

using Row = std::vector<std::wstring>;

std::vector<Row> RowsOf(HWND list) {
    std::vector<Row> rows;
    const auto count = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < count; ++row) {
        Row cells;
        for (int column = 0; column < ResultColumnCount; ++column) {
            wchar_t text[MAX_PATH] = L"";
            LVITEMW item = {};
            item.iSubItem = column;
            item.pszText = text;
            item.cchTextMax = MAX_PATH;
            SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
            cells.emplace_back(text);
        }
        rows.push_back(std::move(cells));
    }
    return rows;
}

void InsertBarely(HWND list, const std::vector<Row>& rows) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = static_cast<int>(row);
        item.lParam = static_cast<LPARAM>(row);
        item.pszText = const_cast<wchar_t*>(rows[row][0].c_str());
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        for (int column = 1; column < ResultColumnCount; ++column) {
            item.iSubItem = column;
            item.pszText = const_cast<wchar_t*>(rows[row][static_cast<std::size_t>(column)].c_str());
            SendMessageW(list, LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
        }
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

// What a search would hand to the list, kept.
class KeepingSink final : public MatchSink {
  public:
    void Clear() override {}
    void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) override {
        matches.emplace_back(fullPath, entry);
    }
    void Refresh() override {}

    std::vector<std::pair<std::wstring, WIN32_FIND_DATAW>> matches;
};

HWND MakeScreen() {
    return CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, ScreenWidth, ScreenHeight, nullptr,
                           nullptr, GetModuleHandleW(nullptr), nullptr);
}

PropertySet ListProperties() {
    PropertySet properties;
    properties.Add(property::Width, ScreenWidth);
    properties.Add(property::Height, ScreenHeight);
    return properties;
}

}  // namespace

bool CompareRows(const BenchTree& tree, int runs) {
    GlobalsForStartUp().instance = GetModuleHandleW(nullptr);
    Application application(L"QuorinSearch", 0, nullptr);
    const INITCOMMONCONTROLSEX listView = {sizeof(listView), ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&listView);
    WindowObject screen(nullptr, MakeScreen(), Ownership::Owned);
    PropertySet properties = ListProperties();
    ResultList list(&screen, properties);
    if (list.Handle() == nullptr) {
        std::printf("the result list could not be made\n");
        return false;
    }
    AnsweredSource source = SearchBelow(tree.NamesFolder());
    SilentProgress progress;
    SearchConditions conditions;
    const auto search = [&] {
        list.BeginFilling();
        RunSearch(conditions, source, list, progress);
        list.EndFilling();
        UpdateWindow(list.Handle());
    };
    search();
    const std::vector<Row> rows = RowsOf(list.Handle());
    if (rows.size() != tree.NamesEntries()) {
        std::printf("the list holds %zu of %zu rows\n", rows.size(), tree.NamesEntries());
        return false;
    }
    const auto insert = [&] { InsertBarely(list.Handle(), rows); };
    MeasureAndPrint({"search of everything / inserting the same rows", search, insert}, runs);
    KeepingSink kept;
    RunSearch(conditions, source, kept, progress);
    const auto fill = [&] {
        list.BeginFilling();
        list.Clear();
        for (const auto& [path, entry] : kept.matches)
            list.AddMatch(path.c_str(), entry);
        list.EndFilling();
        UpdateWindow(list.Handle());
    };
    MeasureAndPrint({"matches into the list / inserting the same rows", fill, insert}, runs);
    return true;
}
