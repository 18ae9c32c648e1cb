#pragma once

// A folder of a test's own under the system's temporary folder, gone with everything in it when the test
// ends. Names are taken unit by unit, paths may be longer than MAX_PATH, and what cannot be made fails the
// test.

#include <string>
#include <string_view>
#include <vector>

#include "platform/system_types.h"

class TempTree {
  public:
    TempTree();
    TempTree(const TempTree&) = delete;
    TempTree& operator=(const TempTree&) = delete;
    ~TempTree();

    [[nodiscard]] const std::wstring& Root() const { return root_; }
    // The path of what stands at `relative`, with "\" between the names.
    [[nodiscard]] std::wstring Path(std::wstring_view relative) const;

    // Each makes the folders on the way and returns the path.
    std::wstring AddFolder(std::wstring_view relative);
    std::wstring AddFile(std::wstring_view relative, std::string_view bytes = {});

    // A link at `relative` to the folder `target`, itself relative to the root (L"" for the root). False
    // where the system makes no links.
    [[nodiscard]] bool AddFolderLink(std::wstring_view relative, std::wstring_view target);

    // The same for a link to a file.
    [[nodiscard]] bool AddFileLink(std::wstring_view relative, std::wstring_view target);

    // The files "file 0.txt", "file 1.txt", ... in the folder.
    void AddNumberedFiles(std::wstring_view folder, int count);

  private:
    bool AddHostLink(std::wstring_view relative, std::wstring_view target);

    std::wstring root_;
    // Relative: what the host made and has to delete.
    std::vector<std::wstring> hostMade_;
};

// The path in the form in which the system takes it unit by unit.
[[nodiscard]] std::wstring Literal(std::wstring_view path);
