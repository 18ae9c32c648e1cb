#pragma once

// What the search asks the condition pages and the menu, each a plain question to a control. The main window
// answers; tests answer for themselves.

#include <cstdint>

#include "platform/system_types.h"
#include "search/date_and_size.h"

// Room for the text that a file has to hold: at most 260 units of it count.
constexpr int ContentTextSize = 261;

class ConditionSource {
  public:
    virtual ~ConditionSource() = default;

    // Each text is terminated, and cut where it does not fit.
    virtual void LocationText(wchar_t (&text)[MAX_PATH]) const = 0;
    virtual void NameText(wchar_t (&text)[MAX_PATH]) const = 0;
    virtual void ContentText(wchar_t (&text)[ContentTextSize]) const = 0;

    [[nodiscard]] virtual bool SubFoldersChecked() const = 0;

    // False when any date will do; otherwise true, with the range written (BetweenDates, PastDays).
    [[nodiscard]] virtual bool DateRangeChosen(DateRange& range) const = 0;

    // The File Type combo: its selected index, and the selected entry's extensions (".htm.html"), whatever
    // the index.
    [[nodiscard]] virtual int TypeIndex() const = 0;
    virtual void TypeExtensions(wchar_t (&text)[MAX_PATH]) const = 0;

    // The File Size combo and its spin, through SizeBoundOf.
    [[nodiscard]] virtual SizeAnswer SizeBound(std::uint32_t& bound) const = 0;

    // The state word of the menu item "Check Upper/Lower Cases".
    [[nodiscard]] virtual std::uint32_t CaseOptionState() const = 0;
};
