#include "tests/support/probe/refused_calls.h"

#include <malloc.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "tests/support/probe/imported_calls.h"
#include "tests/support/probe/refusable_calls.h"

namespace probe {
namespace {

Refusals* refusals = nullptr;
bool begun = false;

constexpr LONG MemoryCall = RefusableCallNamed("malloc");
constexpr LONG WindowCall = RefusableCallNamed(AnyWindow);

// A system without memory has again what the program gives back.
LONGLONG memoryGivenBack = 0;

void GiveMemoryBack(void* memory) {
    if (memory != nullptr) memoryGivenBack += static_cast<LONGLONG>(_msize(memory));
    std::free(memory);
}

bool HasMemoryFor(ULONGLONG size) {
    if (memoryGivenBack < static_cast<LONGLONG>(size)) return false;
    memoryGivenBack -= static_cast<LONGLONG>(size);
    return true;
}

// What the routine answers that stands in for a call.
LONGLONG answer = 0;

void Note(LONG call, LONG place) {
    CallPlaces& known = refusals->callPlaces;
    const LONG step = known.step;
    if (step == 0) return;
    for (LONG i = 0; i < known.count; ++i) {
        const CallPlace& other = known.places[i];
        if (other.call == call && other.place == place && other.step == step) return;
    }
    known.isFull = known.count == MostCallPlaces;
    if (!known.isFull) known.places[known.count++] = {call, place, step};
}

// As the system fails: with a code that is answered, or with one that is asked for afterwards.
void Fail(const RefusableCall& description, DWORD code) {
    const bool answersCode = description.way == RefusableCall::AnswersCode;
    answer = answersCode ? static_cast<LONGLONG>(code) : description.answer;
    if (!answersCode) SetLastError(code);
}

bool Refuses(LONG call, LONG place, ULONGLONG size) {
    if (!begun) return false;
    Note(call, place);
    RefusedCall& refused = refusals->refusedCall;
    if (refused.most == 0) memoryGivenBack = 0;
    if (refused.times >= refused.most || refused.call != call) return false;
    if (refused.place != 0 && refused.place != place) return false;
    const bool fromThenOn = refused.most > 1;
    if (call == MemoryCall && fromThenOn && HasMemoryFor(size)) return false;
    InterlockedIncrement(&refused.times);
    Fail(RefusableCalls[call], refused.code);
    return true;
}

// A routine of the machine's own words: keeps the arguments, asks Decide, and goes on to the call or answers
// in its place. One for each call.
struct Detour {
    LONG call = 0;
    const void* routine = nullptr;  // the call
    BYTE* code = nullptr;
};
Detour detours[RefusableCallCount];

// `arguments` are the first four. Only what is asked for may change the last error.
bool Decide(const Detour* detour, const BYTE* returnAddress, const ULONGLONG* arguments) {
    const auto* const program = reinterpret_cast<const BYTE*>(GetModuleHandleW(nullptr));
    return Refuses(detour->call, static_cast<LONG>(returnAddress - program), arguments[0]);
}

class CodeWriter {
  public:
    explicit CodeWriter(BYTE* place) : place_(place) {}

    template <std::size_t Size>
    void Bytes(const BYTE (&bytes)[Size]) {
        std::memcpy(place_, bytes, Size);
        place_ += Size;
    }
    void Address(const void* address) {
        std::memcpy(place_, &address, sizeof address);
        place_ += sizeof address;
    }

  private:
    BYTE* place_;
};

constexpr std::size_t DetourSize = 192;

void WriteDetour(const Detour& detour) {
    CodeWriter code(detour.code);
    code.Bytes({0x48, 0x81, 0xEC, 0x88, 0x00, 0x00, 0x00});  // sub rsp, 0x88
    code.Bytes({0x48, 0x89, 0x4C, 0x24, 0x20});              // mov [rsp+0x20], rcx
    code.Bytes({0x48, 0x89, 0x54, 0x24, 0x28});              // mov [rsp+0x28], rdx
    code.Bytes({0x4C, 0x89, 0x44, 0x24, 0x30});              // mov [rsp+0x30], r8
    code.Bytes({0x4C, 0x89, 0x4C, 0x24, 0x38});              // mov [rsp+0x38], r9
    code.Bytes({0x48, 0xB9});                                // mov rcx, detour
    code.Address(&detour);
    code.Bytes({0x48, 0x8B, 0x94, 0x24, 0x88, 0x00, 0x00, 0x00});  // mov rdx, [rsp+0x88]
    code.Bytes({0x4C, 0x8D, 0x44, 0x24, 0x20});                    // lea r8, [rsp+0x20]
    code.Bytes({0x48, 0xB8});                                      // mov rax, Decide
    code.Address(reinterpret_cast<const void*>(&Decide));
    code.Bytes({0xFF, 0xD0});                                // call rax
    code.Bytes({0x48, 0x8B, 0x4C, 0x24, 0x20});              // mov rcx, [rsp+0x20]
    code.Bytes({0x48, 0x8B, 0x54, 0x24, 0x28});              // mov rdx, [rsp+0x28]
    code.Bytes({0x4C, 0x8B, 0x44, 0x24, 0x30});              // mov r8, [rsp+0x30]
    code.Bytes({0x4C, 0x8B, 0x4C, 0x24, 0x38});              // mov r9, [rsp+0x38]
    code.Bytes({0x48, 0x81, 0xC4, 0x88, 0x00, 0x00, 0x00});  // add rsp, 0x88
    code.Bytes({0x84, 0xC0});                                // test al, al
    code.Bytes({0x48, 0xB8});                                // mov rax, &detour.routine
    code.Address(&detour.routine);
    code.Bytes({0x75, 0x02});  // jnz over the next two bytes
    code.Bytes({0xFF, 0x20});  // jmp [rax]
    code.Bytes({0x48, 0xB8});  // mov rax, &answer
    code.Address(&answer);
    code.Bytes({0x48, 0x8B, 0x00});  // mov rax, [rax]
    code.Bytes({0xC3});              // ret
}

void Install(Detour& detour) {
    ULONGLONG* const address = FindImportedCall(RefusableCalls[detour.call].name);
    if (address == nullptr) return;
    detour.routine = reinterpret_cast<const void*>(*address);
    PutCall(*address, detour.code);
}

// The calls of a library that is loaded late are looked up by their names.
FARPROC WINAPI FindRoutine(HMODULE library, const char* name) {
    const FARPROC routine = GetProcAddress(library, name);
    if (routine == nullptr || IS_INTRESOURCE(name)) return routine;
    const LONG call = RefusableCallNamed(name);
    if (call == RefusableCallCount || FindImportedCall(name) != nullptr) return routine;
    detours[call].routine = reinterpret_cast<const void*>(routine);
    return reinterpret_cast<FARPROC>(detours[call].code);
}

}  // namespace

void PrepareRefusedCalls(Refusals& shared) {
    refusals = &shared;
    auto* code = static_cast<BYTE*>(VirtualAlloc(nullptr, RefusableCallCount * DetourSize,
                                                 MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE));
    if (code == nullptr) return;
    ReplaceImportedCall("free", reinterpret_cast<void*>(&GiveMemoryBack));
    ReplaceImportedCall("GetProcAddress", reinterpret_cast<void*>(&FindRoutine));
    for (LONG call = 0; call < RefusableCallCount; ++call, code += DetourSize) {
        detours[call] = {call, nullptr, code};
        WriteDetour(detours[call]);
        Install(detours[call]);
    }
}

void BeginRefusingCalls() {
    begun = true;
}

bool AreCallsRefused() {
    return begun;
}

bool RefusesWindow() {
    return refusals != nullptr && Refuses(WindowCall, 0, 0);
}

}  // namespace probe
