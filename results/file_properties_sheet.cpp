#include "results/file_properties_sheet.h"

#include "results/shortcut_target.h"

FilePropertiesSheet::FilePropertiesSheet(WindowObject* ownerObject, const wchar_t* captionText)
    : PropertySheetDialog(ownerObject, captionText),
      owner(ownerObject),
      generalPage(std::make_unique<GeneralPage>(ownerObject)) {
    AddPage(*generalPage);
}

void FilePropertiesSheet::SetPath(const wchar_t* path) {
    generalPage->SetPath(path);
    if (shortcutPage != nullptr) {
        RemovePage(ShortcutPageIndex);
        shortcutPage.reset();
    }
    if (!IsShortcut(path)) return;
    shortcutPage = std::make_unique<ShortcutPage>(owner);
    shortcutPage->SetPath(path);
    AddPage(*shortcutPage);
}

bool FilePropertiesSheet::HasChanged() const {
    return generalPage->HasChanged() || (shortcutPage != nullptr && shortcutPage->HasChanged());
}
