#pragma once

// Condition pages that hold what a test puts there.

#include <cwchar>
#include <string>

#include "search/condition_source.h"

class AnsweredSource : public ConditionSource {
  public:
    void LocationText(wchar_t (&text)[MAX_PATH]) const override { Copy(location, text); }
    void NameText(wchar_t (&text)[MAX_PATH]) const override { Copy(name, text); }
    void ContentText(wchar_t (&text)[ContentTextSize]) const override { Copy(content, text); }
    [[nodiscard]] bool SubFoldersChecked() const override { return subFolders; }
    [[nodiscard]] bool DateRangeChosen(DateRange& range) const override {
        if (dateRangeChosen) range = dateRange;
        return dateRangeChosen;
    }
    [[nodiscard]] int TypeIndex() const override { return typeIndex; }
    void TypeExtensions(wchar_t (&text)[MAX_PATH]) const override { Copy(extensions, text); }
    [[nodiscard]] SizeAnswer SizeBound(std::uint32_t& bound) const override {
        bound = sizeBound;
        return sizeAnswer;
    }
    // Checked, as at the start of the program: case counts.
    [[nodiscard]] std::uint32_t CaseOptionState() const override { return caseOptionState; }

    std::wstring location;
    std::wstring name;
    std::wstring content;
    bool subFolders = false;
    bool dateRangeChosen = false;
    DateRange dateRange;
    int typeIndex = 0;
    std::wstring extensions;
    SizeAnswer sizeAnswer = SizeAnswer::None;
    std::uint32_t sizeBound = 0;
    std::uint32_t caseOptionState = 8;

  private:
    template <std::size_t size>
    static void Copy(const std::wstring& from, wchar_t (&to)[size]) {
        std::wcsncpy(to, from.c_str(), size - 1);
        to[size - 1] = L'\0';
    }
};
