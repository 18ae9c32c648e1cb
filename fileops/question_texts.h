#pragma once

// The questions that the program asks, and what they say.

#include "fileops/question.h"

// Either path may be null.
struct ReplacePaths {
    const wchar_t* newFile;
    const wchar_t* existingFile;
};

// The buttons of a question about a file. One file of many also offers Yes to All and Cancel.
enum class Answers { YesNo, YesAllNoCancel };

// The arguments must stay valid until the question is answered.
[[nodiscard]] Question DeleteFileQuestion(const wchar_t* path, Answers answers);
[[nodiscard]] Question DeleteFolderQuestion(const wchar_t* path);
[[nodiscard]] Question ReplaceFileQuestion(const ReplacePaths& paths, Answers answers);
// About the existing folder.
[[nodiscard]] Question ReplaceFolderQuestion(const wchar_t* path);

// The routines of these questions. Each sets the title, the icon and the texts.
void FillFileDeleteText(HWND dialog, const wchar_t* filePath);
void FillFolderDeleteText(HWND dialog, const wchar_t* folderPath);
void FillFileReplaceText(HWND dialog, const ReplacePaths* paths);
void FillFolderReplaceText(HWND dialog, const wchar_t* folderPath);
