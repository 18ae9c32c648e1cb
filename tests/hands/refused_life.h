#pragma once

// A life of the program, from its start to its end, in which the system refuses calls: each step does what a
// person does with the program, and answers whatever it asks or says meanwhile.

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/hands/refusing_program.h"
#include "tests/program/device_drive.h"
#include "tests/program/device_tree.h"

enum class LifeStep : LONG {
    Start = 1,
    Search,
    Sort,
    View,
    FailedRename,  // to a name that is taken
    Rename,
    Delete,
    Properties,
    Shortcut,
    StartMenu,
    Browse,
    About,
    Uninstall,
    Close,
};
constexpr LONG LifeStepCount = static_cast<LONG>(LifeStep::Close);
[[nodiscard]] const char* NameOf(LifeStep step);

// What is refused in a step: once, or from then on to the end of the life.
struct StepRefusal {
    LONG call = 0;
    LONG place = 0;
    DWORD code = 0;
    bool fromThenOn = false;
};

using LifeSteps = std::vector<LifeStep>;

struct LifePlan {
    LifeSteps steps;
    std::map<LifeStep, StepRefusal> refusals;
};

// What came of a step.
struct StepReport {
    bool isReached = false;  // there was something to do it with
    LONG timesRefused = 0;
    std::vector<std::wstring> errors;  // what the program said in its boxes of errors
    std::vector<std::wstring> fatals;  // what it said in those about windows that cannot be made
    bool askedToDelete = false;        // and was told to
    bool isRenamed = false;            // a new name was typed and taken with Enter
    bool isSheetTaken = false;         // the sheet was closed by its OK
    bool isAborted = false;            // a search had to be ended by its button
};

struct LifeReport {
    std::map<LifeStep, StepReport> steps;
    DWORD exitCode = 0;
    bool hadWindow = false;
    bool hadNamePage = false;
    LRESULT subFolders = 0;          // the box's state before the end
    std::vector<std::wstring> rows;  // the names in the list before the end

    [[nodiscard]] const StepReport& At(LifeStep step) const;
};

// A file by its path from the root.
struct KeptFile {
    std::string content;
    DWORD attributes = 0;
    bool operator==(const KeptFile&) const = default;
};
using KeptFiles = std::map<std::wstring, KeptFile>;

class RefusedLife {
  public:
    static constexpr wchar_t ToRename[] = L"alpha.txt";
    static constexpr wchar_t NewName[] = L"renamed.txt";
    static constexpr wchar_t ToDelete[] = L"beta.txt";
    static constexpr wchar_t ToChange[] = L"delta.txt";
    static constexpr wchar_t Shortcut[] = L"link.lnk";

    RefusedLife();

    // Throws DriverError where the program hangs. The steps after its end are left out.
    LifeReport Run(const LifePlan& plan);
    // Where each step makes which calls, in all lives so far.
    [[nodiscard]] std::vector<probe::CallPlace> CallsNoted() const { return program_.CallsNoted(); }

    [[nodiscard]] KeptFiles Files() const;
    // As they stand at the start of each life.
    [[nodiscard]] KeptFiles FilesAtStart() const;

  private:
    void RestoreFiles();
    void Do(LifeStep step);
    void Begin();
    bool Act(LifeStep step);
    void ActOnView();
    bool ActOnRow(const std::wstring& name, UINT command);
    bool Search();
    bool Sort();
    bool Browse();

    void Serve();
    bool IsServed();
    void AnswerDialog(HWND dialog);
    void AnswerFirst(HWND dialog);
    bool AnswerBox(HWND dialog);
    void TakeSheet(HWND sheet);
    bool EndsEdit();
    static bool ClosesMenu();
    void Post(UINT command) const;

    DeviceTree tree_;
    DeviceDrive drive_;
    RefusingProgram program_;
    LifeReport report_;
    LifeStep step_ = LifeStep::Start;
    StepReport* now_ = nullptr;
    std::map<HWND, ULONGLONG> answered_;
    std::optional<StepRefusal> lasting_;
};
