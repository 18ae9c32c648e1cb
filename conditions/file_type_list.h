#pragma once

// The registered file types as the size page lists them. Whoever knows the types answers.

class FileTypeList {
  public:
    virtual ~FileTypeList() = default;
    [[nodiscard]] virtual int Count() const = 0;
    // The readable name, and one or more extensions written one after another (".htm.html"). Both texts live
    // as long as the list.
    [[nodiscard]] virtual const wchar_t* Description(int index) const = 0;
    [[nodiscard]] virtual const wchar_t* Extensions(int index) const = 0;
};
