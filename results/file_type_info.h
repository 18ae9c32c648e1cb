#pragma once

// One registered file type, as far as the registry tells of it.

#include <string>

struct FileTypeInfo {
    std::wstring typeKey;      // the type's key under the classes' root
    std::wstring description;  // the readable name
    std::wstring extensions;   // all of them, one after another, each with its dot (".txt.log")
    std::wstring openCommand;
    std::wstring iconFile;
    int iconNumber = 0;
};

// Reads what the registry says about an extension (with its dot). A key that cannot be opened ends the
// reading and leaves what was read so far; nothing at all is recorded for an extension without a key.
[[nodiscard]] FileTypeInfo ReadFileTypeInfo(const wchar_t* extension);

// Cuts "file,number" at the last comma into the file and the number; without a comma it is all file, number
// 0.
void SplitIconLocation(const std::wstring& location, FileTypeInfo& info);
