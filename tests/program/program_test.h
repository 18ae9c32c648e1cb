#pragma once

// The fixture of the whole-program tests. The program of a suite is started once and brought back to empty
// conditions before each test; a test that ends it, or needs another start, says so.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/program/device_drive.h"
#include "tests/program/device_tree.h"
#include "tests/program/program_world.h"
#include "tests/support/program_driver.h"

using Names = std::vector<std::wstring>;

// The program's file, beside the folder of the tests.
std::wstring ProgramPath();

class ProgramTest : public testing::Test {
  public:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

  protected:
    void SetUp() override;

    // Ends the program where it runs and starts it anew, as on its first day: nothing is remembered.
    void StartFresh(const std::wstring& arguments = L"", const std::wstring& path = ProgramPath());
    // Ends the program by closing it; what it saves stays in the registry.
    void CloseProgram();
    // Ends and starts it without touching the registry.
    void StartAgain(const std::wstring& arguments = L"", const std::wstring& path = ProgramPath());

    // Runs a search with these conditions on the name page and gives the names of the rows, in order.
    Names NamesFoundBy(const NameConditions& conditions);
    // The same as full paths.
    Names PathsFoundBy(const NameConditions& conditions);

    static ProgramDriver& Program() { return *program; }
    static const DeviceTree& Tree() { return *tree; }
    static const DeviceDrive& Drive() { return *drive; }

  private:
    void ClearConditions();

    static inline ProgramDriver* program = nullptr;
    static inline DeviceTree* tree = nullptr;
    static inline DeviceDrive* drive = nullptr;
};

// In alphabetical order of the units; for rows whose order is the file system's business.
Names Sorted(Names names);

// Conditions of the name page in one line.
NameConditions Where(const std::wstring& location, bool subFolders = false);
NameConditions Named(const std::wstring& name, const std::wstring& location, bool subFolders = false);
NameConditions Containing(const std::wstring& text, const std::wstring& location, bool subFolders = false);
