#pragma once

// Whether the folder at the path, known to be no ordinary one, is a link to a folder that stands elsewhere. A
// folder that cannot be opened counts as a link: there is nothing to be found in it.
[[nodiscard]] bool LeadsElsewhere(const wchar_t* path);

// Whether the path is a link that the system follows even when asked for the link itself, as Wine does: what
// is done to the link would be done to the folder or file that it leads to.
[[nodiscard]] bool IsOutOfReach(const wchar_t* path);

// Whether the path ends in a link to a file, so that what is written to the path would be written to that
// file.
[[nodiscard]] bool LeadsToAnotherFile(const wchar_t* path);
