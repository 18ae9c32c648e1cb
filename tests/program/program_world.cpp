#include "tests/program/program_world.h"

namespace {

constexpr wchar_t VendorKey[] = L"Software\\QuorinSoft";

std::wstring Variable(const wchar_t* name) {
    wchar_t value[64] = L"";
    GetEnvironmentVariableW(name, value, 64);
    return value;
}

ProgramWorld ReadWorld() {
    ProgramWorld world;
    world.japaneseSystem = Variable(L"QUORIN_WORLD_LANGUAGE") == L"ja";
    world.languageOverride = Variable(L"QUORIN_WORLD_OVERRIDE") == L"1";
    if (Variable(L"QUORIN_WORLD_SCREEN") == L"640x240") {
        world.screenWidth = 640;
        world.screenHeight = 240;
    }
    return world;
}

}  // namespace

const ProgramWorld& World() {
    static const ProgramWorld world = ReadWorld();
    return world;
}

std::wstring Shown(const wchar_t* english, const wchar_t* japanese) {
    return World().ShowsJapanese() ? japanese : english;
}

void PrepareRegistry() {
    RegDeleteTreeW(HKEY_CURRENT_USER, VendorKey);
    if (!World().languageOverride) return;
    const DWORD change = 1;
    RegSetKeyValueW(HKEY_CURRENT_USER, VendorKey, L"Change language", REG_DWORD, &change, sizeof(change));
}

int MinutesAheadOfUtc() {
    FILETIME utc = {0, 0x01C00000};
    FILETIME local;
    FileTimeToLocalFileTime(&utc, &local);
    ULARGE_INTEGER from, to;
    from.LowPart = utc.dwLowDateTime;
    from.HighPart = utc.dwHighDateTime;
    to.LowPart = local.dwLowDateTime;
    to.HighPart = local.dwHighDateTime;
    return static_cast<int>(static_cast<long long>(to.QuadPart - from.QuadPart) / 600000000LL);
}
