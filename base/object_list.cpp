#include "base/object_list.h"

#include <cstddef>
#include <cwchar>
#include <new>

StringObject::StringObject(const wchar_t* source) {
    const std::size_t units = std::wcslen(source);
    text = new (std::nothrow) wchar_t[units + 1];
    if (text != nullptr) {
        std::wmemcpy(text, source, units + 1);
        length = static_cast<std::uint32_t>(units);
    }
}

StringObject::~StringObject() {
    delete[] text;
}

StringObject* StringObject::Create(const wchar_t* source) {
    auto* const object = new (std::nothrow) StringObject(source);
    if (object != nullptr && object->text == nullptr) {
        delete object;
        return nullptr;
    }
    return object;
}

class ObjectList::Node final : public ListObject {
  public:
    explicit Node(ListObject* ownedItem) : item(ownedItem) {}
    ~Node() override { delete item; }

    ListObject* const item;
    Node* next = nullptr;
};

ObjectList::~ObjectList() {
    while (head != nullptr) {
        Node* const first = head;
        head = first->next;
        delete first;
    }
}

bool ObjectList::Append(ListObject* item) {
    auto* const node = new (std::nothrow) Node(item);
    if (node == nullptr) return false;
    if (tail != nullptr) {
        tail->next = node;
    } else {
        head = node;
    }
    tail = node;
    cursor = node;
    ++count;
    return true;
}

ListObject* ObjectList::First() {
    cursor = head;
    return cursor != nullptr ? cursor->item : nullptr;
}

ListObject* ObjectList::Next() {
    if (cursor == nullptr || cursor->next == nullptr) return nullptr;
    cursor = cursor->next;
    return cursor->item;
}

ListObject* ObjectList::ItemAt(std::uint32_t n) {
    cursor = head;
    for (std::uint32_t step = 0; step < n && cursor != nullptr; ++step)
        cursor = cursor->next;
    return cursor != nullptr ? cursor->item : nullptr;
}
