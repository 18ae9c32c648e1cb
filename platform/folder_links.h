#pragma once

// Whether the folder at the path, known to be no ordinary one, is a link to a folder that stands elsewhere. A
// folder that cannot be opened counts as a link: there is nothing to be found in it.
[[nodiscard]] bool LeadsElsewhere(const wchar_t* path);
