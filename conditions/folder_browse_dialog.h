#pragma once

// Picks a folder from a tree of every folder of the device.

#include <memory>

#include "framework/dialog.h"
#include "platform/handles.h"

class FolderBrowseDialog : public Dialog {
  public:
    // The caption is not copied and must outlive the dialog.
    FolderBrowseDialog(WindowObject* parent, const wchar_t* caption);

    // The result of the last run: null unless it ended with OK and a folder selected. A null-terminated path
    // of at most 259 units that begins with "\" and does not end in one, unless it is the root itself.
    [[nodiscard]] const wchar_t* ChosenPath() const { return chosenPath_.get(); }

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override;

  private:
    LRESULT OnOk(EventArguments& arguments);
    LRESULT OnTreeSystemKey(MessageRecord& record);

    void WatchTreeKeys();
    void StretchTree();
    void CentreOnMainWindow();
    void LoadImages();
    void BuildTree();

    const wchar_t* caption_;
    std::unique_ptr<wchar_t[]> chosenPath_;
    HWND folderTree_ = nullptr;
    std::unique_ptr<WindowObject> treeKeys_;
    UniqueImageList folderImages_;
};
