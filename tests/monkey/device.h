#pragma once

// The device that the random hands work on: a drive filled anew for each life of the program, what stands on
// it, and changes of it under the program's feet.

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/monkey/random.h"
#include "tests/monkey/shared_journal.h"
#include "tests/program/device_drive.h"
#include "tests/program/device_tree.h"

struct DeviceEntry {
    std::wstring path;  // as it is spelled, from the root: "\folder\name"
    bool folder = false;
    bool readOnly = false;
    std::string content;
};
// By the path in lower case.
using DeviceEntries = std::map<std::wstring, DeviceEntry>;

class Device {
  public:
    explicit Device(SharedJournal& journal) : journal_(journal) {}

    // Makes folders and files of all kinds; what stood there is gone. No program may stand on the drive.
    void Fill(Random& random);
    [[nodiscard]] DeviceEntries Entries() const;
    // A file is made, written, renamed or deleted, or its attributes are changed.
    void ChangeSomething(Random& random);

    // "Q:\"
    [[nodiscard]] std::wstring Root() const { return drive_->Root(); }
    // The path from the device's root, in lower case, with "." and ".." worked off; none where it leads to
    // another drive.
    [[nodiscard]] std::optional<std::wstring> Canonical(const std::wstring& path) const;
    [[nodiscard]] static const std::vector<std::wstring>& Folders();

  private:
    void FillFolder(Random& random, const std::wstring& folder, int count) const;
    void AddShortcuts(Random& random) const;
    void Collect(const std::wstring& folder, DeviceEntries& entries) const;
    // Taken unit by unit: a name may end in a dot.
    [[nodiscard]] std::wstring Real(const std::wstring& path) const;
    void Write(Random& random, const std::wstring& path);

    SharedJournal& journal_;
    int filled_ = 0;
    std::unique_ptr<DeviceTree> tree_;
    std::unique_ptr<DeviceDrive> drive_;
};

// What a person might type: names, patterns, parts of paths, texts of files. None has a colon, so that no
// other drive can be named.
[[nodiscard]] std::wstring RandomWord(Random& random);
[[nodiscard]] std::wstring RandomName(Random& random);
[[nodiscard]] std::wstring LowerCase(std::wstring text);
