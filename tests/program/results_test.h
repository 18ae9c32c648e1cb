#pragma once

// The fixture of the tests that work with rows: each has a folder of its own on the device. Files of three
// kinds made for these tests are opened by a recorder, which writes down how it was started.

#include "tests/program/program_dialogs.h"
#include "tests/program/program_test.h"

constexpr int NameColumn = 0;
constexpr int FolderColumn = 1;
constexpr int SizeColumn = 2;
constexpr int TypeColumn = 3;
constexpr int ModifiedColumn = 4;

// ".qsa" is an "Alpha kind", ".qsb" a "beta kind" and ".qsc" a "Gamma kind", all opened by the recorder.
void RegisterKinds();
void ForgetKinds();
// The program that records how it was started.
[[nodiscard]] std::wstring RecorderPath();

class ResultsTest : public ProgramTest {
  public:
    // The kinds are registered before the program starts: ".qsa" is an "Alpha kind", ".qsb" a "beta kind" and
    // ".qsc" a "Gamma kind".
    static void SetUpTestSuite();
    static void TearDownTestSuite();

  protected:
    ResultsTest();
    void SetUp() override;
    void TearDown() override;

    // The test's folder as the program sees it ("\results 1"), and a path in it.
    [[nodiscard]] const std::wstring& Folder() const { return folder_; }
    [[nodiscard]] std::wstring Path(const std::wstring& name) const { return folder_ + L"\\" + name; }
    // The same with the device's drive.
    [[nodiscard]] std::wstring Real(const std::wstring& name) const { return Drive().Letter() + Path(name); }

    void AddFile(const std::wstring& name, const std::string& bytes = "text") const;
    // A program that records how it was started.
    void AddProgram(const std::wstring& name) const;
    // A text shortcut to this command line.
    void AddShortcut(const std::wstring& name, const std::wstring& target) const;
    [[nodiscard]] bool Stands(const std::wstring& name) const;
    [[nodiscard]] std::string ContentOf(const std::wstring& name) const;

    // Finds what the pattern matches in the test's folder; the list has the focus then.
    Names Find(const std::wstring& pattern = L"", bool subFolders = false);
    [[nodiscard]] RowState Row(const std::wstring& name);
    void SelectRow(const std::wstring& name);
    [[nodiscard]] POINT PlaceOf(const std::wstring& name);
    // A real click on a heading, which is scrolled onto the screen first.
    void ClickHeading(int column);
    // Opens the menu File with the keyboard and takes its item, counted from 1 without separators.
    void TakeFileMenuItem(int number);

    // True once a row's name is being edited.
    [[nodiscard]] bool NameIsEdited();
    // Runs a command that opens a dialog and waits for it.
    ProgramDialog Opened(UINT command);
    [[nodiscard]] ProgramDialog Dialog() { return WaitForDialog(Program().Window()); }
    [[nodiscard]] bool NoDialogOpen() { return !OpenDialogOf(Program().Window()).has_value(); }

    // The arguments of what was started since the test began, as one text each, without the program; waits
    // until there are as many.
    Names Started(std::size_t count);
    // True when nothing was started although there was time for it.
    bool NothingStarted();

  private:
    [[nodiscard]] Names StartedSoFar() const;

    std::wstring folder_;
};

[[nodiscard]] POINT CentreOf(const RECT& rectangle);
