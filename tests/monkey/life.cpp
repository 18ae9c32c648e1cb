#include "tests/monkey/life.h"

#include <algorithm>

#include "resources/resource_ids.h"
#include "tests/monkey/other_programs.h"
#include "tests/program/program_test.h"
#include "tests/program/registry_reading.h"
#include "tests/support/process_figures.h"
#include "tests/support/utf8.h"

namespace {

// A third of the lives lose windows.
constexpr int WildLives = 33;
constexpr int FewestSteps = 30, MostSteps = 130;
constexpr DWORD AnswerDeadline = 60000;
constexpr DWORD LongestEnd = 5000;
constexpr DWORD BetweenSteps = 10;
// A history that was saved has at most so many texts.
constexpr std::size_t LongestHistory = 10;

std::string Joined(const std::vector<std::wstring>& texts) {
    std::string joined;
    for (const std::wstring& text : texts)
        joined += (joined.empty() ? "'" : ", '") + Utf8(text) + "'";
    return joined.empty() ? "nothing" : joined;
}

}  // namespace

Life::Life(std::uint64_t seed, int number, Device& device, SharedJournal& journal, Figures& figures)
    : seed_(seed),
      number_(number),
      random_(seed, static_cast<std::uint64_t>(number), 0),
      wild_(random_.Chance(WildLives)),
      device_(device),
      journal_(journal),
      figures_(figures),
      hands_(program_, device, journal, figures) {}

std::vector<std::string> Life::Run() {
    ++figures_.lives;
    device_.Fill(random_);
    before_ = device_.Entries();
    journal_.Empty();
    PrepareSettings();
    const OtherPrograms others;
    try {
        Start();
        UseProgram();
    } catch (const std::exception& error) {
        Complain(error.what());
    }
    hands_.RestoreScreen();
    program_.Kill();
    others.EndNewOnes();
    CheckFiles();
    if (!complaints_.empty()) {
        const std::wstring fault = LastFault();
        if (!fault.empty()) Complain("the last fault: " + Utf8(fault));
    }
    return complaints_;
}

// As after some other lives, or on the first day.
void Life::PrepareSettings() {
    RegDeleteTreeW(HKEY_CURRENT_USER, MakerKey);
    const DWORD change = random_.Chance(25) ? 1 : 0;
    if (change != 0) Store(MakerKey, L"Change language", REG_DWORD, &change, sizeof change);
    if (random_.Chance(30)) return;
    for (const wchar_t* key : {NameKey, LocationKey}) {
        const int count = random_.Between(0, 12);
        for (int number = 0; number < count; ++number)
            StoreText(key, std::to_wstring(number), RandomWord(random_).substr(0, 300));
    }
    const DWORD sub = static_cast<DWORD>(random_.Between(0, 5));
    Store(ProductKey, L"Sub Folder", REG_DWORD, &sub, sizeof sub);
}

void Life::Start() {
    ++figures_.starts;
    ProgramStart start;
    start.path = ProgramPath();
    start.workingFolder = device_.Root();
    start.probePath = ProbePath();
    program_.Start(start);
    GetWindowThreadProcessId(program_.Window(), &processId_);
    hands_.LookAt(processId_);
    handlesAtStart_ = HandlesOf(processId_);
}

void Life::UseProgram() {
    const int steps = random_.Between(FewestSteps, MostSteps);
    for (int step = 1; step <= steps; ++step) {
        if (!TakeStep(step)) return EndWithinLife();
    }
    if (!hands_.Rest()) return Complain("the program does not come to rest: " + hands_.Scene());
    if (!program_.IsRunning()) return EndWithinLife();
    FinishLife();
}

bool Life::TakeStep(int step) {
    Random random(seed_, static_cast<std::uint64_t>(number_), static_cast<std::uint64_t>(step));
    try {
        hands_.Step(random, wild_);
    } catch (const DriverError& error) {
        // What is gone, or just going, cannot be asked.
        if (!wild_ && !HoldsWithin(LongestEnd, [this] { return !program_.IsRunning(); })) throw;
    }
    RequireAnswer();
    Sleep(BetweenSteps);
    return program_.IsRunning();
}

// In a hang nobody takes messages.
void Life::RequireAnswer() {
    const bool answers = HoldsWithin(AnswerDeadline, [this] {
        DWORD_PTR answer = 0;
        return !program_.IsRunning() || !IsWindow(program_.Window()) ||
               SendMessageTimeoutW(program_.Window(), WM_NULL, 0, 0, SMTO_NORMAL, AnswerDeadline, &answer) !=
                   0;
    });
    if (!answers) throw DriverError("the program hangs");
    if (IsWindow(program_.Window())) return;
    if (!HoldsWithin(AnswerDeadline, [this] { return !program_.IsRunning(); }))
        throw DriverError("the program has no window and does not end");
}

// Whether it was asked to end is the account's to say.
void Life::EndWithinLife() {
    ++figures_.ends;
    const DWORD code = program_.WaitForEnd();
    if (code != 0) Complain("the program ended with code " + std::to_string(code));
    const bool asked = journal_.Has(L"close") || journal_.Has(L"exit") || journal_.Has(L"own-end");
    if (!asked) Complain("the program ended, and nobody asked it to");
    CheckStoredTexts(NameKey);
    CheckStoredTexts(LocationKey);
}

void Life::FinishLife() {
    if (!wild_) {
        LookForLeftWindows();
        CompareSearch();
        LookForLeaks();
    }
    std::optional<Settings> shown;
    if (!wild_) shown = ShownSettings();
    const bool uninstalled = journal_.Has(L"uninstall");
    journal_.Note({L"own-end"});
    const DWORD code = program_.Close();
    if (code != 0) Complain("the program ended with code " + std::to_string(code));
    CheckStoredTexts(NameKey);
    CheckStoredTexts(LocationKey);
    if (!shown || uninstalled) return;
    CheckStoredSettings(*shown);
    if (random_.Chance(50)) CheckNextStart();
}

void Life::LookForLeftWindows() {
    if (!hands_.OpenDialogs().empty()) Complain("a window was left behind: " + hands_.Scene());
}

// Libraries that come with the first document opened, the first shortcut or the first sheet keep theirs.
void Life::LookForLeaks() {
    constexpr int HandlesOfLibraries = 150;
    const int more = HandlesOf(processId_) - handlesAtStart_;
    figures_.mostHandlesMore = std::max(figures_.mostHandlesMore, more);
    if (more > HandlesOfLibraries) Complain("the process has " + std::to_string(more) + " handles more");
}

PlainConditions Life::ShownConditions() {
    PlainConditions conditions;
    conditions.name = program_.Control(NamePage, COMBO_NAME).text;
    conditions.contains = program_.Control(NamePage, EDIT_CONTENT).text;
    conditions.location = program_.Control(NamePage, COMBO_LOCATION).text;
    conditions.subFolders = program_.Control(NamePage, CHECK_SUBFOLDERS).checked != 0;
    conditions.matchCase = program_.MenuItem(COMMAND_CHECK_CASE).Checked();
    return conditions;
}

// What the hands left there counts as far as the plain search can tell what it means.
void Life::MakeConditionsPlain() {
    program_.Click(DatePage, RADIO_ALL_FILES);
    program_.SelectEntry(SizePage, COMBO_FILE_TYPE, 0);
    program_.SelectEntry(SizePage, COMBO_FILE_SIZE, 0);
    if (IsPlain(ShownConditions())) return;
    const std::wstring names[] = {L"", L"*", L"a", L"no", L"*.qs?"};
    NameConditions conditions;
    conditions.name = random_.Of(names);
    conditions.contains = random_.Chance(30) ? L"abc" : L"";
    conditions.location = random_.Of(Device::Folders());
    program_.Fill(conditions);
}

void Life::CompareSearch() {
    MakeConditionsPlain();
    const PlainConditions conditions = ShownConditions();
    program_.Find();
    std::vector<std::wstring> found;
    for (const std::wstring& path : program_.RowPaths())
        found.push_back(device_.Canonical(path).value_or(path));
    std::sort(found.begin(), found.end());
    const DeviceEntries entries = device_.Entries();
    std::vector<std::wstring> expected = PlainSearch(entries, conditions);
    if (!conditions.contains.empty()) {
        const auto isObscure = [&](const std::wstring& path) {
            const auto entry = entries.find(path);
            return entry != entries.end() && !IsPlainContent(entry->second);
        };
        std::erase_if(found, isObscure);
        std::erase_if(expected, isObscure);
    }
    ++figures_.comparedSearches;
    if (found == expected) return;
    Complain("a search for '" + Utf8(conditions.name) + "' containing '" + Utf8(conditions.contains) +
             "' in '" + Utf8(conditions.location) + "'" + (conditions.subFolders ? " and below" : "") +
             " found " + std::to_string(found.size()) + " rows, a plain one " +
             std::to_string(expected.size()));
}

Life::Settings Life::ShownSettings() {
    Settings settings;
    settings.names = program_.Combo(NamePage, COMBO_NAME).entries;
    settings.locations = program_.Combo(NamePage, COMBO_LOCATION).entries;
    settings.subFolders = program_.Control(NamePage, CHECK_SUBFOLDERS).checked != 0;
    return settings;
}

// Readable by any program: texts that end, none longer than a field takes.
void Life::CheckStoredTexts(const wchar_t* key) {
    for (const auto& [name, value] : ValuesOf(key)) {
        const std::size_t units = value.data.size() / sizeof(wchar_t);
        const auto* text = reinterpret_cast<const wchar_t*>(value.data.data());
        if (value.type != REG_SZ || value.data.size() % sizeof(wchar_t) != 0 || units == 0 || units > 301 ||
            text[units - 1] != L'\0')
            Complain("a value of the history is none: " + Utf8(name));
    }
}

// The oldest text has the number 0. Values behind the last one are left over from an earlier list.
void Life::CheckStoredSettings(const Settings& shown) {
    const auto compare = [this](const wchar_t* key, Texts texts) {
        if (texts.size() > LongestHistory) Complain("a history is too long: " + Joined(texts));
        std::reverse(texts.begin(), texts.end());
        auto values = ValuesOf(key);
        for (std::size_t number = 0; number < texts.size(); ++number) {
            if (values[std::to_wstring(number)] != StoredText(texts[number]))
                Complain("a history is stored otherwise than shown: " + Joined(texts));
        }
    };
    compare(NameKey, shown.names);
    compare(LocationKey, shown.locations);
    if (ValuesOf(ProductKey)[L"Sub Folder"] != StoredDword(shown.subFolders ? 1 : 0))
        Complain("the sub-folder setting is stored otherwise than shown");
}

// What is stored is shown again, through the rule of the history: a text replaces the one that begins with
// it. The newest text is therefore in its place whatever the others are.
void Life::CheckNextStart() {
    constexpr std::size_t TextsRead = 9;
    constexpr std::size_t LongestRead = 260;
    Start();
    const Settings shown = ShownSettings();
    const auto compare = [this](const wchar_t* key, const Texts& texts) {
        auto values = ValuesOf(key);
        std::size_t count = 0;
        // Reading ends at a text that fits no field.
        const auto isRead = [&](const std::wstring& name) {
            return values.contains(name) && values[name].data.size() <= LongestRead * sizeof(wchar_t);
        };
        while (count < TextsRead && isRead(std::to_wstring(count)))
            ++count;
        if (count == 0) return;
        const StoredValue newest = values[std::to_wstring(count - 1)];
        if (texts.empty() || StoredText(texts[0]) != newest)
            Complain("the next start shows another history than was stored: " + Joined(texts));
    };
    compare(NameKey, shown.names);
    compare(LocationKey, shown.locations);
    journal_.Note({L"own-end"});
    const DWORD code = program_.Close();
    if (code != 0) Complain("the next start ended with code " + std::to_string(code));
}

void Life::CheckFiles() {
    try {
        const std::vector<JournalEntry> entries = journal_.Entries();
        for (const JournalEntry& entry : entries) {
            if (entry[0] == L"delete" && entry[2] == L"1") ++figures_.deleted;
            if (entry[0] == L"move" && entry[3] == L"1") ++figures_.renamed;
            if (entry[0] == L"fault") ++figures_.faults;
            if (entry[0] == L"search") ++figures_.searches;
        }
        FileAccount account(device_, before_);
        for (const std::string& complaint : account.Settle(entries, device_.Entries()))
            Complain(complaint);
    } catch (const std::exception& error) {
        Complain(error.what());
    }
}

std::wstring Life::LastFault() {
    std::wstring fault;
    for (const JournalEntry& entry : journal_.Entries()) {
        if (entry[0] == L"fault") fault = entry[1];
    }
    return fault;
}

void Life::Complain(const std::string& text) {
    complaints_.push_back(text);
}
