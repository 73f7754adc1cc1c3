#include <gtest/gtest.h>

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <string>

#include "image/picture_node.h"
#include "refhost_help.h"

using namespace refhost_help;

namespace {

using Bytes = std::string;

Bytes BigEndian(std::uint32_t value) {
    return {static_cast<char>(value >> 24), static_cast<char>(value >> 16), static_cast<char>(value >> 8),
            static_cast<char>(value)};
}

std::uint32_t Crc(const Bytes& bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = crc >> 1 ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return ~crc;
}

std::uint32_t Adler(const Bytes& bytes) {
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const char byte : bytes) {
        a = (a + static_cast<std::uint8_t>(byte)) % 65521;
        b = (b + a) % 65521;
    }
    return b << 16 | a;
}

Bytes Chunk(const Bytes& type, const Bytes& data) {
    return BigEndian(static_cast<std::uint32_t>(data.size())) + type + data + BigEndian(Crc(type + data));
}

const Bytes PngHead("\x89PNG\r\n\x1A\n", 8);

Bytes Header(std::uint32_t nWidth, std::uint32_t nHeight, int nDepth, int nType) {
    const Bytes tail{static_cast<char>(nDepth), static_cast<char>(nType), 0, 0, 0};
    return Chunk("IHDR", BigEndian(nWidth) + BigEndian(nHeight) + tail);
}

/// Rows with their filter bytes, packed without compression.
Bytes Data(const Bytes& rows) {
    const std::uint16_t n = static_cast<std::uint16_t>(rows.size());
    const std::uint16_t not_n = static_cast<std::uint16_t>(~n);
    const Bytes sizes{static_cast<char>(n), static_cast<char>(n >> 8), static_cast<char>(not_n),
                      static_cast<char>(not_n >> 8)};
    return Chunk("IDAT", Bytes("\x78\x01\x01", 3) + sizes + rows + BigEndian(Adler(rows)));
}

Bytes Png(int nWidth, int nHeight, int nDepth, int nType, const Bytes& rows, const Bytes& extra = {}) {
    return PngHead +
           Header(static_cast<std::uint32_t>(nWidth), static_cast<std::uint32_t>(nHeight), nDepth, nType) +
           extra + Data(rows) + Chunk("IEND", {});
}

/// 3 by 2 pixels of about (200, 100, 50).
Bytes Jpeg() {
    const auto table = [](char number) { return Bytes("\xFF\xDB\x00\x43", 4) + number + Bytes(64, 1); };
    const auto codes = [](char number, char symbol) {
        return Bytes("\xFF\xC4\x00\x14", 4) + number + '\x01' + Bytes(15, 0) + symbol;
    };
    return Bytes("\xFF\xD8", 2) + table(0) + table(1) +
           Bytes("\xFF\xC0\x00\x11\x08\x00\x02\x00\x03\x03\x01\x11\x00\x02\x11\x01\x03\x11\x01", 19) +
           codes(0x00, 6) + codes(0x10, 0) + codes(0x01, 9) + codes(0x11, 0) +
           Bytes("\xFF\xDA\x00\x0C\x03\x01\x00\x02\x11\x03\x11\x00\x3F\x00\x3E\x2B\xCD\x83\xFF\xD9", 20);
}

class PictureFile : public ::testing::Test {
  protected:
    PictureFile() : name("/tmp/pradix-picture-test-" + std::to_string(getpid())) {}
    ~PictureFile() override { unlink(name.c_str()); }

    bool Load(const Bytes& bytes) {
        std::ofstream(name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        picture = Picture{};
        error.clear();
        return LoadPicture(name.c_str(), picture, error);
    }
    /// A pixel of the image as 0xRRGGBB.
    std::uint32_t At(int x, int y) const {
        const std::uint8_t* p = buffer_host::Look(picture.image.Get()).Row(y) + x * 3;
        return static_cast<std::uint32_t>(p[2] << 16 | p[1] << 8 | p[0]);
    }
    int MaskAt(int x, int y) const { return buffer_host::Look(picture.mask.Get()).Row(y)[x]; }
    bool IsOneLine() const { return !error.empty() && error.find('\n') == Bytes::npos; }

    std::string name;
    Picture picture;
    std::string error;
};

} // namespace

TEST_F(PictureFile, EveryKindOfPngIsReducedToColoursAndItsAlphaToAMask) {
    const Bytes palette = Chunk("PLTE", Bytes("\x01\x02\x03\xFF\xFE\xFD", 6));
    struct Row {
        int nWidth, nDepth, nType;
        Bytes rows, extra;
        std::uint32_t last;
        int nMask; // -1 for none.
    };
    for (const Row& row : {Row{2, 8, 2, Bytes("\0\x11\x22\x33\x44\x55\x66", 7), {}, 0x445566, -1},
                           Row{2, 8, 0, Bytes("\0\x40\x80", 3), {}, 0x808080, -1},
                           Row{1, 8, 6, Bytes("\0\x11\x22\x33\x7F", 5), {}, 0x112233, 0x7F},
                           Row{1, 8, 4, Bytes("\0\x55\x10", 3), {}, 0x555555, 0x10},
                           Row{2, 1, 3, Bytes("\0\x40", 2), palette, 0xFFFEFD, -1},
                           Row{2, 1, 3, Bytes("\0\x80", 2), palette + Chunk("tRNS", "\x09"), 0x010203, 9},
                           Row{1, 16, 2, Bytes("\0\x80\x80\xFF\xFF\0\0", 7), {}, 0x80FF00, -1}}) {
        ASSERT_TRUE(Load(Png(row.nWidth, 1, row.nDepth, row.nType, row.rows, row.extra))) << error;
        EXPECT_EQ(row.nWidth, picture.width);
        EXPECT_EQ(1, picture.height);
        EXPECT_EQ(row.last, At(row.nWidth - 1, 0));
        ASSERT_EQ(row.nMask >= 0, static_cast<bool>(picture.mask)) << row.nType;
        if (picture.mask) {
            EXPECT_EQ(row.nMask, MaskAt(row.nWidth - 1, 0));
        }
    }
}

TEST_F(PictureFile, AJpegHasNoMaskAndAFailureAfterItKeepsIt) {
    ASSERT_TRUE(Load(Jpeg())) << error;
    EXPECT_FALSE(LoadPicture("/nowhere/at-all.png", picture, error));

    EXPECT_EQ(3, picture.width);
    EXPECT_EQ(2, picture.height);
    EXPECT_FALSE(picture.mask);
    EXPECT_NEAR(200, At(2, 1) >> 16, 2);
    EXPECT_NEAR(100, At(2, 1) >> 8 & 0xFF, 2);
    EXPECT_NEAR(50, At(2, 1) & 0xFF, 2);
}

TEST_F(PictureFile, EveryTruncationIsAnErrorOfOneLineThatLeaksNothing) {
    const Bytes png = Png(2, 2, 8, 6, Bytes("\0\1\2\3\4\5\6\7\x08\0\1\2\3\4\5\6\7\x08", 18));
    const Bytes jpeg = Jpeg();
    const std::size_t nBefore = buffer_host::BufferCount();
    for (const Bytes& whole : {png, jpeg}) {
        // A JPEG without its closing mark is complete as far as its pixels go.
        for (std::size_t nLength = 0; nLength + 5 < whole.size(); ++nLength) {
            EXPECT_FALSE(Load(whole.substr(0, nLength))) << nLength << " of " << whole.size();
            EXPECT_TRUE(IsOneLine()) << error;
        }
    }
    EXPECT_EQ(nBefore, buffer_host::BufferCount());
}

TEST_F(PictureFile, DamageIsToldAndHarmless) {
    const Bytes png = Png(2, 1, 8, 2, Bytes("\0\x11\x22\x33\x44\x55\x66", 7));
    for (std::size_t at = 8; at < png.size(); ++at) {
        Bytes damaged = png;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x5A);
        if (!Load(damaged)) {
            EXPECT_TRUE(IsOneLine()) << at;
        }
    }
    Bytes badSum = png;
    badSum[PngHead.size() + 8 + 2] ^= 1;
    EXPECT_FALSE(Load(badSum));
}

TEST_F(PictureFile, MissingEmptyAndOtherFilesAreToldApart) {
    EXPECT_FALSE(LoadPicture("/nowhere/at-all.png", picture, error));
    EXPECT_EQ("No such file or directory", error);
    EXPECT_FALSE(LoadPicture("/tmp", picture, error));
    EXPECT_TRUE(IsOneLine());
    EXPECT_FALSE(Load(""));
    EXPECT_EQ("the file is empty", error);
    EXPECT_FALSE(Load("GIF89a, and what else there is"));
    EXPECT_EQ("neither a PNG nor a JPEG picture", error);
}

TEST_F(PictureFile, SidesAbove32767AreRefusedFromTheHeader) {
    EXPECT_FALSE(Load(PngHead + Header(32768, 1, 8, 2) + Data(Bytes(4, 0)) + Chunk("IEND", {})));
    EXPECT_EQ("the picture has a side above 32767 pixels", error);

    Bytes jpeg = Jpeg();
    const std::size_t atHeight = jpeg.find("\xFF\xC0") + 5;
    jpeg[atHeight] = '\x80';
    EXPECT_FALSE(Load(jpeg));
    EXPECT_EQ("the picture has a side above 32767 pixels", error);
}

TEST_F(PictureFile, NoMemoryIsAnErrorToo) {
    for (unsigned nAfter = 0; nAfter < 3; ++nAfter) {
        const CFaultScope fault("buffer", false, nAfter);
        EXPECT_FALSE(Load(Png(1, 1, 8, 6, Bytes("\0\x11\x22\x33\x7F", 5))));
        EXPECT_EQ("not enough memory for the picture", error);
    }
}

TEST_F(PictureFile, WhatIsSavedIsLoadedAgainInItsOwnDepth) {
    const std::uint32_t pixels[6] = {0x010203, 0xFFEEDD, 0xDEAD, 0x445566, 0x000000, 0xDEAD};
    const CBufferPtr mask(Mask(1, 1, {0x42}));

    ASSERT_TRUE(SavePng(name.c_str(), pixels, 2, 2, 3, error)) << error;
    ASSERT_TRUE(LoadPicture(name.c_str(), picture, error)) << error;
    EXPECT_EQ(0xFFEEDDu, At(1, 0));
    EXPECT_EQ(0x445566u, At(0, 1));
    ASSERT_TRUE(SaveBufferPng(name.c_str(), picture.image.Get(), error));
    ASSERT_TRUE(LoadPicture(name.c_str(), picture, error)) << error;
    EXPECT_EQ(0x445566u, At(0, 1));
    ASSERT_TRUE(SaveBufferPng(name.c_str(), mask.Get(), error) && LoadPicture(name.c_str(), picture, error));
    EXPECT_EQ(0x424242u, At(0, 0));
    EXPECT_FALSE(SaveBufferPng(name.c_str(), 0, error));
    EXPECT_FALSE(SavePng("/nowhere/at-all.png", pixels, 2, 2, 3, error));
    EXPECT_TRUE(IsOneLine());
}

TEST_F(PictureFile, WhatCannotBeWrittenLeavesWhatHadTheName) {
    const std::string link = name + "-link";
    Load(Png(1, 1, 8, 2, Bytes("\0\x11\x22\x33", 4)));
    ASSERT_EQ(0, symlink(name.c_str(), link.c_str()));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit former{};
    getrlimit(RLIMIT_FSIZE, &former);
    const rlimit full{8, former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    EXPECT_FALSE(SaveBufferPng(name.c_str(), picture.image.Get(), error));
    setrlimit(RLIMIT_FSIZE, &former);
    for (const std::string& file : {link, Bytes("/dev/null")}) {
        EXPECT_TRUE(!SaveBufferPng(file.c_str(), picture.image.Get(), error) && IsOneLine()) << file;
    }
    unlink(link.c_str());
    EXPECT_TRUE(LoadPicture(name.c_str(), picture, error) && At(0, 0) == 0x112233u) << error;
}

TEST_F(PictureFile, AScaledSolidStaysSolid) {
    Picture solid;
    ASSERT_TRUE(SolidPicture(RGB(200, 100, 50), 7, 5, solid));
    for (const CSize& size : {CSize(3, 2), CSize(20, 31), CSize(1, 1)}) {
        ASSERT_TRUE(ScalePicture(solid, size.cx, size.cy, picture));
        EXPECT_EQ(size.cx, picture.width);
        for (int i = 0; i < size.cx * size.cy; ++i) {
            ASSERT_EQ(0xC86432u, At(i % size.cx, i / size.cx)) << size.cx << " at " << i;
        }
    }
    EXPECT_FALSE(ScalePicture(solid, 0, 5, picture));
    EXPECT_FALSE(ScalePicture(solid, 32768, 5, picture));
}

TEST_F(PictureFile, TheColourOfTransparentPixelsDoesNotBleed) {
    Picture two;
    two.image.Reset(Image(2, 1, {0xFF0000, 0x00FF00}));
    two.mask.Reset(Mask(2, 1, {255, 0}));
    two.width = 2;
    two.height = 1;

    ASSERT_TRUE(ScalePicture(two, 1, 1, picture));

    EXPECT_EQ(0xFF0000u, At(0, 0));
    EXPECT_NEAR(128, MaskAt(0, 0), 2);
}

TEST_F(PictureFile, AnEllipseHoldsThePixelsWhoseCentresLieInside) {
    ASSERT_TRUE(SolidPicture(0, 6, 4, picture));
    ASSERT_TRUE(AddEllipseMask(picture));

    // Half axes 3 and 2: row 0 has y = -1.5, so |x| <= 3 * sqrt(1 - 0.5625) = 1.98; row 1 has y = -0.5, |x|
    // <= 2.90.
    for (int x = 0; x < 6; ++x) {
        EXPECT_EQ(x >= 1 && x <= 4 ? 255 : 0, MaskAt(x, 0)) << x;
        EXPECT_EQ(MaskAt(x, 0), MaskAt(x, 3)) << x;
        EXPECT_EQ(255, MaskAt(x, 1)) << x;
    }
}

TEST_F(PictureFile, APlacedPictureOfAnotherSizeKeepsItsOwnPixels) {
    CVorDoc doc(100, 100);
    ASSERT_TRUE(SolidPicture(RGB(1, 2, 3), 4, 4, picture));
    CImgNode* pScaled = MakePictureNode(doc, std::move(picture), CRect(10, 20, 18, 22));
    ASSERT_NE(nullptr, pScaled);
    EXPECT_EQ(8, buffer_host::Look(pScaled->m_hImage).width);
    EXPECT_EQ(4, buffer_host::Look(pScaled->m_hTransSrcImage).width);
    EXPECT_EQ(4, pScaled->m_nPictureWidth);

    ASSERT_TRUE(SolidPicture(RGB(1, 2, 3), 5, 5, picture));
    ASSERT_TRUE(SetNodePicture(*pScaled, std::move(picture), CRect(0, 0, 5, 5)));
    EXPECT_EQ(0, pScaled->m_hTransSrcImage);
    EXPECT_EQ(5, buffer_host::Look(pScaled->m_hImage).width);
}

TEST_F(PictureFile, APictureThatCannotBePlacedLeavesNoNode) {
    CVorDoc doc(100, 100);
    const std::size_t nNodes = CNodeBookkeeping::LiveNodes();
    ASSERT_TRUE(SolidPicture(0, 4, 4, picture));

    EXPECT_EQ(nullptr, MakePictureNode(doc, std::move(picture), CRect(0, 0, 0, 5)));
    const CFaultScope fault("node");
    EXPECT_EQ(nullptr, MakePictureNode(doc, Picture{}, CRect(0, 0, 5, 5)));
    EXPECT_EQ(nNodes, CNodeBookkeeping::LiveNodes());
}
