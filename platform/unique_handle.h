#pragma once

// The owner that every kind of handle has.

// Owns one handle of the kind that Kind describes: Kind::Type, Kind::None() (what "no handle" looks like) and
// Kind::Release(handle).
template <typename Kind>
class UniqueHandle {
  public:
    using Type = typename Kind::Type;

    UniqueHandle() = default;
    explicit UniqueHandle(Type handle) : handle_(handle) {}
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.Detach()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        // The old handle goes with the temporary owner.
        UniqueHandle old(handle_);
        handle_ = other.Detach();
        return *this;
    }
    ~UniqueHandle() {
        if (handle_ != Kind::None()) Kind::Release(handle_);
    }

    explicit operator bool() const { return handle_ != Kind::None(); }
    [[nodiscard]] Type Get() const { return handle_; }

    // Releases what is held and holds the handle instead.
    void Reset(Type handle = Kind::None()) { *this = UniqueHandle(handle); }

    // Gives the handle away; the caller releases it.
    [[nodiscard]] Type Detach() {
        const Type handle = handle_;
        handle_ = Kind::None();
        return handle;
    }

    // For a call that writes a handle to where it is told. What was held is released first.
    [[nodiscard]] Type* Receive() {
        Reset();
        return &handle_;
    }

  private:
    Type handle_ = Kind::None();
};

template <typename Handle>
struct NullableKind {
    using Type = Handle;
    static constexpr Type None() { return nullptr; }
};
