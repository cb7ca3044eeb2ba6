// tqAutoPointer: the shared owning pointer of the model, with a spin-locked control block.
#pragma once

#include <atomic>
#include <cstdint>
#include <thread>
#include <type_traits>

#include "misc/export.h"

namespace misc {

namespace detail_ {

/// Deletes a pointee of the concrete type it was made for.
class deleterBase {
public:
    virtual ~deleterBase() = default;
    virtual void Delete() = 0;
    /// Reserved slot: returns null in every deleter.
    virtual void* Reserved() { return nullptr; }
};

template <class T>
class pointerDeleter final : public deleterBase {
public:
    explicit pointerDeleter(T* pointee) : m_pointee(pointee) {}
    void Delete() override { delete m_pointee; }

private:
    T* m_pointee;
};

/// The record all copies of one tqAutoPointer share.
struct ControlBlock {
    std::uint32_t count;
    bool owns;
    deleterBase* deleter;
    std::atomic<std::uint32_t> lock;

    void Lock() {
        std::uint32_t expected = 0;
        while (!lock.compare_exchange_weak(expected, 1, std::memory_order_acquire)) {
            expected = 0;
            std::this_thread::yield();
        }
    }
    void Unlock() { lock.exchange(0, std::memory_order_release); }
};

/// Throws tqException "Accessing TQ_NULL pointer".
[[noreturn]] TQ_EXPORT void ThrowNullPointer();

}  // namespace detail_

/// Shared owning pointer: two words, the control block and the raw pointer. Nullness is read from the control block.
template <class T>
class tqAutoPointer {
public:
    using element_type = T;

    tqAutoPointer() noexcept = default;
    /// Takes ownership of a heap object; null gives a null pointer without a control block.
    explicit tqAutoPointer(T* pointee) {
        if (pointee != nullptr) {
            m_block = new detail_::ControlBlock{1, true, nullptr, {0}};
            try {
                m_block->deleter = new detail_::pointerDeleter<T>(pointee);
            } catch (...) {
                delete m_block;
                delete pointee;
                throw;
            }
            m_pointee = pointee;
        }
    }
    tqAutoPointer(const tqAutoPointer& other) noexcept : m_block(other.m_block), m_pointee(other.m_pointee) { Acquire(); }
    /// Shares the control block of a pointer to a derived type; the right type is still deleted.
    template <class U, class = std::enable_if_t<std::is_convertible<U*, T*>::value>>
    tqAutoPointer(const tqAutoPointer<U>& other) noexcept : m_block(other.m_block), m_pointee(other.m_pointee) {
        Acquire();
    }
    ~tqAutoPointer() { Release(); }

    tqAutoPointer& operator=(const tqAutoPointer& other) {
        if (this != &other) {
            Release();
            m_block = other.m_block;
            m_pointee = other.m_pointee;
            Acquire();
        }
        return *this;
    }
    template <class U, class = std::enable_if_t<std::is_convertible<U*, T*>::value>>
    tqAutoPointer& operator=(const tqAutoPointer<U>& other) {
        return *this = tqAutoPointer(other);
    }

    bool IsNotNull() const noexcept { return m_block != nullptr; }
    bool IsNull() const noexcept { return m_block == nullptr; }

    T& operator*() const {
        if (m_block == nullptr) detail_::ThrowNullPointer();
        return *m_pointee;
    }
    T* operator->() const {
        if (m_block == nullptr) detail_::ThrowNullPointer();
        return m_pointee;
    }
    /// The raw pointer, null for a null tqAutoPointer; identity checks compare these.
    T* Get() const noexcept { return m_pointee; }

    /// Clears or sets the owns flag shared by every copy; without it the pointee outlives the last copy.
    void SetOwns(bool owns) const {
        if (m_block == nullptr) return;
        m_block->Lock();
        m_block->owns = owns;
        m_block->Unlock();
    }
    bool Owns() const noexcept { return m_block != nullptr && m_block->owns; }
    /// Number of copies sharing the control block; 0 for a null pointer.
    std::uint32_t UseCount() const noexcept { return m_block == nullptr ? 0 : m_block->count; }

    /// A pointer to U sharing this control block, or null when the pointee is not a U.
    template <class U>
    tqAutoPointer<U> DynamicCast() const {
        tqAutoPointer<U> result;
        U* cast = dynamic_cast<U*>(m_pointee);
        if (cast != nullptr) {
            result.m_block = m_block;
            result.m_pointee = cast;
            result.Acquire();
        }
        return result;
    }
    /// A pointer to U sharing this control block; the caller vouches for the type.
    template <class U>
    tqAutoPointer<U> StaticCast() const {
        tqAutoPointer<U> result;
        result.m_block = m_block;
        result.m_pointee = static_cast<U*>(m_pointee);
        result.Acquire();
        return result;
    }

private:
    template <class U>
    friend class tqAutoPointer;

    void Acquire() noexcept {
        if (m_block == nullptr) return;
        m_block->Lock();
        ++m_block->count;
        m_block->Unlock();
    }
    void Release() noexcept {
        detail_::ControlBlock* block = m_block;
        m_block = nullptr;
        m_pointee = nullptr;
        if (block == nullptr) return;
        block->Lock();
        if (block->count != 0) --block->count;
        if (block->count != 0) {
            block->Unlock();
            return;
        }
        // The pointee dies under the lock, so its destructor must not touch a copy of this pointer.
        if (block->owns) block->deleter->Delete();
        block->Unlock();
        delete block->deleter;
        delete block;
    }

    detail_::ControlBlock* m_block = nullptr;
    T* m_pointee = nullptr;
};

}  // namespace misc
