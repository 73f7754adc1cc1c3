// Finds the nodes of a page by place, at a cost that does not grow with their number.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "host/img_node.h"
#include "image/changed_area.h"

/// A rectangle in document units, right and bottom exclusive, wide enough for every sum of 32-bit
/// coordinates.
struct IndexArea {
    std::int64_t left;
    std::int64_t top;
    std::int64_t right;
    std::int64_t bottom;
};

/// A hierarchical grid. A node stands in one cell, that of its top-left corner, on the level whose cells are
/// not smaller than its larger side (level 0: 128 units); so it reaches no farther than the next cell right
/// and below, and a search looks at the cells that it meets and those left and above. Cells are kept in hash
/// tables, only where there are nodes, and chain their nodes through the nodes themselves.
class CSpatialIndex {
  public:
    /// The node must not be indexed yet.
    void Insert(CImgNode& node, const CRect& rect);
    /// Does nothing for a node that is not indexed.
    void Remove(CImgNode& node);
    /// Moves an indexed node to its new place, also when only its look has changed; any other is left alone.
    void Update(CImgNode& node, const CRect& rect);
    /// Replaces `nodes` by the indexed nodes that have a part in the area, front to back. A node or area
    /// without extent has no part in anything.
    void Query(const IndexArea& area, std::vector<CImgNode*>& nodes) const;

    /// Where indexed nodes came, went or changed, in document units; whoever composes the page empties it.
    CChangedArea& Changed() { return m_changed; }

  private:
    struct Cell {
        std::uint64_t key;
        CImgNode* pFirst; ///< null for an empty slot
    };
    /// Open addressing with linear probing, at most three quarters full.
    class CCellTable {
      public:
        /// The cell's head, or null.
        CImgNode* Find(std::uint64_t key) const;
        /// Makes the cell if need be; `pFirst` is not null.
        void Set(std::uint64_t key, CImgNode* pFirst);
        /// The cell must be there.
        void Erase(std::uint64_t key);
        std::size_t CellCount() const { return m_nUsed; }
        const std::vector<Cell>& Slots() const { return m_slots; }

      private:
        std::size_t SlotOf(std::uint64_t key) const;
        std::size_t HomeOf(std::uint64_t key) const;
        void Grow();

        std::vector<Cell> m_slots;
        std::size_t m_nUsed = 0;
    };

    static constexpr int BaseBits = 7; ///< cells of level 0 are 128 units wide
    static constexpr int LevelCount = 32 - BaseBits + 1;

    static int LevelOf(const CRect& rect);
    static std::uint64_t KeyOf(const CRect& rect, int nLevel);
    /// Appends those of a cell's nodes that have a part in the area.
    static void Collect(CImgNode* pFirst, const IndexArea& area, std::vector<CImgNode*>& nodes);
    void QueryLevel(int nLevel, const IndexArea& area, std::vector<CImgNode*>& nodes) const;

    std::array<CCellTable, LevelCount> m_levels;
    CChangedArea m_changed;
};
