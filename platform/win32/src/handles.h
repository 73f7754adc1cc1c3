#pragma once

// The checked tables behind all handles. A handle is never an address: it names a slot, counts the slot's
// uses, so that a stale one is told from its successor, and carries its kind, so that a foreign one fails.

#include <windows.h>

#include <array>
#include <memory>

namespace win32 {

enum class HandleKind : unsigned { Window = 1, DeviceContext, GdiObject, GlobalBlock, Cursor, Module, Menu };

constexpr unsigned SlotBits = 16;
constexpr unsigned UseBits = 11;
constexpr unsigned SlotCount = 1U << SlotBits;
constexpr unsigned UseMask = (1U << UseBits) - 1;
// So many freed slots wait before the first is used again, which keeps stale handles recognisable for long.
constexpr unsigned RestingSlots = 256;

/// 31 bits, so that a handle also survives the way through a LONG.
constexpr UINT_PTR HandleValue(HandleKind kind, unsigned slot, unsigned use) {
    return (static_cast<UINT_PTR>(kind) << (SlotBits + UseBits)) | (static_cast<UINT_PTR>(use) << SlotBits) |
           slot;
}

/// Owns its objects and is never torn down, so that handles stay good while the process ends.
template <typename T, HandleKind Kind>
class CHandleTable {
  public:
    /// The new handle's value; 0, and the object is gone, when all slots are taken or `object` is null.
    UINT_PTR Add(std::unique_ptr<T> object) {
        const unsigned slot = object ? TakeSlot() : 0;
        if (slot == 0) {
            return 0;
        }
        Slot& taken = m_slots[slot];
        taken.use = taken.use == UseMask ? 1 : taken.use + 1;
        taken.object = object.release();
        ++m_count;
        return HandleValue(Kind, slot, taken.use);
    }

    T* Find(const void* handle) const {
        const UINT_PTR value = reinterpret_cast<UINT_PTR>(handle);
        const Slot& slot = m_slots[value & (SlotCount - 1)];
        return slot.object && value >> SlotBits == HandleValue(Kind, 0, slot.use) >> SlotBits ? slot.object
                                                                                              : nullptr;
    }

    /// Null when there is no such handle.
    std::unique_ptr<T> Remove(const void* handle) {
        std::unique_ptr<T> object(Find(handle));
        if (object) {
            const unsigned slot = reinterpret_cast<UINT_PTR>(handle) & (SlotCount - 1);
            m_slots[slot].object = nullptr;
            RestSlot(slot);
            --m_count;
        }
        return object;
    }

    /// The handle of the first object that fits; 0 when none does. Its time grows with the objects there are.
    template <typename Predicate>
    UINT_PTR HandleWhere(Predicate fits) const {
        for (unsigned slot = 1; slot < m_neverUsed; ++slot) {
            if (m_slots[slot].object && fits(*m_slots[slot].object)) {
                return HandleValue(Kind, slot, m_slots[slot].use);
            }
        }
        return 0;
    }

    unsigned Count() const { return m_count; }

  private:
    // Slot 0 is none: a link of 0 ends the list of the resting.
    struct Slot {
        T* object;
        std::uint16_t use;
        std::uint16_t nextResting;
    };

    unsigned TakeSlot() {
        if (m_neverUsed < SlotCount && m_resting < RestingSlots) {
            return m_neverUsed++;
        }
        const unsigned slot = m_firstResting;
        if (slot != 0) {
            m_firstResting = m_slots[slot].nextResting;
            --m_resting;
        }
        return slot;
    }

    void RestSlot(unsigned slot) {
        m_slots[slot].nextResting = 0;
        (m_firstResting == 0 ? m_firstResting : m_slots[m_lastResting].nextResting) =
            static_cast<std::uint16_t>(slot);
        m_lastResting = static_cast<std::uint16_t>(slot);
        ++m_resting;
    }

    std::array<Slot, SlotCount> m_slots{};
    unsigned m_neverUsed = 1;
    unsigned m_resting = 0;
    unsigned m_count = 0;
    std::uint16_t m_firstResting = 0;
    std::uint16_t m_lastResting = 0;
};

/// Notes the code and answers FALSE.
BOOL FailWith(DWORD code);

} // namespace win32
