#pragma once

// A result list in a window of its own, in either language. The shell answers every question about a file's
// kind with "Kind" and the zone is nine hours ahead of UTC, whatever this machine is.

#include <gtest/gtest.h>

#include <memory>

#include "framework/property_set.h"
#include "results/result_list.h"
#include "tests/results/list_cells.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/test_world.h"

class ResultListTest : public testing::Test {
  protected:
    // The list is made at the first use of List, so that a test may choose the language before.
    void UseJapanese() { ContextForStartUp().uiLanguage = UiLanguage::Japanese; }

    ResultList& List() {
        if (list_ == nullptr) {
            PropertySet properties;
            properties.Set(property::Width, 220);
            properties.Set(property::Height, 150);
            list_ = std::make_unique<ResultList>(&host_.Object(), properties);
        }
        return *list_;
    }
    HWND Handle() { return List().Handle(); }

    // Adds a file of this name from this folder.
    void AddFile(const std::wstring& folder, const std::wstring& name, DWORD size = 0) {
        List().AddMatch((folder + L"\\" + name).c_str(), FileEntry(name, size));
    }
    std::wstring Cell(int row, ResultColumn column) { return CellOf(Handle(), row, column); }

  private:
    static DWORD_PTR KindOfFile(const wchar_t*, DWORD, SHFILEINFOW* info, UINT, UINT) {
        lstrcpyW(info->szTypeName, L"Kind");
        return 1;
    }
    static BOOL NineHoursLater(const FILETIME* utc, FILETIME* local) {
        ULARGE_INTEGER time;
        time.LowPart = utc->dwLowDateTime;
        time.HighPart = utc->dwHighDateTime;
        time.QuadPart += 9ULL * 60 * 60 * 10000000;
        local->dwLowDateTime = time.LowPart;
        local->dwHighDateTime = time.HighPart;
        return TRUE;
    }

    TestWorld world_;
    HostWindow host_;
    Replaced<decltype(ce::shellCalls.getFileInfo)> kinds_{ce::shellCalls.getFileInfo, &KindOfFile};
    Replaced<decltype(ce::systemCalls.fileTimeToLocalFileTime)> zone_{ce::systemCalls.fileTimeToLocalFileTime,
                                                                      &NineHoursLater};
    std::unique_ptr<ResultList> list_;
};
