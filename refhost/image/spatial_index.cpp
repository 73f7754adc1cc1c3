#include "image/spatial_index.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace {

std::uint64_t CellKey(std::int64_t x, std::int64_t y) {
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(x)) << 32 | static_cast<std::uint32_t>(y);
}

} // namespace

std::size_t CSpatialIndex::CCellTable::HomeOf(std::uint64_t key) const {
    constexpr std::uint64_t Golden = 0x9E3779B97F4A7C15;
    return static_cast<std::size_t>((key * Golden) >> 32) & (m_slots.size() - 1);
}

std::size_t CSpatialIndex::CCellTable::SlotOf(std::uint64_t key) const {
    std::size_t nSlot = HomeOf(key);
    while (m_slots[nSlot].pFirst && m_slots[nSlot].key != key) {
        nSlot = (nSlot + 1) & (m_slots.size() - 1);
    }
    return nSlot;
}

CImgNode* CSpatialIndex::CCellTable::Find(std::uint64_t key) const {
    return m_slots.empty() ? nullptr : m_slots[SlotOf(key)].pFirst;
}

void CSpatialIndex::CCellTable::Set(std::uint64_t key, CImgNode* pFirst) {
    if ((m_nUsed + 1) * 4 > m_slots.size() * 3) {
        Grow();
    }
    Cell& cell = m_slots[SlotOf(key)];
    m_nUsed += cell.pFirst == nullptr;
    cell = {key, pFirst};
}

void CSpatialIndex::CCellTable::Erase(std::uint64_t key) {
    const std::size_t nMask = m_slots.size() - 1;
    std::size_t nHole = SlotOf(key);
    m_slots[nHole].pFirst = nullptr;
    --m_nUsed;
    // What was pushed on past the hole moves back, so that no look-up ends too early.
    for (std::size_t nSlot = (nHole + 1) & nMask; m_slots[nSlot].pFirst; nSlot = (nSlot + 1) & nMask) {
        const std::size_t nFromHome = (nSlot - HomeOf(m_slots[nSlot].key)) & nMask;
        if (nFromHome < ((nSlot - nHole) & nMask)) {
            continue;
        }
        m_slots[nHole] = m_slots[nSlot];
        m_slots[nSlot].pFirst = nullptr;
        nHole = nSlot;
    }
}

void CSpatialIndex::CCellTable::Grow() {
    const std::vector<Cell> former = std::exchange(m_slots, {});
    m_slots.resize(std::max<std::size_t>(16, former.size() * 2), Cell{0, nullptr});
    for (const Cell& cell : former) {
        if (cell.pFirst) {
            m_slots[SlotOf(cell.key)] = cell;
        }
    }
}

int CSpatialIndex::LevelOf(const CRect& rect) {
    const std::int64_t nWidth = static_cast<std::int64_t>(rect.right) - rect.left;
    const std::int64_t nHeight = static_cast<std::int64_t>(rect.bottom) - rect.top;
    const std::int64_t nSide = std::max<std::int64_t>({nWidth, nHeight, 1});
    return std::bit_width(static_cast<std::uint64_t>(nSide - 1) >> BaseBits);
}

std::uint64_t CSpatialIndex::KeyOf(const CRect& rect, int nLevel) {
    const int nBits = BaseBits + nLevel;
    return CellKey(static_cast<std::int64_t>(rect.left) >> nBits,
                   static_cast<std::int64_t>(rect.top) >> nBits);
}

void CSpatialIndex::Insert(CImgNode& node, const CRect& rect) {
    const int nLevel = LevelOf(rect);
    const std::uint64_t key = KeyOf(rect, nLevel);
    CImgNode* pFirst = m_levels[nLevel].Find(key);
    m_levels[nLevel].Set(key, &node);
    node.m_pPrevInCell = nullptr;
    node.m_pNextInCell = pFirst;
    if (pFirst) {
        pFirst->m_pPrevInCell = &node;
    }
    node.m_rcIndexed = rect;
    node.m_bIndexed = true;
    m_changed.Add(rect);
}

void CSpatialIndex::Remove(CImgNode& node) {
    if (!node.m_bIndexed) {
        return;
    }
    node.m_bIndexed = false;
    m_changed.Add(node.m_rcIndexed);
    if (node.m_pNextInCell) {
        node.m_pNextInCell->m_pPrevInCell = node.m_pPrevInCell;
    }
    if (node.m_pPrevInCell) {
        node.m_pPrevInCell->m_pNextInCell = node.m_pNextInCell;
        return;
    }
    const int nLevel = LevelOf(node.m_rcIndexed);
    const std::uint64_t key = KeyOf(node.m_rcIndexed, nLevel);
    if (node.m_pNextInCell) {
        m_levels[nLevel].Set(key, node.m_pNextInCell);
    } else {
        m_levels[nLevel].Erase(key);
    }
}

void CSpatialIndex::Update(CImgNode& node, const CRect& rect) {
    if (!node.m_bIndexed) {
        return;
    }
    const int nLevel = LevelOf(rect);
    if (nLevel == LevelOf(node.m_rcIndexed) && KeyOf(rect, nLevel) == KeyOf(node.m_rcIndexed, nLevel)) {
        m_changed.Add(node.m_rcIndexed);
        m_changed.Add(rect);
        node.m_rcIndexed = rect;
        return;
    }
    Remove(node);
    Insert(node, rect);
}

void CSpatialIndex::Collect(CImgNode* pFirst, const IndexArea& area, std::vector<CImgNode*>& nodes) {
    for (CImgNode* pNode = pFirst; pNode; pNode = pNode->m_pNextInCell) {
        const CRect& rect = pNode->m_rcIndexed;
        if (rect.left < area.right && rect.right > area.left && rect.top < area.bottom &&
            rect.bottom > area.top && rect.left < rect.right && rect.top < rect.bottom) {
            nodes.push_back(pNode);
        }
    }
}

void CSpatialIndex::QueryLevel(int nLevel, const IndexArea& area, std::vector<CImgNode*>& nodes) const {
    const CCellTable& table = m_levels[nLevel];
    const int nBits = BaseBits + nLevel;
    const std::int64_t nReach = (std::int64_t{1} << nBits) - 1;
    const std::int64_t nFirstX = (area.left - nReach) >> nBits;
    const std::int64_t nFirstY = (area.top - nReach) >> nBits;
    const std::int64_t nLastX = (area.right - 1) >> nBits;
    const std::int64_t nLastY = (area.bottom - 1) >> nBits;
    // Products of cell counts could pass 64 bits; in doubles they only lose digits.
    const double dCells =
        static_cast<double>(nLastX - nFirstX + 1) * static_cast<double>(nLastY - nFirstY + 1);
    if (dCells > static_cast<double>(table.Slots().size())) {
        for (const Cell& cell : table.Slots()) {
            Collect(cell.pFirst, area, nodes);
        }
        return;
    }
    for (std::int64_t y = nFirstY; y <= nLastY; ++y) {
        for (std::int64_t x = nFirstX; x <= nLastX; ++x) {
            Collect(table.Find(CellKey(x, y)), area, nodes);
        }
    }
}

void CSpatialIndex::Query(const IndexArea& area, std::vector<CImgNode*>& nodes) const {
    nodes.clear();
    if (area.left >= area.right || area.top >= area.bottom) {
        return;
    }
    for (int nLevel = 0; nLevel < LevelCount; ++nLevel) {
        if (m_levels[nLevel].CellCount() > 0) {
            QueryLevel(nLevel, area, nodes);
        }
    }
    std::sort(nodes.begin(), nodes.end(),
              [](const CImgNode* a, const CImgNode* b) { return a->m_nStackKey < b->m_nStackKey; });
}
