#include "base/object_list.h"

#include <cstddef>
#include <cwchar>
#include <new>

StringObject::StringObject(const wchar_t* source) {
    const std::size_t units = std::wcslen(source);
    text_ = new (std::nothrow) wchar_t[units + 1];
    if (text_ != nullptr) {
        std::wmemcpy(text_, source, units + 1);
        length_ = static_cast<std::uint32_t>(units);
    }
}

StringObject::~StringObject() {
    delete[] text_;
}

StringObject* StringObject::Create(const wchar_t* source) {
    auto* const object = new (std::nothrow) StringObject(source);
    if (object != nullptr && object->text_ == nullptr) {
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
    while (head_ != nullptr) {
        Node* const first = head_;
        head_ = first->next;
        delete first;
    }
}

bool ObjectList::Append(ListObject* item) {
    auto* const node = new (std::nothrow) Node(item);
    if (node == nullptr) return false;
    if (tail_ != nullptr) {
        tail_->next = node;
    } else {
        head_ = node;
    }
    tail_ = node;
    cursor_ = node;
    ++count_;
    return true;
}

ListObject* ObjectList::First() {
    cursor_ = head_;
    return cursor_ != nullptr ? cursor_->item : nullptr;
}

ListObject* ObjectList::Next() {
    if (cursor_ == nullptr || cursor_->next == nullptr) return nullptr;
    cursor_ = cursor_->next;
    return cursor_->item;
}

ListObject* ObjectList::ItemAt(std::uint32_t n) {
    cursor_ = head_;
    for (std::uint32_t step = 0; step < n && cursor_ != nullptr; ++step)
        cursor_ = cursor_->next;
    return cursor_ != nullptr ? cursor_->item : nullptr;
}
