#include <cstdio>
#include <cwchar>
#include <set>
#include <string>

#include "base/registry_key.h"
#include "bench/bench_list.h"
#include "bench/bench_search.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "tests/support/replaced_calls.h"

namespace {

// What was asked, by kind of question.
struct Questions {
    int typeNames = 0;
    int largeIcons = 0;
    int smallIcons = 0;
};
Questions asked;
decltype(ce::shellCalls.getFileInfo) shellItself;

DWORD_PTR CountAndAsk(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    if ((flags & SHGFI_TYPENAME) != 0) ++asked.typeNames;
    if ((flags & SHGFI_ICON) != 0) ++((flags & SHGFI_SMALLICON) != 0 ? asked.smallIcons : asked.largeIcons);
    return shellItself(path, attributes, info, size, flags);
}

// Two extensions of one type and one of another, registered as the handheld registers types.
class BenchTypes {
  public:
    BenchTypes() {
        Register(L".htm", L"benchpage");
        Register(L".html", L"benchpage");
        Register(L".bmp", L"benchpicture");
    }
    BenchTypes(const BenchTypes&) = delete;
    BenchTypes& operator=(const BenchTypes&) = delete;
    ~BenchTypes() {
        for (const wchar_t* extension : {L".htm", L".html", L".bmp"})
            RegDeleteKeyValueW(HKEY_CLASSES_ROOT, extension, L"Default");
    }

    // The type that the registry has for the extension, from here or from the device; empty without one.
    static std::wstring TypeOf(const std::wstring& extension) {
        RegistryKey key(HKEY_CLASSES_ROOT);
        wchar_t type[MAX_PATH] = L"";
        if (extension.empty() || !key.Open(extension.c_str())) return L"";
        return key.QueryString(L"Default", type, sizeof type) ? type : L"";
    }

  private:
    static void Register(const wchar_t* extension, const wchar_t* type) {
        RegSetKeyValueW(HKEY_CLASSES_ROOT, extension, L"Default", REG_SZ, type,
                        static_cast<DWORD>((std::wcslen(type) + 1) * sizeof(wchar_t)));
    }
};

// How many questions of each kind the files are worth: a type's name once for each extension, with the
// folders' as one more; an icon once for a registered type, and once for each application and each file of
// icons.
void CountKinds(const std::wstring& folder, std::size_t& types, std::size_t& icons) {
    std::set<std::wstring> typeSet = {L"a folder"};
    std::set<std::wstring> iconSet;
    for (const std::wstring& path : FilesBelow(folder)) {
        const std::size_t dot = path.find(L'.', path.rfind(L'\\'));
        const std::wstring extension = dot != std::wstring::npos ? path.substr(dot) : L"";
        const std::wstring type = BenchTypes::TypeOf(extension);
        typeSet.insert(extension);
        if (!type.empty()) iconSet.insert(type);
        if (extension == L".exe" || extension == L".ico") iconSet.insert(path);
    }
    types = typeSet.size();
    icons = iconSet.size();
}

void PrintCounts(const char* name, int questions, std::size_t kinds) {
    Pairs counts;
    counts.Add(questions, static_cast<double>(kinds));
    counts.Print(name, 1);
}

}  // namespace

bool CompareShellQuestions(const BenchTree& tree) {
    const BenchTypes registered;
    BenchList bench;
    const Replaced counted(ce::shellCalls.getFileInfo, CountAndAsk);
    shellItself = counted.Original();
    SilentProgress progress;
    SearchConditions conditions;
    // The second search asks nothing that the first one has asked.
    for (int search = 0; search < 2; ++search)
        RunSearch(conditions, SearchBelow(tree.Kinds()), bench.List(), progress);
    std::size_t types = 0;
    std::size_t icons = 0;
    CountKinds(tree.Kinds(), types, icons);
    PrintCounts("type names asked of the shell / extensions", asked.typeNames, types);
    PrintCounts("large icons asked / types, applications, icon files", asked.largeIcons, icons);
    PrintCounts("small icons asked / types, applications, icon files", asked.smallIcons, icons);
    const auto isRight = [](int questions, std::size_t kinds) {
        return static_cast<std::size_t>(questions) == kinds;
    };
    return isRight(asked.typeNames, types) && isRight(asked.largeIcons, icons) &&
           isRight(asked.smallIcons, icons);
}
