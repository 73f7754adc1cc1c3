#pragma once

// From handles to their objects, without an allocation a look-up or an entry.

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

namespace afx {

/// An open-addressing table of object pointers by handle. It owns neither.
template <class TYPE>
class CPointerTable {
  public:
    /// Null when the handle is not entered.
    TYPE* Lookup(const void* handle) const {
        return m_nCapacity != 0 ? m_entries[SlotOf(handle)].pObject : nullptr;
    }

    /// Enters or replaces; FALSE when memory is short.
    BOOL Set(const void* handle, TYPE* pObject);
    /// Takes the handle out while it stands for this object.
    void Remove(const void* handle, const TYPE* pObject);
    /// Hands every object to `visit` and leaves the table empty.
    template <class VISIT>
    void Drain(VISIT visit);

  private:
    struct Entry {
        const void* handle = nullptr;
        TYPE* pObject = nullptr;
    };

    std::size_t HomeOf(const void* handle) const {
        // Fibonacci hashing: handles count upward, and their low bits alone would collide in runs.
        const std::uint64_t hash =
            reinterpret_cast<std::uintptr_t>(handle) * std::uint64_t{0x9E3779B97F4A7C15};
        return static_cast<std::size_t>(hash >> 32) & (m_nCapacity - 1);
    }
    std::size_t Behind(std::size_t slot) const { return (slot + 1) & (m_nCapacity - 1); }
    /// The handle's slot, or the free one where it would go. One slot at least is always free.
    std::size_t SlotOf(const void* handle) const;
    BOOL Grow();
    void CloseGap(std::size_t gap);

    std::unique_ptr<Entry[]> m_entries;
    std::size_t m_nCapacity = 0;
    std::size_t m_nCount = 0;
};

template <class TYPE>
std::size_t CPointerTable<TYPE>::SlotOf(const void* handle) const {
    std::size_t slot = HomeOf(handle);
    while (m_entries[slot].handle && m_entries[slot].handle != handle) {
        slot = Behind(slot);
    }
    return slot;
}

template <class TYPE>
BOOL CPointerTable<TYPE>::Set(const void* handle, TYPE* pObject) {
    if (2 * (m_nCount + 1) > m_nCapacity && !Grow()) {
        return FALSE;
    }
    Entry& entry = m_entries[SlotOf(handle)];
    m_nCount += entry.handle == nullptr;
    entry = {handle, pObject};
    return TRUE;
}

template <class TYPE>
void CPointerTable<TYPE>::Remove(const void* handle, const TYPE* pObject) {
    if (Lookup(handle) != pObject || !pObject) {
        return;
    }
    const std::size_t slot = SlotOf(handle);
    m_entries[slot] = {};
    --m_nCount;
    CloseGap(slot);
}

// Moves back the entries that were pushed past the gap, so that a look-up may stop at the first free slot.
template <class TYPE>
void CPointerTable<TYPE>::CloseGap(std::size_t gap) {
    const std::size_t mask = m_nCapacity - 1;
    for (std::size_t slot = Behind(gap); m_entries[slot].handle; slot = Behind(slot)) {
        const std::size_t home = HomeOf(m_entries[slot].handle);
        if (((slot - home) & mask) >= ((slot - gap) & mask)) {
            m_entries[gap] = m_entries[slot];
            m_entries[slot] = {};
            gap = slot;
        }
    }
}

template <class TYPE>
BOOL CPointerTable<TYPE>::Grow() {
    const std::size_t nOldCapacity = m_nCapacity;
    const std::size_t nNewCapacity = nOldCapacity != 0 ? 2 * nOldCapacity : 64;
    std::unique_ptr<Entry[]> old(new (std::nothrow) Entry[nNewCapacity]);
    if (!old) {
        return FALSE;
    }
    m_entries.swap(old);
    m_nCapacity = nNewCapacity;
    for (std::size_t slot = 0; slot < nOldCapacity; ++slot) {
        if (old[slot].handle) {
            m_entries[SlotOf(old[slot].handle)] = old[slot];
        }
    }
    return TRUE;
}

template <class TYPE>
template <class VISIT>
void CPointerTable<TYPE>::Drain(VISIT visit) {
    const std::unique_ptr<Entry[]> entries(std::move(m_entries));
    const std::size_t nCapacity = m_nCapacity;
    m_nCapacity = m_nCount = 0;
    for (std::size_t slot = 0; slot < nCapacity; ++slot) {
        if (entries[slot].pObject) {
            visit(entries[slot].pObject);
        }
    }
}

/// The temporary objects of handles that have none of their own; FIELD is the member that holds the handle.
/// Owns them.
template <class TYPE, auto FIELD>
class CTempObjects {
  public:
    /// Null when memory is short.
    template <class HANDLE_TYPE>
    TYPE* FromHandle(HANDLE_TYPE handle) {
        if (TYPE* const pKnown = m_table.Lookup(handle)) {
            return pKnown;
        }
        TYPE* const pObject = new TYPE;
        if (!pObject) {
            return nullptr;
        }
        if (!m_table.Set(handle, pObject)) {
            delete pObject;
            return nullptr;
        }
        pObject->*FIELD = handle;
        return pObject;
    }

    /// Deletes the object if it is a temporary one; what its handle names stays.
    void Free(TYPE* pObject) {
        const void* const handle = pObject->*FIELD;
        if (m_table.Lookup(handle) == pObject) {
            m_table.Remove(handle, pObject);
            Delete(pObject);
        }
    }

    void FreeAll() { m_table.Drain(Delete); }

  private:
    static void Delete(TYPE* pObject) {
        // Without its handle, so that the destructor leaves what it names alone.
        pObject->*FIELD = nullptr;
        delete pObject;
    }

    CPointerTable<TYPE> m_table;
};

/// The objects that own their handles, which it does not own, and the temporary ones of all other handles.
template <class TYPE, auto FIELD>
class CHandleMap {
  public:
    TYPE* Lookup(const void* handle) const { return m_permanent.Lookup(handle); }

    /// Null for none, and when memory is short.
    template <class HANDLE_TYPE>
    TYPE* FromHandle(HANDLE_TYPE handle) {
        TYPE* const pOwn = m_permanent.Lookup(handle);
        return pOwn || !handle ? pOwn : m_temporary.FromHandle(handle);
    }

    template <class HANDLE_TYPE>
    BOOL Attach(HANDLE_TYPE handle, TYPE* pObject) {
        if (!handle || !m_permanent.Set(handle, pObject)) {
            return FALSE;
        }
        pObject->*FIELD = handle;
        return TRUE;
    }

    /// The handle that the object had.
    auto Detach(TYPE* pObject) {
        m_permanent.Remove(pObject->*FIELD, pObject);
        return std::exchange(pObject->*FIELD, nullptr);
    }

    CTempObjects<TYPE, FIELD>& Temporary() { return m_temporary; }

  private:
    CPointerTable<TYPE> m_permanent;
    CTempObjects<TYPE, FIELD> m_temporary;
};

} // namespace afx
