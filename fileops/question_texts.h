#pragma once

// What the questions say. Each routine takes the dialog's window and its argument (QuestionRoutine), sets the
// title and fills icon and texts.

#include "platform/system_types.h"

// The argument of FillFileReplaceText; either path may be null.
struct ReplacePaths {
    const wchar_t* newFile;
    const wchar_t* existingFile;
};

// Argument: the folder's path.
void FillFolderDeleteText(HWND dialog, const void* folderPath);
// Argument: the file's path.
void FillFileDeleteText(HWND dialog, const void* filePath);
// Argument: a ReplacePaths.
void FillFileReplaceText(HWND dialog, const void* replacePaths);
// Argument: the existing folder's path.
void FillFolderReplaceText(HWND dialog, const void* folderPath);
