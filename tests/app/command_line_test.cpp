#include "command_line.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <initializer_list>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>

#include "component/component_file.h"
#include "image/picture_file.h"
#include "scenario_lines.h"

namespace {

Outcome Call(std::initializer_list<const char*> words, const std::string& input = {}) {
    std::vector<const char*> argv = {"pradix"};
    argv.insert(argv.end(), words);
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int nStatus = RunProgram(static_cast<int>(argv.size()), argv.data(), in, out, err);
    return {nStatus, out.str(), err.str()};
}

/// A file name of this process's own, because tests run side by side; the file goes with the object.
class [[nodiscard]] CTempFileScope {
  public:
    explicit CTempFileScope(const char* pszSuffix)
        : m_name(testing::TempDir() + "pradix-command-line-" + std::to_string(getpid()) + pszSuffix) {}
    ~CTempFileScope() { std::remove(m_name.c_str()); }
    CTempFileScope(const CTempFileScope&) = delete;
    CTempFileScope& operator=(const CTempFileScope&) = delete;
    const char* Name() const { return m_name.c_str(); }

  private:
    std::string m_name;
};

TEST(CommandLine, VersionIsPrinted) {
    const Outcome outcome = Call({"--version"});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "0.1.0\n");
}

TEST(CommandLine, HelpNamesTheSubcommands) {
    const Outcome outcome = Call({"--help"});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.out.find("run"), std::string::npos);
    EXPECT_NE(outcome.out.find("render"), std::string::npos);
}

TEST(CommandLine, NothingOrNonsenseIsStatusTwo) {
    EXPECT_EQ(Call({}).status, 2);
    EXPECT_EQ(Call({"paint"}).status, 2);
    EXPECT_EQ(Call({"run"}).status, 2);
    EXPECT_EQ(Call({"render", "-"}).status, 2);
}

TEST(CommandLine, DashReadsStandardInput) {
    const Outcome outcome = Call({"run", "-"}, "echo hello\nexpect page.width == 1\n");

    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "hello\n");
    EXPECT_EQ(outcome.err, "-:2: expected page.width == 1, found 720\n");
}

TEST(CommandLine, MissingFileIsOneLine) {
    const Outcome outcome = Call({"run", "no/such/file.scn"});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, "pradix: no/such/file.scn: cannot be read\n");
}

TEST(CommandLine, FolderIsNoScenario) { EXPECT_EQ(Call({"run", "."}).status, 2); }

TEST(CommandLine, RenderWritesThePageAlone) {
    const CTempFileScope picture(".png");
    const Outcome outcome =
        Call({"render", "-", picture.Name(), "--scale", "2"},
             "page 20 10\npicture A #FF0000 0 0 20 10\ntool CSelectTool\nselect A\ndump page\n");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "");

    Picture written;
    std::string error;
    ASSERT_TRUE(LoadPicture(picture.Name(), written, error)) << error;
    EXPECT_EQ(written.width, 40);
    EXPECT_EQ(written.height, 20);
    const buffer_host::View pixels = buffer_host::Look(written.image.Get());
    EXPECT_EQ(pixels.Row(0)[2], 0xFF) << "no marks are drawn over the picture's corner";
    EXPECT_EQ(pixels.Row(0)[1], 0x00);
}

TEST(CommandLine, ComponentWritesItsObjectsInOrder) {
    const CTempFileScope file(".cmp");
    const Outcome outcome =
        Call({"component", file.Name(), "a frame", "-5", "2", "6",   "4",  "#FF0000",
              "mask",      "ellipse",   "FRAME",   "0",  "0", "40",  "20", "examples/button-blue.png",
              "12",        "1",         "2",       "-3", "0", "none"});
    ASSERT_EQ(outcome.status, 0) << outcome.err;

    std::vector<ComponentObject> objects;
    ASSERT_TRUE(LoadComponent(file.Name(), objects));
    ASSERT_EQ(objects.size(), 3U);
    EXPECT_TRUE(objects[0].name == "a frame" && objects[0].x == -5 && objects[2].width == -3);
    EXPECT_EQ(buffer_host::Look(objects[0].image.Get()).pixels[2], 0xFF);
    EXPECT_EQ(buffer_host::Look(objects[0].mask.Get()).pixels[0], 0) << "the ellipse leaves the corner free";
    EXPECT_EQ(buffer_host::Look(objects[1].mask.Get()).width, 40) << "the picture's alpha, scaled with it";
    EXPECT_TRUE(!objects[2].image && !objects[2].mask);

    const Outcome wrong = Call({"component", file.Name(), "A", "1", "2"});
    EXPECT_EQ(wrong.status, 2);
    EXPECT_EQ(wrong.err.rfind("pradix: W is missing; usage: component FILE", 0), 0U) << wrong.err;
}

TEST(CommandLine, OutputThatIsNotWrittenIsStatusTwo) {
    std::ostringstream err;
    std::ostream full(nullptr);
    const char* const argv[] = {"pradix", "--version"};
    EXPECT_EQ(RunProgram(2, argv, std::cin, full, err), 2);
    EXPECT_EQ(err.str(), "pradix: the output cannot be written\n");
}

TEST(CommandLine, RenderRefusesAScaleThatLeavesNothing) {
    const CTempFileScope picture(".png");

    EXPECT_EQ(Call({"render", "-", picture.Name(), "--scale", "0"}, "page 20 10\n").status, 2);
}

} // namespace
