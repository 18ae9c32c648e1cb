#include "tests/program/results_test.h"

#include <windows.h>

#include <commctrl.h>

#include <fstream>
#include <sstream>

#include "tests/support/user_input.h"

namespace {

struct Kind {
    const wchar_t* extension;
    const wchar_t* key;
    const wchar_t* name;
};
constexpr Kind Kinds[] = {{L".qsa", L"quorin.alpha", L"Alpha kind"},
                          {L".qsb", L"quorin.beta", L"beta kind"},
                          {L".qsc", L"quorin.gamma", L"Gamma kind"}};

constexpr DWORD TimeToStart = 1500;

int testsBegun = 0;

std::wstring LogPath() {
    wchar_t folder[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + L"quorin-started-" + std::to_wstring(GetCurrentProcessId()) + L".log";
}

std::string ReadWhole(const std::wstring& path) {
    std::ifstream stream(path.c_str(), std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return bytes.str();
}

std::wstring FromUtf8(const std::string& text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(
        CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

// What follows the program on a command line.
std::wstring ArgumentsOf(const std::wstring& line) {
    const bool quoted = !line.empty() && line[0] == L'"';
    std::size_t end = quoted ? line.find(L'"', 1) : line.find(L' ');
    if (end == std::wstring::npos) return {};
    if (quoted) ++end;
    const std::size_t start = line.find_first_not_of(L' ', end);
    return start != std::wstring::npos ? line.substr(start) : std::wstring();
}

HWND ListOf(HWND mainWindow) {
    return FindWindowExW(mainWindow, nullptr, WC_LISTVIEWW, nullptr);
}

void SetKey(const std::wstring& path, const std::wstring& value) {
    RegSetValueW(HKEY_CLASSES_ROOT, path.c_str(), REG_SZ, value.c_str(), 0);
}

}  // namespace

std::wstring RecorderPath() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring folder = path;
    folder.resize(folder.find_last_of(L'\\'));
    return folder + L"\\started_recorder.exe";
}

void RegisterKinds() {
    for (const Kind& kind : Kinds) {
        SetKey(kind.extension, kind.key);
        SetKey(kind.key, kind.name);
        SetKey(std::wstring(kind.key) + L"\\shell\\open\\command", L"\"" + RecorderPath() + L"\" \"%1\"");
    }
}

void ForgetKinds() {
    for (const Kind& kind : Kinds) {
        RegDeleteTreeW(HKEY_CLASSES_ROOT, kind.extension);
        RegDeleteTreeW(HKEY_CLASSES_ROOT, kind.key);
    }
}

POINT CentreOf(const RECT& rectangle) {
    return {(rectangle.left + rectangle.right) / 2, (rectangle.top + rectangle.bottom) / 2};
}

void ResultsTest::SetUpTestSuite() {
    RegisterKinds();
    // Inherited by the program and by what it starts.
    SetEnvironmentVariableW(L"QUORIN_STARTED_LOG", LogPath().c_str());
    ProgramTest::SetUpTestSuite();
}

void ResultsTest::TearDownTestSuite() {
    ProgramTest::TearDownTestSuite();
    ForgetKinds();
    DeleteFileW(LogPath().c_str());
}

ResultsTest::ResultsTest() : folder_(L"\\results " + std::to_wstring(++testsBegun)) {}

void ResultsTest::SetUp() {
    ProgramTest::SetUp();
    DeleteFileW(LogPath().c_str());
    Tree().AddFolder(folder_.substr(1));
    Program().BringForward();
}

// A dialog that a failed test left open would keep all that follow from working.
void ResultsTest::TearDown() {
    if (HasFailure()) Program().Kill();
}

void ResultsTest::AddFile(const std::wstring& name, const std::string& bytes) const {
    Tree().AddFile(Path(name).substr(1), bytes);
}

void ResultsTest::AddProgram(const std::wstring& name) const {
    ASSERT_TRUE(CopyFileW(RecorderPath().c_str(), (Tree().Root() + Path(name)).c_str(), TRUE));
}

void ResultsTest::AddShortcut(const std::wstring& name, const std::wstring& target) const {
    char bytes[1024] = "";
    const int size =
        WideCharToMultiByte(CP_ACP, 0, target.c_str(), -1, bytes, sizeof(bytes), nullptr, nullptr) - 1;
    AddFile(name, std::to_string(size) + "#" + bytes);
}

bool ResultsTest::Stands(const std::wstring& name) const {
    return GetFileAttributesW(Real(name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string ResultsTest::ContentOf(const std::wstring& name) const {
    return ReadWhole(Real(name));
}

Names ResultsTest::Find(const std::wstring& pattern, bool subFolders) {
    return NamesFoundBy(Named(pattern, folder_, subFolders));
}

RowState ResultsTest::Row(const std::wstring& name) {
    for (const RowState& row : Program().Rows()) {
        if (row.name == name) return row;
    }
    throw DriverError("no row has the name that was looked for");
}

void ResultsTest::SelectRow(const std::wstring& name) {
    const Names names = Program().RowNames();
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] == name) return Program().SelectRow(static_cast<int>(i));
    }
    throw DriverError("no row has the name that was to be selected");
}

POINT ResultsTest::PlaceOf(const std::wstring& name) {
    return CentreOf(Row(name).label);
}

void ResultsTest::ClickHeading(int column) {
    const auto place = [&] { return Program().Columns().at(static_cast<std::size_t>(column)).rectangle; };
    const RECT before = place();
    // A vertical scroll bar may cover what lies at the right edge.
    const LONG excess = before.right + GetSystemMetrics(SM_CXVSCROLL) - World().screenWidth;
    const LONG scroll = before.left < 0 ? before.left : excess > 0 ? excess : 0;
    if (scroll != 0) SendMessageW(ListOf(Program().Window()), LVM_SCROLL, static_cast<WPARAM>(scroll), 0);
    RECT heading = place();
    heading.left = heading.left < 0 ? 0 : heading.left;
    ClickAt(CentreOf(heading));
    Program().WaitForQueue();
}

void ResultsTest::TakeFileMenuItem(int number) {
    PressKey(VK_F10);
    WaitUntil("the menu to open", [] { return FindWindowW(L"#32768", nullptr) != nullptr; });
    // A menu opened by a key has its first item marked.
    for (int i = 1; i < number; ++i)
        PressKey(VK_DOWN);
    PressKey(VK_RETURN);
}

bool ResultsTest::NameIsEdited() {
    return HoldsWithin(StepDeadline, [] { return Program().FocusPath().rfind(L"edit:", 0) == 0; });
}

ProgramDialog ResultsTest::Opened(UINT command) {
    PostMessageW(Program().Window(), WM_COMMAND, command, 0);
    return Dialog();
}

Names ResultsTest::StartedSoFar() const {
    Names started;
    std::istringstream lines(ReadWhole(LogPath()));
    for (std::string line; std::getline(lines, line);)
        started.push_back(ArgumentsOf(FromUtf8(line)));
    return started;
}

Names ResultsTest::Started(std::size_t count) {
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return StartedSoFar().size() >= count; }))
        << "no more than " << StartedSoFar().size() << " programs were started";
    return StartedSoFar();
}

bool ResultsTest::NothingStarted() {
    return !HoldsWithin(TimeToStart, [&] { return !StartedSoFar().empty(); });
}
