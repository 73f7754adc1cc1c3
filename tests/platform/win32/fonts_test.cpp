#include "platform/faults.h"

#include "text_stage.h"

TEST(Fonts, FamiliarFacesAndMissingOnesHaveTheirStandIns) {
    const struct {
        const char* asked;
        const char* picked;
    } rows[] = {
        {"Arial", "Liberation Sans"},
        {"Times New Roman", "Liberation Serif"},
        {"Courier New", "Liberation Mono"},
        {"Liberation Serif", "Liberation Serif"},
        {"DejaVu Sans Mono", "DejaVu Sans Mono"},
        {"No Such Face", "Liberation Sans"},
        {"", "Liberation Sans"},
    };
    TextStage stage;
    for (const auto& row : rows) {
        stage.Use({.face = row.asked});
        EXPECT_EQ(stage.Face(), row.picked) << row.asked;
    }
}

TEST(Fonts, FaceNamesAreBytesOfTheCodePage) {
    const CodePageScope japanese(932);
    TextStage stage;
    stage.Use({.face = "\x82\x6C\x82\x72 \x83\x53\x83\x56\x83\x62\x83\x4E"});

    EXPECT_EQ(stage.Face(), "IPAGothic");
}

TEST(Fonts, FaceNameIsCutWithItsZero) {
    TextStage stage;
    char face[6] = {};

    EXPECT_EQ(GetTextFaceA(stage.Dc(), 0, nullptr), 16);
    EXPECT_EQ(GetTextFaceA(stage.Dc(), 6, face), 6);
    EXPECT_STREQ(face, "Liber");
}

// The face rises 1854 and descends 434 of 2048 units: the ascent is rounded up, both together to nearest.
TEST(Fonts, NegativeHeightIsTheEmAndPositiveTheCell) {
    const struct {
        int height;
        LONG ascent;
        LONG descent;
        LONG em;
    } rows[] = {{-16, 15, 3, 16}, {-100, 91, 21, 100}, {0, 11, 2, 12}, {19, 16, 3, 17}, {20, 17, 3, 18}};
    TextStage stage;
    for (const auto& row : rows) {
        stage.Use({.height = row.height});
        const TEXTMETRICA metrics = stage.Metrics();
        EXPECT_EQ(metrics.tmAscent, row.ascent) << row.height;
        EXPECT_EQ(metrics.tmDescent, row.descent) << row.height;
        EXPECT_EQ(metrics.tmHeight - metrics.tmInternalLeading, row.em) << row.height;
    }
}

// Of 2048 units an A has 1366, an i 455, a W 1933, a blank 569; in bold an i has 569.
TEST(Fonts, AdvancesAreRoundedToPixels) {
    TextStage stage;
    EXPECT_EQ(stage.Extent("A"), 11);
    EXPECT_EQ(stage.Extent("i"), 4);
    EXPECT_EQ(stage.Extent("W"), 15);
    EXPECT_EQ(stage.Extent(" "), 4);

    stage.Use({.height = -100, .weight = FW_BOLD});
    EXPECT_EQ(stage.Extent("i"), 28);
}

TEST(Fonts, SelectedOnesStayAndTellWhatTheyWereMadeOf) {
    TextStage stage;
    const HFONT font =
        CreateFontA(-20, 0, 0, 0, FW_BOLD, TRUE, FALSE, TRUE, SHIFTJIS_CHARSET, 0, 0, 0, 0, "Arial");
    const HGDIOBJ before = SelectObject(stage.Dc(), font);
    EXPECT_FALSE(DeleteObject(font));
    EXPECT_EQ(GetTextCharsetInfo(stage.Dc(), nullptr, 0), SHIFTJIS_CHARSET);

    LOGFONTA told{};
    EXPECT_EQ(GetObjectA(font, sizeof told, &told), 60);
    EXPECT_EQ(told.lfHeight, -20);
    EXPECT_EQ(told.lfWeight, 700);
    EXPECT_EQ(told.lfItalic, 1);
    EXPECT_EQ(told.lfStrikeOut, 1);
    EXPECT_STREQ(told.lfFaceName, "Arial");
    EXPECT_EQ(SelectObject(stage.Dc(), before), font);
    EXPECT_TRUE(DeleteObject(font));
}

TEST(Fonts, ArmedFaultFailsThem) {
    platform::ArmFault("font", true, 0);
    EXPECT_EQ(CreateFontA(-20, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
    platform::ClearFaults();
    EXPECT_EQ(CreateFontIndirectA(nullptr), nullptr);
}

TEST(Fonts, ExtremeSizesMeasureAndDrawWithoutHarm) {
    TextStage stage;
    for (const int height : {INT32_MIN, -20000, -5000, -1, 1, 20000, INT32_MAX}) {
        stage.Use({.height = height});
        stage.Write(0, 0, std::string(300, 'W'));
        EXPECT_GE(stage.Extent("W"), 1) << height;
        EXPECT_GE(stage.Metrics().tmHeight, 1) << height;
        EXPECT_LE(stage.Extent(std::string(200000, 'W')), 1 << 30) << height;
    }
}
