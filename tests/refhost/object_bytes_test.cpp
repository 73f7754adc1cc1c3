#include "clipboard/object_bytes.h"

#include <functional>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "desk/object_paste.h"
#include "host/text_node.h"
#include "refhost_help.h"
#include "text/text_effect.h"

using namespace refhost_help;

namespace {

using Bytes = std::vector<std::uint8_t>;
constexpr unsigned Seed = 27;

void PutNumber(Bytes& bytes, std::size_t nPlace, std::uint32_t nValue) {
    for (std::size_t n = 0; n < 4; ++n) {
        bytes[nPlace + n] = static_cast<std::uint8_t>(nValue >> (8 * n));
    }
}

void RepairChecksum(Bytes& bytes) {
    PutNumber(bytes, bytes.size() - 4, Crc32(ByteView(bytes).first(bytes.size() - 4)));
}

/// The objects of random pages, with everything that a node may have.
class ObjectBytes : public testing::Test {
  protected:
    COLORREF Color() { return static_cast<COLORREF>(random()); }
    int Below(int nEnd) { return static_cast<int>(random() % static_cast<unsigned>(nEnd)); }
    HBUF32 Pixels(int nBits) {
        HBUF32 hBuf = 0;
        buf32Alloc(&hBuf, nBits, 1 + Below(4), 1 + Below(4), 1, nullptr);
        buffer_host::Look(hBuf).pixels[0] = static_cast<std::uint8_t>(random());
        return hBuf;
    }
    HBUF32 SomePixels(int nBits) { return Below(2) ? Pixels(nBits) : 0; }
    CImgNode* Filled(CImgNode* pNode) {
        pNode->SetImage(Pixels(24), SomePixels(8), Below(1000) - 500, Below(1000), 0);
        pNode->m_hTransSrcImage = SomePixels(24);
        pNode->m_hTransSrcMask = SomePixels(8);
        pNode->m_hMergeBuf = SomePixels(32);
        pNode->m_tx.nOffsetFlag = Below(2);
        pNode->m_tx.nOffsetX = Below(9) - 4;
        pNode->m_tx.nMode = Below(9);
        pNode->m_fnUpdateBCAndT(Below(201) - 100, Below(201) - 100, Below(101));
        pNode->m_shadow = {Below(9) / 4.0, -1.5, 2.0, Below(101), Color()};
        pNode->m_rcFrame = CRect(1, 2, Below(90), 4);
        pNode->m_rcPlaceHolder = CRect(Below(90), 6, 7, 8);
        pNode->m_nPlaceHolderMode = Below(2);
        pNode->m_nFrameFollows = Below(2);
        pNode->m_nKeepProportions = Below(2);
        pNode->m_nPictureHeight = Below(90);
        return pNode;
    }
    CImgNode* Text() {
        auto* pNode = new CTextNode(&doc);
        pNode->m_strText = Below(2) ? "two\nlines" : "";
        pNode->m_strFontName = "Arial";
        pNode->m_nFontSize = Below(90);
        pNode->m_nItalic = Below(2);
        pNode->m_nAlignment = text_align_code::Right;
        pNode->m_crText = Color();
        CTextEffectState::Set(*pNode, static_cast<TextEffect>(Below(4)), Color());
        CTextEffectState::SetBelow(*pNode, {SomePixels(8), CPoint(Below(9), -Below(9))});
        return pNode;
    }
    CImgNode* Companion(CImgNode* pOwner, int nType) {
        CImgNode* pNode = Filled(new CImgNode(&doc));
        pNode->m_nType = nType;
        pNode->m_pOwner = pOwner;
        return pNode;
    }
    CImgNode* Object() {
        CImgNode* pNode = Filled(Below(2) ? Text() : new CImgNode(&doc));
        pNode->m_pFrameNode = Below(2) ? Companion(pNode, node_type::Frame) : nullptr;
        pNode->m_pShadowNode = Below(2) ? Companion(pNode, node_type::Shadow) : nullptr;
        return pNode;
    }
    Bytes Written(std::size_t nObjects) {
        std::vector<CImgNode*> objects(nObjects);
        std::generate(objects.begin(), objects.end(), [this] { return Object(); });
        Bytes bytes;
        EXPECT_TRUE(WriteObjects(objects, bytes));
        return bytes;
    }
    /// What is written after reading; empty when the bytes are refused, which must leave nothing behind.
    Bytes ReadAndWritten(const Bytes& bytes) {
        const std::size_t nLiving = CNodeBookkeeping::LiveNodes() + buffer_host::BufferCount();
        NodeGroups groups;
        Bytes again;
        if (!ReadObjects(bytes, doc, groups)) {
            EXPECT_EQ(nLiving, CNodeBookkeeping::LiveNodes() + buffer_host::BufferCount());
            return {};
        }
        std::vector<CImgNode*> objects;
        for (const NodeGroup& group : groups) {
            objects.push_back(group.pObject.get());
        }
        EXPECT_TRUE(WriteObjects(objects, again));
        return again;
    }

    std::mt19937 random{Seed};
    CVorDoc doc{100, 100};
};

} // namespace

TEST_F(ObjectBytes, ReadBackTheyAreWrittenAlike) {
    for (std::size_t nObjects = 1; nObjects < 60; ++nObjects) {
        const Bytes bytes = Written(nObjects);
        ASSERT_EQ(bytes, ReadAndWritten(bytes)) << nObjects << " objects, seed " << Seed;
    }
}

TEST_F(ObjectBytes, TruncatedOrAlteredAnywhereTheyAreRefused) {
    const Bytes bytes = Written(3);
    for (std::size_t n = 0; n < bytes.size(); ++n) {
        Bytes altered = bytes;
        altered[n] ^= static_cast<std::uint8_t>(1 + Below(255));
        EXPECT_TRUE(ReadAndWritten(altered).empty()) << n;
        EXPECT_TRUE(
            ReadAndWritten(Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(n))).empty())
            << n;
        // With a checksum that fits, the alteration is refused or it is another object.
        RepairChecksum(altered);
        const Bytes again = ReadAndWritten(altered);
        EXPECT_TRUE(again.empty() || again == altered) << n << ", seed " << Seed;
    }
}

TEST_F(ObjectBytes, NumbersThatDoNotFitAreRefused) {
    CImgNode* const pBox = AddPicture(doc, Solid(0xFF0000, 2, 2), 0, 0, 0);
    Bytes bytes;
    ASSERT_TRUE(WriteObjects({pBox}, bytes));
    struct Row {
        const char* pszWhat;
        std::size_t nPlace;
        std::uint32_t nValue;
        bool bTaken = false;
    };
    // The node's length stands at 24, its type at 32, its block at 36; 56 bytes of that, 12 of display
    // values, 32 of shadow settings, 32 of rectangles and 20 of flags and picture size later stand the
    // image's width, height, unit and length.
    for (const Row& row :
         {Row{"x", 36, 0x80000000, true}, Row{"version", 4, 2}, Row{"length", 8, 0}, Row{"no object", 16, 0},
          Row{"a second object", 16, 2}, Row{"very many objects", 16, 0xFFFFFFFF},
          Row{"a third companion", 20, 4}, Row{"a frame that is none", 20, 1},
          Row{"node length", 24, 0xFFFFFFFF}, Row{"a text without its attributes", 32, 32},
          Row{"widest", 44, 32767, true}, Row{"too wide", 44, 32768},
          Row{"narrower than nothing", 44, 0xFFFFFFFF}, Row{"too low", 48, 0x80000000},
          Row{"softness that is no number", 124, 0x7FF80000}, Row{"image width", 188, 3},
          Row{"image height", 192, 0xFFFFFFFE}, Row{"image unit", 196, 1}, Row{"image length", 200, 11}}) {
        Bytes altered = bytes;
        PutNumber(altered, row.nPlace, row.nValue);
        RepairChecksum(altered);
        EXPECT_EQ(row.bTaken, AreObjects(altered)) << row.pszWhat;
    }
}

TEST_F(ObjectBytes, WithoutMemoryNothingIsMade) {
    const Bytes bytes = Written(5);
    for (const char* pszFault : {"buffer", "node"}) {
        for (unsigned n = 0; n < 7; ++n) {
            const CFaultScope fault(pszFault, true, n);
            EXPECT_TRUE(ReadAndWritten(bytes).empty()) << pszFault << n;
        }
    }
}

TEST_F(ObjectBytes, ComeToThePointByTheirJointCorner) {
    constexpr LONG Most = std::numeric_limits<LONG>::max();
    constexpr LONG Least = std::numeric_limits<LONG>::min();
    struct Row {
        CPoint ptTo;
        CRect rcFirst;
        CRect rcFrame; ///< of the first
        CRect rcSecond;
        CRect rcFirstThere;
        CRect rcSecondThere;
    };
    for (const Row& row :
         {Row{{100, 200},
              {10, 10, 20, 20},
              {5, 8, 25, 22},
              {0, 50, 9, 59},
              {110, 202, 120, 212},
              {100, 242, 109, 251}},
          Row{{-7, 0}, {3, 3, 4, 4}, {0, 0, 9, 9}, {1, 1, 2, 2}, {-4, 3, -3, 4}, {-6, 1, -5, 2}},
          Row{{Most - 4, Least},
              {0, 0, 10, 10},
              {0, 0, 10, 10},
              {0, 5, 3, 8},
              {Most - 10, Least, Most, Least + 10},
              {Most - 4, Least + 5, Most - 1, Least + 8}}}) {
        NodeGroups groups(2);
        const auto box = [this](CRect rect) {
            std::unique_ptr<CImgNode> pNode(AddBox(doc, rect));
            pNode->m_tx.nOffsetFlag = 1;
            pNode->m_tx.nOffsetX = 6;
            pNode->m_tx.nX -= 6;
            return pNode;
        };
        groups[0].pObject = box(row.rcFirst);
        groups[0].pFrame = box(row.rcFrame);
        groups[0].pObject->m_pFrameNode = groups[0].pFrame.get();
        groups[1].pObject = box(row.rcSecond);

        MoveGroupsTo(groups, row.ptTo);

        EXPECT_TRUE(CNodeBookkeeping::NodeRect(*groups[0].pObject) == row.rcFirstThere) << row.ptTo.x;
        EXPECT_TRUE(CNodeBookkeeping::NodeRect(*groups[1].pObject) == row.rcSecondThere) << row.ptTo.x;
    }
}
