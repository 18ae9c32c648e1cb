#include "tests/hands/refusal_words.h"

#include <algorithm>

#include "tests/program/program_test.h"

namespace {

struct BothTexts {
    const wchar_t* english;
    const wchar_t* japanese;
};

constexpr BothTexts InUse = {L"\\alpha.txt is in use", L"\\alpha.txt は使用中です"};
constexpr BothTexts DiskFull = {L"There is not enough space on the disk", L"ﾃﾞｨｽｸがいっぱいです"};
constexpr BothTexts AccessDenied = {L"Access denied", L"ﾌｧｲﾙにｱｸｾｽできません"};
constexpr BothTexts CannotRename = {L"Can't rename the file", L"名前の変更に失敗しました"};
constexpr BothTexts UninstallFails = {L"Uninstall fail!", L"ｱﾝｲﾝｽﾄｰﾙに失敗しました!"};

std::wstring Shown(const BothTexts& texts) {
    return ::Shown(texts.english, texts.japanese);
}

std::wstring Numbered(const wchar_t* text, DWORD code) {
    return text + std::to_wstring(code);
}

// The texts of the file actions and of the uninstall, as they are to be.
std::wstring MoveText(DWORD code) {
    if (code == ERROR_SHARING_VIOLATION) return Shown(InUse);
    if (code == ERROR_DISK_FULL) return Shown(DiskFull);
    return Numbered(L"Error Move file ", code);
}

std::wstring DeleteText(DWORD code) {
    if (code == ERROR_ACCESS_DENIED) return Shown(AccessDenied);
    return Numbered(L"Error DeleteFile ", code);
}

struct ToldCall {
    const char* name;
    LifeStep step;
};
// The calls whose failure the user is told of in these steps.
constexpr ToldCall ToldCalls[] = {{"MoveFileW", LifeStep::Rename},
                                  {"MoveFileW", LifeStep::FailedRename},
                                  {"DeleteFileW", LifeStep::Delete},
                                  {"SetFileAttributesW", LifeStep::Properties},
                                  {"RegDeleteTreeW", LifeStep::Uninstall}};

std::string Described(LifeStep step, const StepRefusal& refusal) {
    std::string text = std::string(CallOf(refusal).name) + ", code " + std::to_string(refusal.code) +
                       (refusal.fromThenOn ? ", from then on" : ", once");
    if (refusal.place != 0) text += ", at " + std::to_string(refusal.place);
    return text + ", in the step: " + NameOf(step);
}

}  // namespace

const probe::RefusableCall& CallOf(const StepRefusal& refusal) {
    return probe::RefusableCalls[refusal.call];
}

bool IsCall(const StepRefusal& refusal, std::initializer_list<const char*> names) {
    return std::ranges::any_of(
        names, [&](const char* name) { return refusal.call == probe::RefusableCallNamed(name); });
}

bool IsRefused(const LifePlan& plan, std::initializer_list<const char*> names) {
    return std::ranges::any_of(plan.refusals, [&](const auto& part) { return IsCall(part.second, names); });
}

bool IsTold(LifeStep step, const StepRefusal& refusal) {
    return std::ranges::any_of(
        ToldCalls, [&](const ToldCall& told) { return told.step == step && IsCall(refusal, {told.name}); });
}

std::vector<std::wstring> TextsOf(LifeStep step, const StepRefusal& refusal) {
    switch (step) {
        case LifeStep::FailedRename:
        case LifeStep::Rename:
            return {MoveText(refusal.code), Shown(CannotRename)};
        case LifeStep::Delete:
            return {DeleteText(refusal.code)};
        case LifeStep::Properties:
            return {Numbered(L"Error SetFileAttribute ", refusal.code)};
        case LifeStep::Uninstall:
            return {Shown(UninstallFails)};
        default:
            return {};
    }
}

std::wstring InEnglish(const std::wstring& text) {
    for (const BothTexts& texts : {CannotRename, DiskFull, AccessDenied, UninstallFails, InUse})
        if (text == texts.japanese) return texts.english;
    return text;
}

std::string Described(const LifePlan& plan) {
    std::string text;
    for (const auto& [step, refusal] : plan.refusals)
        text += "\n  " + Described(step, refusal);
    return text;
}
