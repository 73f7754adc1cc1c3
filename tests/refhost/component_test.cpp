#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <fstream>
#include <iterator>
#include <random>

#include "component/component_file.h"
#include "host/component.h"
#include "refhost_help.h"

using namespace refhost_help;

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Two objects, written out from the description of the format.
const std::string Text("PXCOMP\r\n\1\0\0\0\161\0\0\0\2\0\0\0"
                       "\5\0\0\0FRAME"                                              // at 20: name
                       "\376\377\377\377\3\0\0\0\2\0\0\0\1\0\0\0\3\0\0\0"           // at 29: rectangle, flags
                       "\2\0\0\0\1\0\0\0\30\0\0\0\6\0\0\0\1\2\3\4\5\6"              // at 49: image
                       "\1\0\0\0\1\0\0\0\10\0\0\0\1\0\0\0\7"                        // at 71: mask
                       "\1\0\0\0P\0\0\0\0\0\0\0\0\0\0\0\200\377\377\377\177\0\0\0", // at 88
                       113);
const Bytes Frame(Text.begin(), Text.end());

Bytes PixelsOf(HBUF32 hBuf) {
    const buffer_host::View view = buffer_host::Look(hBuf);
    return hBuf == 0 ? Bytes() : Bytes(view.pixels, view.Row(view.height));
}

class Component : public ::testing::Test {
  protected:
    Component() : name(testing::TempDir() + "pradix-component-" + std::to_string(getpid())) {}
    ~Component() override {
        wcDeleteComponent(hComponent);
        std::remove(name.c_str());
    }
    void Put(const Bytes& bytes) {
        std::ofstream file(name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    int Read() { return wcReadZELToComp(hComponent, name.c_str(), 0, 0, 0); }
    ComponentObjectInfo Info(int nIndex) {
        ComponentObjectInfo info{.nSize = 160};
        EXPECT_EQ(1, wcGetObjInfo(hComponent, nIndex, &info)) << nIndex;
        return info;
    }

    std::string name;
    const HCOMPONENT hComponent = wcCreateComponent();
    HBUF32 hImage = 0;
    HBUF32 hMask = 0;
};

} // namespace

TEST_F(Component, TheLibraryTellsWhatTheFileHolds) {
    Put(Frame);
    ASSERT_EQ(1, Read());
    Bytes record(160, 0xEE);
    const Bytes size = {160, 0, 0, 0};
    std::copy(size.begin(), size.end(), record.begin());

    ASSERT_EQ(1, wcGetObjInfo(hComponent, 0, reinterpret_cast<ComponentObjectInfo*>(record.data())));
    EXPECT_STREQ("FRAME", reinterpret_cast<const char*>(record.data() + 4));
    EXPECT_EQ(Bytes(Frame.begin() + 29, Frame.begin() + 45),
              Bytes(record.begin() + 136, record.begin() + 152));
    EXPECT_EQ(INT_MIN, Info(1).nWidth) << "a rectangle may be anything";
    EXPECT_STREQ("", Info(2).szName);
    ASSERT_EQ(1, wcGetObjImg_Mask(hComponent, 0, &hImage, &hMask));
    EXPECT_EQ((Bytes{1, 2, 3, 4, 5, 6}), PixelsOf(hImage));
    EXPECT_EQ(Bytes{7}, PixelsOf(hMask));
    EXPECT_TRUE(wcGetObjImg_Mask(hComponent, 1, &hImage, &hMask) == 1 && hImage == 0 && hMask == 0);
}

TEST_F(Component, WhatDoesNotFitTheFormatIsNotWritten) {
    std::vector<ComponentObject> objects;
    std::string error;
    ASSERT_TRUE(ReadComponent(Frame, objects));
    std::swap(objects[0].image, objects[0].mask);
    objects[1].name.assign(132, 'N');
    EXPECT_FALSE(WriteComponent(name.c_str(), objects, error));
    objects.erase(objects.begin());
    EXPECT_FALSE(WriteComponent(name.c_str(), objects, error));
}

TEST_F(Component, WhatIsWrittenReadsTheSame) {
    for (unsigned nSeed = 1; nSeed <= 20; nSeed++) {
        std::mt19937 random(nSeed);
        const auto below = [&random](unsigned n) { return static_cast<int>(random() % n); };
        std::vector<ComponentObject> objects(static_cast<std::size_t>(below(4)));
        for (ComponentObject& object : objects) {
            object.name.assign(static_cast<std::size_t>(below(132)), static_cast<char>(1 + below(255)));
            object.x = static_cast<int>(random());
            object.height = static_cast<int>(random());
            object.image.Reset(below(2) ? Solid(random(), 1 + below(9), 1 + below(9)) : 0);
            object.mask.Reset(below(2) ? Mask(1 + below(9), 2, {static_cast<std::uint8_t>(below(256))}) : 0);
        }
        std::string error;
        ASSERT_TRUE(WriteComponent(name.c_str(), objects, error)) << error;
        ASSERT_EQ(1, Read()) << "seed " << nSeed;
        for (std::size_t n = 0; n < objects.size(); n++) {
            const ComponentObjectInfo info = Info(static_cast<int>(n));
            wcGetObjImg_Mask(hComponent, static_cast<int>(n), &hImage, &hMask);
            EXPECT_TRUE(objects[n].name == info.szName && objects[n].x == info.nX &&
                        objects[n].height == info.nHeight &&
                        PixelsOf(objects[n].image.Get()) == PixelsOf(hImage) &&
                        PixelsOf(objects[n].mask.Get()) == PixelsOf(hMask))
                << "seed " << nSeed << ", object " << n;
        }
    }
}

TEST_F(Component, AFileThatIsCutOrDamagedIsRefusedWhole) {
    const std::size_t nBuffers = buffer_host::BufferCount();
    std::vector<ComponentObject> objects;
    for (std::size_t n = 0; n < Frame.size(); n++) {
        EXPECT_FALSE(ReadComponent({Frame.data(), n}, objects)) << "cut to " << n;
        Bytes cut(Frame.begin(), Frame.begin() + static_cast<std::ptrdiff_t>(n));
        cut.resize(std::max<std::size_t>(n, 16));
        cut[12] = static_cast<std::uint8_t>(n);
        EXPECT_FALSE(ReadComponent({cut.data(), n}, objects)) << "cut to " << n << " and saying so";
    }
    // The byte, and what it becomes: magic, version, length, count, name, flags, width, height, bits, bytes.
    for (const auto& [nAt, value] : std::initializer_list<std::pair<int, int>>{
             {7, 13},   {8, 2},    {12, 112}, {12, 114}, {15, 255}, {16, 1},   {16, 3}, {19, 128}, {20, 4},
             {20, 132}, {23, 255}, {24, 0},   {45, 1},   {45, 2},   {45, 7},   {49, 0}, {49, 1},   {50, 128},
             {52, 255}, {53, 2},   {57, 8},   {57, 32},  {61, 5},   {64, 255}, {79, 24}}) {
        Bytes damaged = Frame;
        damaged[static_cast<std::size_t>(nAt)] = static_cast<std::uint8_t>(value);
        EXPECT_FALSE(ReadComponent(damaged, objects)) << "byte " << nAt << " is " << value;
    }
    EXPECT_TRUE(objects.empty());
    EXPECT_EQ(nBuffers, buffer_host::BufferCount());
}

TEST_F(Component, WhatIsNoFileOfItsKindLeavesTheComponentAsItWas) {
    Put(Frame);
    ASSERT_EQ(1, Read());
    Put({});
    EXPECT_EQ(0, Read()) << "empty";
    std::remove(name.c_str());
    EXPECT_EQ(0, Read()) << "missing";
    ASSERT_EQ(0, mkfifo(name.c_str(), 0600));
    EXPECT_EQ(0, Read()) << "a pipe nobody writes into";
    EXPECT_EQ(0, wcReadZELToComp(hComponent, "/", 0, 0, 0)) << "a folder";
    EXPECT_STREQ("FRAME", Info(0).szName);
}

TEST_F(Component, EveryCallHasItsFaultAndItsBadArguments) {
    Put(Frame);
    ASSERT_EQ(1, Read());
    ComponentObjectInfo info{.nSize = 160};
    const auto works = [&](HCOMPONENT h) {
        const HCOMPONENT hOther = wcCreateComponent();
        wcDeleteComponent(hOther);
        return std::string(hOther != 0 ? "c" : "") + (wcReadZELToComp(h, name.c_str(), 0, 0, 0) ? "r" : "") +
               (wcGetObjInfo(h, 0, &info) ? "i" : "") + (wcGetObjImg_Mask(h, 0, &hImage, &hMask) ? "m" : "");
    };
    EXPECT_EQ("crim", works(hComponent));
    for (const auto& [pszFault, pszWorks] :
         std::initializer_list<std::pair<const char*, const char*>>{{"component-create", "rim"},
                                                                    {"component-read", "cim"},
                                                                    {"component-info", "crm"},
                                                                    {"component-image", "cri"},
                                                                    {"buffer", "cim"}}) {
        const CFaultScope fault(pszFault);
        EXPECT_EQ(pszWorks, works(hComponent)) << pszFault;
    }
    const HCOMPONENT hGone = wcCreateComponent();
    EXPECT_EQ(1, wcDeleteComponent(hGone));
    for (const HCOMPONENT h : {0, -1, hGone, hGone + 1}) {
        EXPECT_TRUE(works(h) == "c" && wcDeleteComponent(h) == 0) << h;
    }
    EXPECT_TRUE(!wcReadZELToComp(hComponent, nullptr, 0, 0, 0) && !wcGetObjInfo(hComponent, 0, nullptr) &&
                !wcGetObjInfo(hComponent, -1, &info) && !wcGetObjImg_Mask(hComponent, 2, &hImage, &hMask) &&
                !wcGetObjImg_Mask(hComponent, 0, nullptr, &hMask));
    for (const unsigned nSize : {0U, 159U, 161U}) {
        info.nSize = nSize;
        EXPECT_EQ(0, wcGetObjInfo(hComponent, 0, &info)) << nSize;
    }
}
