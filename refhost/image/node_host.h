// What the host itself asks of nodes and does to them: counts, identity, the document's bookkeeping.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/img_doc.h"
#include "host/img_node.h"
#include "host/img_node_list.h"
#include "image/changed_area.h"

/// The road to what nodes and documents keep private. None of it is recorded in the trace.
struct CNodeBookkeeping {
    /// All nodes alive in the process.
    static std::size_t LiveNodes();
    /// The document's nodes that do not stand in its object list.
    static std::size_t OffPage(const CImgDoc& doc);
    /// Every node of the document, also off the page, by ascending id.
    static std::vector<CImgNode*> NodesById(const CImgDoc& doc);
    /// The document's node of that id, or null.
    static CImgNode* NodeById(const CImgDoc& doc, std::uint32_t nId);
    /// The id of the node that this one was duplicated from, or 0.
    static std::uint32_t CopyOf(const CImgNode& node);
    /// Whether the node came from the object clipboard.
    static bool IsPasted(const CImgNode& node) { return node.m_bPasted; }
    static void SetPasted(CImgNode& node) { node.m_bPasted = true; }
    static bool IsOnPage(const CImgNode& node);
    /// The node's owner and companions as far as they live; null for none. A copy may still name companions
    /// of what it was copied from, which are none of its own.
    static CImgNode* LiveOwner(const CImgNode& node);
    static CImgNode* LiveFrame(const CImgNode& node);
    static CImgNode* LiveShadow(const CImgNode& node);
    static CImgDoc* DocumentOf(const CImgNode& node) { return node.m_pDoc; }

    /// The nodes that have a part of the rectangle (document units), front to back, into `nodes`.
    static void NodesInRect(const CImgDoc& doc, const CRect& rect, std::vector<CImgNode*>& nodes);
    /// The nodes that hold the document point, front to back, into `nodes`.
    static void NodesAtPoint(const CImgDoc& doc, const CPoint& point, std::vector<CImgNode*>& nodes);

    /// The node's own rectangle, saturated at the limits of 32 bits.
    static CRect NodeRect(const CImgNode& node);
    /// Brings the spatial index up to date after the transform block was written.
    static void PlaceChanged(CImgNode& node);
    /// Where the page's nodes came, went or changed, in document units; whoever composes the page empties it.
    static CChangedArea& Changed(const CImgDoc& doc);
    static std::int64_t StackKey(const CImgNode& node) { return node.m_nStackKey; }

    /// A node was made, or is being destroyed.
    static void Enter(const CImgNode& node);
    static void Leave(const CImgNode& node);
    /// Whether the pointer is a living node's; it may be a dead one's.
    static bool IsLive(const CImgNode* pNode);
    /// Makes a node that belongs to no document the document's; a null document leaves it alone.
    static void Register(CImgNode& node, CImgDoc* pDoc);
    /// Takes the node out of the document's lists, index and set.
    static void Unregister(CImgNode& node);
    /// Copies the plain public values but those of the transform block.
    static void CopyValues(const CImgNode& from, CImgNode& to);
    /// Copies every public field but identity and links; buffers and the frame's parameter get copies of
    /// their own. False when one fails.
    static bool CopyFields(const CImgNode& from, CImgNode& to);
};
