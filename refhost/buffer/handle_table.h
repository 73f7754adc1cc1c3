// Checked 32-bit handles.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

/// Handles to things that stand elsewhere and have a member `nGeneration` of 32 bits, which is the table's. A
/// handle is a slot number and the slot's generation, which changes with each thing in it, so that a stale
/// handle fails. Freed slots are taken again oldest first, which keeps generations from coming round quickly.
template <class Thing>
class CHandleTable {
  public:
    /// 0 when all slots are in use or memory for more is out.
    std::int32_t Add(Thing* pThing);
    /// Null for a handle that is none, or none any more.
    Thing* Find(std::int32_t nHandle) const;
    /// Takes the slot of a good handle out of use; the memory stays the caller's.
    void Remove(std::int32_t nHandle);
    std::size_t Count() const { return m_nCount; }

  private:
    static constexpr unsigned SlotBits = 21;
    static constexpr std::uint32_t SlotMask = (1U << SlotBits) - 1;
    static constexpr std::uint32_t LastGeneration = (1U << (31 - SlotBits)) - 1;
    static constexpr std::uint32_t NoSlot = SlotMask;

    static std::uint64_t FreeEntry(std::uint32_t nGeneration, std::uint32_t nNext) {
        return static_cast<std::uint64_t>(nGeneration) << 32 | static_cast<std::uint64_t>(nNext) << 1 | 1;
    }
    static std::uint32_t GenerationOf(std::uint64_t nEntry) {
        return static_cast<std::uint32_t>(nEntry >> 32);
    }
    static std::uint32_t NextOf(std::uint64_t nEntry) { return static_cast<std::uint32_t>(nEntry) >> 1; }
    std::uint32_t TakeSlot();

    std::vector<std::uint64_t> m_entries; ///< a thing's address, or with bit 0 set a free slot
    std::uint32_t m_nFirstFree = NoSlot;
    std::uint32_t m_nLastFree = NoSlot;
    std::size_t m_nCount = 0;
};

template <class Thing>
std::uint32_t CHandleTable<Thing>::TakeSlot() {
    if (m_nFirstFree == NoSlot) {
        if (m_entries.size() >= NoSlot) {
            return NoSlot;
        }
        try {
            m_entries.push_back(FreeEntry(1, NoSlot));
        } catch (const std::bad_alloc&) {
            return NoSlot;
        }
        return static_cast<std::uint32_t>(m_entries.size() - 1);
    }
    const std::uint32_t nSlot = m_nFirstFree;
    m_nFirstFree = NextOf(m_entries[nSlot]);
    if (m_nFirstFree == NoSlot) {
        m_nLastFree = NoSlot;
    }
    return nSlot;
}

template <class Thing>
std::int32_t CHandleTable<Thing>::Add(Thing* pThing) {
    const std::uint32_t nSlot = TakeSlot();
    if (nSlot == NoSlot) {
        return 0;
    }
    pThing->nGeneration = GenerationOf(m_entries[nSlot]);
    m_entries[nSlot] = reinterpret_cast<std::uintptr_t>(pThing);
    ++m_nCount;
    return static_cast<std::int32_t>(pThing->nGeneration << SlotBits | nSlot);
}

template <class Thing>
Thing* CHandleTable<Thing>::Find(std::int32_t nHandle) const {
    const std::uint32_t nSlot = static_cast<std::uint32_t>(nHandle) & SlotMask;
    if (nSlot >= m_entries.size() || (m_entries[nSlot] & 1) != 0) {
        return nullptr;
    }
    Thing* pThing = reinterpret_cast<Thing*>(static_cast<std::uintptr_t>(m_entries[nSlot]));
    return pThing->nGeneration == static_cast<std::uint32_t>(nHandle) >> SlotBits ? pThing : nullptr;
}

template <class Thing>
void CHandleTable<Thing>::Remove(std::int32_t nHandle) {
    const Thing* pThing = Find(nHandle);
    const std::uint32_t nSlot = static_cast<std::uint32_t>(nHandle) & SlotMask;
    const std::uint32_t nGeneration = pThing->nGeneration == LastGeneration ? 1 : pThing->nGeneration + 1;
    m_entries[nSlot] = FreeEntry(nGeneration, NoSlot);
    if (m_nLastFree == NoSlot) {
        m_nFirstFree = nSlot;
    } else {
        m_entries[m_nLastFree] = FreeEntry(GenerationOf(m_entries[m_nLastFree]), nSlot);
    }
    m_nLastFree = nSlot;
    --m_nCount;
}
