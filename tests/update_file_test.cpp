#include "update/update_file.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_file.h"
#include "tests/support/virtual_desktop.h"
#include "update/line_reader.h"
#include "update/line_sum.h"

namespace keplin::test {
namespace {

struct UpdateFiles : testing::Test, VirtualScreen {
    UpdateFile file{window, desktop};
    std::string path;  // of the file loaded last

    bool Load(std::string_view contents) {
        const TemporaryFile temporary(contents);
        path = temporary.Path();
        desktop.Answer = path;
        return file.LoadUpdateFile();
    }
    std::string Checksum() { return window.StatusBar2.Panels(3).Text; }
    std::string Lines() { return window.StatusBar1.Panels(2).Text; }
};

std::string Repeat(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

TEST_F(UpdateFiles, LinesEndAtACarriageReturnAndNowhereElse) {
    using Lines = std::vector<std::string>;
    const std::pair<std::string, Lines> cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r", {"a"}},
        {"a\r\n", {"a"}},
        {"a\rb\r\n", {"a", "b"}},
        {"a\nb\nc", {"a\nb\nc"}},
        {"a\r\n\nb", {"a", "\nb"}},
        {"\r\r\n\r", {"", "", ""}},
        {std::string("\0\x80\xFF\r\n:", 6), {std::string("\0\x80\xFF", 3), ":"}},
        {Repeat("x", 65535) + "\r\ny\r", {Repeat("x", 65535), "y"}},  // a block ends behind the CR
        {Repeat("x", 65534) + "\r\ny\r", {Repeat("x", 65534), "y"}},  // and here behind the LF
    };
    for (const auto& [contents, lines] : cases) {
        file.HexLines.assign(UpdateFile::kSlots, "");
        ASSERT_TRUE(Load(contents));
        EXPECT_EQ(file.LineCount, static_cast<int>(lines.size())) << contents.substr(0, 20);
        EXPECT_EQ(Lines(file.HexLines.begin(), file.HexLines.begin() + file.LineCount), lines);
    }
}

TEST_F(UpdateFiles, HoldsTenThousandAndOneLinesAndNotOneMore) {
    ASSERT_TRUE(Load(Repeat(":00000001FF\r", 10001)));
    EXPECT_EQ(file.LineCount, 10001);
    EXPECT_EQ(Lines(), " Number of Lines: 10001  ");

    window.StatusBar1.Panels(2).Text = "earlier";
    EXPECT_FALSE(Load(Repeat(":01\r", 10001) + "\r"));
    EXPECT_EQ(file.LineCount, 10001);
    EXPECT_EQ(file.HexLines[10000], ":01");
    EXPECT_EQ(Lines(), "earlier");
}

TEST_F(UpdateFiles, RefusesAFileThatWouldFillTheMemory) {
    constexpr int kLines = 4096;
    const std::string line(LineReader::kLargestFile / kLines - 1, 'x');
    const std::string largest = Repeat(line + "\r", kLines);
    EXPECT_TRUE(Load(largest));
    EXPECT_FALSE(Load(largest + "x"));
}

TEST_F(UpdateFiles, ChecksumIsTheSumOfTheDataBytesOfAllLines) {
    const std::pair<std::string, const char*> cases[] = {
        {"", "0"},
        {"x\rx\r\r", "FFFFFFFD"},
        {":", "0"},
        {":02000000ff0AF5\r", "A"},  // lower-case digits count nothing
        {":01000000aBF5\r", "B"},
        {":1a000000" + Repeat("01", 26), "10"},  // read as a count of 16
        {":03000000010203F7", "6"},
        {":05000000010203F7", "FD"},  // the record's own checksum byte, then nothing
        {":01000000010203F7", "1"},
        {":80000000" + Repeat("FF", 128), "7F80"},
        {":FF000000" + Repeat("0a0G7F:@", 63) + "7F7F3", "206F"},
        {":" + Repeat("\xFF\xB0", 20), "0"},
    };
    for (const auto& [contents, sum] : cases) {
        ASSERT_TRUE(Load(contents)) << contents;
        EXPECT_EQ(Checksum(), std::string("Checksum: ") + sum) << contents;
    }
}

TEST_F(UpdateFiles, ALineThatSumsAboveSixteenBitsEndsTheLoad) {
    EXPECT_TRUE(Load(":81000000" + Repeat("FF", 128) + "7F"));
    EXPECT_FALSE(Load("first\r:81000000" + Repeat("FF", 128) + "80\rthird"));
    EXPECT_TRUE(file.HexLines[1].starts_with(":81"));  // stored before it was summed
    EXPECT_EQ(file.HexLines[2], "");
    EXPECT_EQ(Checksum(), "Checksum: 7FFF");
}

TEST_F(UpdateFiles, ALoadThatFailsKeepsWhatWasShownBefore) {
    desktop.Answer = std::nullopt;
    EXPECT_FALSE(file.LoadUpdateFile());
    for (const char* notAFile : {"/", "/dev/zero", "/nowhere/at all", ""}) {
        desktop.Answer = notAFile;
        EXPECT_FALSE(file.LoadUpdateFile()) << notAFile;
        EXPECT_EQ(window.StatusBar1.Panels(1).Text.Get(), "") << notAFile;
    }
    desktop.FactsFail = true;
    EXPECT_FALSE(Load("x"));
    EXPECT_EQ(window.StatusBar1.Panels(1).Text.Get(), " " + path);
    EXPECT_EQ(window.StatusBar2.Panels(1).Text.Get(), "");
}

TEST_F(UpdateFiles, AReadErrorIsNoEndOfTheFile) {
    desktop.Answer = "/proc/self/mem";  // a regular file whose first byte cannot be read
    EXPECT_FALSE(file.LoadUpdateFile());
    EXPECT_EQ(window.StatusBar2.Panels(1).Text.Get(), " File Size: 0     Hex: 0");
}

TEST(LineSum, DigitsAreUpperCaseAndMissingOnesCountNothing) {
    const std::pair<const char*, int> cases[] = {{"7", 112}, {"", 0}, {"FF9", 255}, {"g1", 1}};
    for (const auto& [text, value] : cases)
        EXPECT_EQ(HexByteValue(text), value);
    EXPECT_EQ(HexDigitValue("F"), 15);
    for (const char* none : {"f", "G", "@", ":", "/", "", "1F"})
        EXPECT_EQ(HexDigitValue(none), 0);
}

}  // namespace
}  // namespace keplin::test
