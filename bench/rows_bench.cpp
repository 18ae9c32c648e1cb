
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/abort_dialog.h"
#include "bench/bench_list.h"
#include "bench/bench_search.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "search/entry_filter.h"
#include "search/search_walk.h"

namespace {

using Row = std::vector<std::wstring>;

std::vector<Row> RowsOf(const ResultList& list) {
    std::vector<Row> rows;
    for (int row = 0; row < list.RowCount(); ++row) {
        Row cells;
        for (int column = 0; column < ResultColumnCount; ++column) {
            wchar_t text[MAX_PATH];
            list.ReadCell(row, static_cast<ResultColumn>(column), text);
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

// What a search hands to the list, by folders.
class KeepingSink final : public MatchSink {
  public:
    void Clear() override {}
    void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) override {
        const std::wstring path = fullPath;
        matches.emplace_back(path.substr(0, path.rfind(L'\\')), entry);
    }
    void Refresh() override {}

    std::vector<std::pair<std::wstring, WIN32_FIND_DATAW>> matches;
};

// Work that is done while the search's dialog stands in front.
class DialogJob : public WindowObject {
  public:
    DialogJob() : WindowObject(nullptr, nullptr) {}
    LRESULT Run(EventArguments&) {
        work();
        return 0;
    }

    std::function<void()> work;
};

// Adds up the time that passes between its making and its end.
class Stopwatch {
  public:
    explicit Stopwatch(double& milliseconds) : sum_(milliseconds), begin_(MillisecondsNow()) {}
    Stopwatch(const Stopwatch&) = delete;
    Stopwatch& operator=(const Stopwatch&) = delete;
    ~Stopwatch() { sum_ += MillisecondsNow() - begin_; }

  private:
    double& sum_;
    double begin_;
};

// The list and the dialog, with what drawing in them takes. Reading the clock for it counts as drawing.
class TimedDrawing final : public MatchSink, public SearchProgress {
  public:
    TimedDrawing(ResultList& realList, AbortDialog& realDialog) : list_(realList), dialog_(realDialog) {}

    void Clear() override { list_.Clear(); }
    void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) override {
        list_.AddMatch(fullPath, entry);
    }
    void Refresh() override {
        const Stopwatch watch(drawing);
        ++looks;
        list_.Refresh();
    }
    void EnterFolder(const wchar_t* folder) override {
        const Stopwatch watch(drawing);
        dialog_.EnterFolder(folder);
    }
    bool StopRequested() override {
        const Stopwatch watch(drawing);
        return dialog_.StopRequested();
    }
    void Finish() {
        const Stopwatch watch(drawing);
        list_.EndFilling();
        UpdateWindow(list_.Handle());
    }

    double drawing = 0;
    int looks = 0;

  private:
    ResultList& list_;
    AbortDialog& dialog_;
};

double MillisecondsOfALook() {
    constexpr int Looks = 500;
    const double begin = MillisecondsNow();
    MSG message;
    for (int i = 0; i < Looks; ++i)
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    return (MillisecondsNow() - begin) / Looks;
}

struct Share {
    double part;
    double whole;
};

Share MeasureDrawing(const AskedQuery& query, ResultList& list, AbortDialog& dialog) {
    TimedDrawing timed(list, dialog);
    SearchConditions conditions;
    double whole = 0;
    {
        const Stopwatch watch(whole);
        list.BeginFilling();
        RunSearch(conditions, query, timed, timed);
        timed.Finish();
    }
    return {timed.drawing + timed.looks * MillisecondsOfALook(), whole};
}

// The median share of several.
void PrintShareOfDrawing(const char* name, const AskedQuery& query, ResultList& list, AbortDialog& dialog,
                         int runs) {
    std::vector<Share> shares;
    for (int run = 0; run < runs; ++run)
        shares.push_back(MeasureDrawing(query, list, dialog));
    std::sort(shares.begin(), shares.end(), [](const Share& one, const Share& other) {
        return one.part / one.whole < other.part / other.whole;
    });
    const Share& middle = shares[shares.size() / 2];
    PrintLine(name, middle.part, middle.whole);
}

bool CompareInDialog(const BenchTree& tree, ResultList& list, AbortDialog& dialog, int runs) {
    AskedQuery query = SearchBelow(tree.Files());
    SearchConditions conditions;
    const auto search = [&] {
        list.BeginFilling();
        RunSearch(conditions, query, list, dialog);
        list.EndFilling();
        UpdateWindow(list.Handle());
    };
    search();
    const std::vector<Row> rows = RowsOf(list);
    const std::size_t entries = CountBarely(tree.Files());
    if (rows.size() != entries || entries == 0) {
        std::printf("the list holds %zu of %zu rows\n", rows.size(), entries);
        return false;
    }
    KeepingSink kept;
    RunSearch(conditions, query, kept, dialog);
    ObjectList noPatterns;
    SearchWalk walk{conditions, noPatterns, L"", list, dialog};
    const auto fill = [&] {
        list.BeginFilling();
        list.Clear();
        for (const auto& [folder, entry] : kept.matches)
            static_cast<void>(TestEntry(walk, folder.c_str(), entry));
        list.EndFilling();
        UpdateWindow(list.Handle());
    };
    const auto insert = [&] { InsertBarely(list.Handle(), rows); };
    MeasureAndPrint({"matches into the list / inserting the same rows", fill, insert}, runs);
    MeasureAndPrint({"search of everything / inserting the same rows", search, insert}, runs);
    PrintShareOfDrawing("drawing and polling / search of everything", query, list, dialog, runs);
    query.name = L"no such name";
    PrintShareOfDrawing("drawing and polling / search of nothing", query, list, dialog, runs);
    return true;
}

}  // namespace

bool CompareRows(const BenchTree& tree, int runs) {
    BenchList bench;
    if (bench.Handle() == nullptr) {
        std::printf("the result list could not be made\n");
        return false;
    }
    AbortDialog dialog(&bench.Screen());
    DialogJob job;
    bool done = false;
    job.work = [&] { done = CompareInDialog(tree, bench.List(), dialog, runs); };
    dialog.OnRun(&job, &DialogJob::Run);
    dialog.RunModal();
    return done;
}
