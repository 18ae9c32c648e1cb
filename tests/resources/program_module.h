#pragma once

// The module whose resources are read back: the built program, which stands in the folder above the tests.

#include <windows.h>

#include <string>
#include <vector>

// Where it stands.
std::wstring ProgramPath();

// Never null: a program that cannot be loaded ends the test run with a message.
HMODULE ProgramModule();

// The bytes of a resource, empty when there is none.
std::vector<unsigned char> ResourceBytes(const wchar_t* name, const wchar_t* type);
