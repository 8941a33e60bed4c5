#pragma once

#include <unknwn.h>

#include <utility>

namespace corvane {

/// Owns one reference to a COM object.
template <typename T>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(ComPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    ~ComPtr() { reset(); }

    ComPtr& operator=(ComPtr&& other) noexcept {
        if (this != &other) {
            reset();
            m_object = std::exchange(other.m_object, nullptr);
        }
        return *this;
    }

    void reset() {
        if (T* const object = std::exchange(m_object, nullptr)) {
            object->Release();
        }
    }

    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

    /// The address at which a call stores a new reference; releases the current one.
    T** put() {
        reset();
        return &m_object;
    }

    /// `put` for calls that take the requested interface's ID as an argument.
    void** putVoid() { return reinterpret_cast<void**>(put()); }

    /// Asks the object for another of its interfaces.
    template <typename U>
    HRESULT queryInto(ComPtr<U>& target) const {
        return m_object->QueryInterface(__uuidof(U), target.putVoid());
    }

private:
    T* m_object = nullptr;
};

} // namespace corvane
