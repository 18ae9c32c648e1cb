#pragma once

// The list in which patterns, file types and file operations keep their items: a chain with a cursor of its
// own. It owns what is appended; destroying it destroys every item, front to back.

#include <cstdint>

// The base of everything kept in an ObjectList.
class ListObject {
  public:
    ListObject() = default;
    ListObject(const ListObject&) = delete;
    ListObject& operator=(const ListObject&) = delete;
    virtual ~ListObject() = default;
};

// One heap copy of a text.
class StringObject final : public ListObject {
  public:
    // A copy that cannot be allocated leaves an empty text.
    explicit StringObject(const wchar_t* source);
    ~StringObject() override;

    // As the constructor, but null when the object or its copy cannot be allocated.
    [[nodiscard]] static StringObject* Create(const wchar_t* source);

    // Units without the terminator.
    std::uint32_t Length() const { return length_; }
    const wchar_t* Text() const { return text_ != nullptr ? text_ : L""; }

  private:
    std::uint32_t length_ = 0;
    wchar_t* text_ = nullptr;
};

class ObjectList {
  public:
    ObjectList() = default;
    ObjectList(const ObjectList&) = delete;
    ObjectList& operator=(const ObjectList&) = delete;
    ~ObjectList();

    // Adds the item (which may be null) at the end and puts the cursor on it. Returns false without memory;
    // the item is then neither kept nor deleted.
    [[nodiscard]] bool Append(ListObject* item);

    // Puts the cursor on the first item and returns it; null if the list is empty.
    ListObject* First();

    // Moves the cursor to the next item and returns it; at the end the cursor stays and null is returned.
    // A null item looks the same as the end.
    ListObject* Next();

    // Puts the cursor on the n-th item, counted from 0, and returns it; null if there are fewer items.
    ListObject* ItemAt(std::uint32_t n);

    std::uint32_t Count() const { return count_; }

  private:
    class Node;

    std::uint32_t count_ = 0;
    Node* head_ = nullptr;
    Node* tail_ = nullptr;
    Node* cursor_ = nullptr;
};
