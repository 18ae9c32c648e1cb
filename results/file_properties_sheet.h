#pragma once

// The properties of one file: a General page, and a Shortcut page when it is a shortcut.

#include "results/general_page.h"
#include "results/shortcut_page.h"

class FilePropertiesSheet : public PropertySheetDialog {
  public:
    FilePropertiesSheet(WindowObject* owner, const wchar_t* caption);

    // The path belongs to the caller and must outlive the sheet.
    void SetPath(const wchar_t* path);

    [[nodiscard]] bool HasShortcutPage() const { return shortcutPage_ != nullptr; }
    // Whether any page has tried to change something.
    [[nodiscard]] bool HasChanged() const;

  private:
    static constexpr std::size_t ShortcutPageIndex = 1;

    WindowObject* owner_;
    std::unique_ptr<GeneralPage> generalPage_;
    std::unique_ptr<ShortcutPage> shortcutPage_;
};
