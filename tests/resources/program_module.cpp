#include "tests/resources/program_module.h"

#include <cstdio>
#include <cstdlib>

namespace {

HMODULE LoadProgram() {
    const HMODULE module = LoadLibraryExW(ProgramPath().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (module == nullptr) {
        std::fprintf(stderr, "%ls cannot be read\n", ProgramPath().c_str());
        std::exit(1);
    }
    return module;
}

}  // namespace

std::wstring ProgramPath() {
    wchar_t self[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    std::wstring path(self);
#ifdef QUORIN_READS_THE_PROGRAM
    for (int level = 0; level < 2; ++level)
        path.resize(path.find_last_of(L'\\'));
    path += L"\\quorinsearch.exe";
#endif
    return path;
}

HMODULE ProgramModule() {
    static const HMODULE module = LoadProgram();
    return module;
}

std::vector<unsigned char> ResourceBytes(const wchar_t* name, const wchar_t* type) {
    const HRSRC found = FindResourceW(ProgramModule(), name, type);
    if (found == nullptr) return {};
    const HGLOBAL loaded = LoadResource(ProgramModule(), found);
    const auto* bytes = static_cast<const unsigned char*>(LockResource(loaded));
    if (bytes == nullptr) return {};
    return {bytes, bytes + SizeofResource(ProgramModule(), found)};
}
