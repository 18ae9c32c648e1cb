#pragma once

// What the program was asked for and what it did to files, in the order in which it happened. A test and the
// library that works inside the program's process share a section, whose name the program inherits in its
// environment; the test writes its own changes of files into it as well. Whoever writes holds the mutex for
// as long as the change takes, so that the order of the entries is the order of the changes.

#include <windows.h>

#include <initializer_list>
#include <string_view>

namespace probe {

constexpr wchar_t JournalVariable[] = L"QUORIN_TEST_JOURNAL";
constexpr wchar_t JournalMutexSuffix[] = L"-turn";

constexpr LONG JournalCapacity = 1 << 20;

// Entries are records as in probe_protocol.h; the first field says what happened:
//   dialog KIND ROW    a dialog was opened over the row with this path: question, general, shortcut
//   yes TEXT           the question with this text, "?" for one that is gone, was answered so
//   begin-edit ROW     the editing of the row's name
//   end-edit TEXT      ended with this text
//   end-edit-unchanged TEXT  ended without one: the name is as it was, empty, or was given up
//   apply              a properties sheet's page was to save what it shows
//   search             the command
//   start-menu ROW     the command
//   exit, uninstall    the program was asked to end
//   close              and its main window to close
//   delete PATH DONE, move FROM TO DONE, attributes PATH VALUE DONE, other NAME PATH DONE
//                      calls of the program, done or refused
//   fault TEXT         an exception and where
struct Journal {
    DWORD ownerId;  // the test's process, to which the library comes as well
    LONG length;    // units written
    LONG isFull;    // an entry did not fit
    wchar_t text[JournalCapacity];
};

// The caller holds the mutex.
void AppendTo(Journal& journal, std::initializer_list<std::wstring_view> fields);

// To be called when the library comes into the process, before the program's first instruction. Does nothing
// where the environment names no section.
void PrepareJournal();

// To be called for every message that the thread takes from its queue, and for every message sent to one of
// its windows.
void NoteMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace probe
