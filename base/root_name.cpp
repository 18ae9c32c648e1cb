#include "base/root_name.h"

#include <algorithm>
#include <iterator>

#include "base/format_text.h"
#include "base/program_context.h"
#include "base/registry_key.h"

namespace {

constexpr const wchar_t* ComputerClass = L"{000214A0-0000-0000-C000-000000000046}";

// Size in bytes of the buffer for the registry's value.
constexpr DWORD DisplayNameBytes = 260;

}  // namespace

void RootDisplayName(wchar_t (&name)[MAX_PATH]) {
    RegistryKey classes(HKEY_CLASSES_ROOT);
    // Zeroed throughout: a value that is not a string is used as it was read, without a terminator.
    std::fill(std::begin(name), std::end(name), L'\0');
    if (classes.Open(ComputerClass) && classes.QueryString(L"DisplayName", name, DisplayNameBytes)) return;
    const wchar_t* fallback = Context().pocketPc ? InLanguage(L"My Pocket PC", L"ﾏｲ ﾎﾟｹｯﾄ PC")
                                                 : InLanguage(L"My Handheld PC", L"ﾏｲ ﾊﾝﾄﾞﾍﾙﾄﾞ PC");
    FormatText(name, std::size(name), L"%s", fallback);
}
