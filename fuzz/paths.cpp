// Paths put together, taken apart and made literal, up to the limits of their buffers.

#include <cwchar>

#include "base/paths.h"
#include "fileops/operation_paths.h"
#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "platform/desktop/literal_path.h"
#include "tests/platform/plain_wildcard.h"

namespace {

constexpr std::size_t Longest = MAX_PATH - 1;

bool IsSeparator(wchar_t unit) {
    return unit == L'\\' || unit == L'/';
}

// Mostly separators, dots and drives, now and then about as long as a path may be.
std::wstring SomePath(FuzzInput& input) {
    return input.Byte() < 0x60 ? SomeText(input, 2 * MAX_PATH) : SomeTextOf(input, L"\\/.:aAb\"", 20);
}

std::wstring JoinedPlainly(const std::wstring& folder, const std::wstring& name) {
    const bool startsLikeDrive = name.size() >= 2 && name[1] == L':';
    const bool isOpen = !folder.empty() && folder.back() != L'\\';
    return folder + (isOpen && !startsLikeDrive ? L"\\" : L"") + name;
}

void Join(FuzzInput& input) {
    const std::wstring folder = SomePath(input);
    const std::wstring name = SomePath(input);
    const std::wstring joined = JoinedPlainly(folder, name);
    wchar_t path[MAX_PATH];
    const bool fits = JoinPath(path, ExactText<wchar_t>(folder).Get(), ExactText<wchar_t>(name).Get());
    Require(fits == (joined.size() <= Longest), "a path that fits is joined, and no other");
    Require(path == (fits ? joined : L""), "the path is joined as by the plain rule");
}

void Extend(FuzzInput& input) {
    const std::wstring before = SomePath(input).substr(0, Longest);
    const std::wstring name = SomePath(input);
    PathBuffer path;
    std::wmemcpy(path, before.c_str(), before.size() + 1);
    {
        const PathExtension extension(path, ExactText<wchar_t>(name).Get());
        const std::wstring joined = JoinedPlainly(before, name);
        const bool fits = joined.size() <= Longest && (name.size() < 2 || name[1] != L':');
        Require(extension.Fits() == fits, "a name that fits lengthens the path, and no other");
        Require(path == (fits ? joined : before), "the path is longer by the name");
    }
    Require(path == before, "the path is what it was");
}

struct PlainParts {
    std::wstring folder, name;
};

PlainParts SplitPlainly(std::wstring path) {
    if (path.size() >= 2 && path.front() == L'"' && path.back() == L'"')
        path = path.substr(1, path.size() - 2);
    std::size_t at = path.size();
    while (at > 0 && !IsSeparator(path[at - 1]))
        --at;
    if (at == 0) return {L"", path};
    return {path.substr(0, at == 1 ? 1 : at - 1), path.substr(at)};
}

void Split(FuzzInput& input) {
    const std::wstring path = SomePath(input);
    const PathParts parts = SplitPath(ExactText<wchar_t>(path).Get());
    const PlainParts plain = SplitPlainly(path);
    Require(parts.folder == plain.folder.substr(0, Longest), "the folder is the plain one");
    Require(parts.name == plain.name.substr(0, Longest), "the name is the plain one");
}

std::wstring Folded(std::wstring text) {
    for (wchar_t& unit : text)
        unit = FoldedPlainly(unit);
    return text;
}

void Overlap(FuzzInput& input) {
    const std::wstring source = SomePath(input);
    std::wstring destination = input.Flag() ? source.substr(0, input.UpTo(source.size() % 65536)) : L"";
    destination += SomePath(input);
    const std::wstring foldedSource = Folded(source);
    const std::wstring foldedDestination = Folded(destination);
    const bool heldBy = foldedDestination == Folded(SplitPlainly(source).folder.substr(0, Longest));
    const bool begins = foldedDestination.compare(0, source.size(), foldedSource) == 0;
    const bool isRoot = !source.empty() && IsSeparator(source.back());
    const bool ends =
        destination.size() == source.size() || (begins && IsSeparator(destination[source.size()]));
    const bool inside = begins && (isRoot || ends);
    Require(IsInsideSource(ExactText<wchar_t>(source).Get(), ExactText<wchar_t>(destination).Get()) ==
                (heldBy || inside),
            "paths overlap as by the plain rule");
}

bool StartsOnAnotherMachine(const std::wstring& path) {
    return path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1]);
}

bool StartsWithDrive(const std::wstring& path) {
    return path.size() >= 2 && !IsSeparator(path[0]) && path[1] == L':';
}

// Works the names of a path off one after the other.
void GoAlong(const std::wstring& path, std::vector<std::wstring>& names) {
    std::wstring name;
    for (std::size_t at = 0; at <= path.size(); ++at) {
        if (at < path.size() && !IsSeparator(path[at])) {
            name += path[at];
            continue;
        }
        if (name == L"..") {
            if (!names.empty()) names.pop_back();
        } else if (!name.empty() && name != L".") {
            names.push_back(name);
        }
        name.clear();
    }
}

// Empty for a path that has nowhere to start, or is too long.
std::wstring LiteralPlainly(const std::wstring& path, const std::wstring& base) {
    if (path.size() > Longest) return L"";
    if (StartsOnAnotherMachine(path)) return path;
    const bool hasDrive = StartsWithDrive(path);
    const std::wstring rest = hasDrive ? path.substr(2) : path;
    const bool startsAtRoot = !rest.empty() && IsSeparator(rest[0]);
    if (!hasDrive || !startsAtRoot) {
        if (base.size() > Longest) return L"";
        if (StartsOnAnotherMachine(base)) return path;
        if (!StartsWithDrive(base)) return L"";
    }
    std::vector<std::wstring> names;
    if (!startsAtRoot) GoAlong(base.substr(2), names);
    GoAlong(rest, names);
    std::wstring literal = L"\\\\?\\" + (hasDrive ? path : base).substr(0, 2);
    for (const std::wstring& name : names)
        literal += L'\\' + name;
    return names.empty() ? literal + L'\\' : literal;
}

void MakeLiteral(FuzzInput& input) {
    const std::wstring path = SomePath(input);
    const std::wstring base = input.Flag() ? L"D:" + SomePath(input) : SomePath(input);
    wchar_t literal[LiteralPathSize];
    const bool fits = LiteralPath(literal, ExactText<wchar_t>(path).Get(), ExactText<wchar_t>(base).Get());
    const std::wstring plain = LiteralPlainly(path, base);
    Require(literal == plain, "the literal path is the plain one");
    Require(fits || plain.empty(), "a path that is left out is empty");
}

}  // namespace

void FuzzPaths(FuzzInput& input) {
    static constexpr decltype(&Join) Kinds[] = {Join, Extend, Split, Overlap, MakeLiteral};
    input.OneOf(Kinds)(input);
}
