// The line reader, its text helpers and the pattern matcher.
#include "assets/line_reader.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "asset_files.h"

namespace ombrel {
namespace {

using Words = std::vector<std::string>;
using Floats = std::vector<float>;
using Ints = std::vector<std::int32_t>;

Words WordsOf(const LineReader& r) {
    return Words(r.words, r.words + r.wordCount);
}
Floats FloatsOf(const LineReader& r) {
    return Floats(r.floats, r.floats + r.floatCount);
}
Ints IntsOf(const LineReader& r) {
    return Ints(r.ints, r.ints + r.intCount);
}

// --- patterns ----------------------------------------------------------------------------------

TEST(Match, LiteralAndAnyWord) {
    LineReader r;
    EXPECT_EQ(match(&r, "Name cube", "['Name'] [s>0]"), 1);
    EXPECT_EQ(WordsOf(r), (Words{"Name", "cube"}));
    EXPECT_EQ(r.floatCount, 0);
    EXPECT_EQ(r.intCount, 0);
}

TEST(Match, AxisLineWithOtherWordsAround) {
    const char* const pattern = "['x'] ['axis'] [f] [f] [f]";
    for (const char* const line :
         {"x axis 1.0 0.0 0.0", "the x axis 1.0 0.0 0.0", "x axis 1.0 0.0 0.0 and more",
          "a b x axis 1.0 0.0 0.0 9 9", "\t x   axis\t1.0  0.0 0.0\r\n", "x x axis 1.0 0.0 0.0"}) {
        LineReader r;
        EXPECT_EQ(match(&r, line, pattern), 1) << line;
        EXPECT_EQ(FloatsOf(r), (Floats{1.0F, 0.0F, 0.0F})) << line;
    }
}

TEST(Match, IntegerMustScanCompletely) {
    LineReader r;
    EXPECT_EQ(match(&r, "12a", "[i]"), 0);
    EXPECT_EQ(match(&r, "1.5", "[i]"), 0);
    EXPECT_EQ(match(&r, "-", "[i]"), 1);
    EXPECT_EQ(IntsOf(r), (Ints{0}));
    EXPECT_EQ(match(&r, "+17", "[i]"), 1);
    EXPECT_EQ(IntsOf(r), (Ints{17}));
}

TEST(Match, TwoFloatsAgainstOneNumberFails) {
    LineReader r;
    EXPECT_EQ(match(&r, "1.5", "[f] [f]"), 0);
    EXPECT_EQ(match(&r, "1.5 ", "[f] [f]"), 0);
    EXPECT_EQ(match(&r, "1.5 x", "[f] [f]"), 0);
}

TEST(Match, LiteralIsCaseSensitive) {
    LineReader r;
    EXPECT_EQ(match(&r, "name cube", "['Name'] [s>0]"), 0);
    EXPECT_EQ(match(&r, "Names cube", "['Name'] [s>0]"), 0);
    EXPECT_EQ(match(&r, "Nam cube", "['Name'] [s>0]"), 0);
}

TEST(Match, MalformedPatternsFail) {
    LineReader r;
    ASSERT_EQ(match(&r, "7", "[i]"), 1);
    for (const char* const pattern :
         {"['Name' ]", "['Name'", "['Name", "['Name'x]", "[f",   "[f ]",  "[ff]",
          "[i",        "[s]",     "[s",     "[s>",       "[s>1", "[s!1]", "[s>-1]",
          "[s>+1]",    "[s> 1]",  "[",      "[]",        "[x]",  "Name",  "f]"}) {
        EXPECT_EQ(match(&r, "Name 1 2", pattern), 0) << pattern;
    }
    EXPECT_EQ(IntsOf(r), (Ints{7})) << "a malformed pattern leaves the results alone";
}

TEST(Match, NullAndEmptyArgumentsFail) {
    LineReader r;
    EXPECT_EQ(match(&r, nullptr, "[i]"), 0);
    EXPECT_EQ(match(&r, "", "[i]"), 0);
    EXPECT_EQ(match(&r, "1", nullptr), 0);
    EXPECT_EQ(match(&r, "1", ""), 0);
    EXPECT_EQ(match(&r, "   ", "[i]"), 0);
    EXPECT_EQ(match(&r, " \t\n", "[s>0]"), 0);
}

TEST(Match, PatternOfBlanksMatchesAnyLine) {
    LineReader r;
    EXPECT_EQ(match(&r, "anything", "  "), 1);
    EXPECT_EQ(r.wordCount, 0);
}

TEST(Match, WordLengths) {
    LineReader r;
    EXPECT_EQ(match(&r, "abc", "[s=3]"), 1);
    EXPECT_EQ(match(&r, "abc", "[s=2]"), 0);
    EXPECT_EQ(match(&r, "abc", "[s<4]"), 1);
    EXPECT_EQ(match(&r, "abc", "[s<3]"), 0);
    EXPECT_EQ(match(&r, "abc", "[s>2]"), 1);
    EXPECT_EQ(match(&r, "abc", "[s>3]"), 0);
    EXPECT_EQ(match(&r, "abc", "[s>]"), 1) << "no digits mean 0";
    EXPECT_EQ(match(&r, "abc", "[s=]"), 0);
    EXPECT_EQ(match(&r, "abc", "[s<99999999999999999999]"), 1);
    EXPECT_EQ(match(&r, "ab abc abcd", "[s=3]"), 1);
    EXPECT_EQ(WordsOf(r), (Words{"abc"}));
}

TEST(Match, TokensNeedNoBlankBetweenThem) {
    LineReader r;
    EXPECT_EQ(match(&r, "mat 3", "['mat'][i]"), 1);
    EXPECT_EQ(IntsOf(r), (Ints{3}));
}

TEST(R15_Captures, OfAFailedAttemptStayInFront) {
    LineReader r;
    EXPECT_EQ(match(&r, "1 2 x 3 4 5", "[f] [f] [f]"), 1);
    EXPECT_EQ(FloatsOf(r), (Floats{1, 2, 2, 3, 4, 5}));
    EXPECT_EQ(match(&r, "Name Name a", "['Name'] ['Name'] [s=1]"), 1);
    EXPECT_EQ(match(&r, "a a b", "['a'] ['b']"), 1);
    EXPECT_EQ(WordsOf(r), (Words{"a", "a", "b"}));
}

TEST(Match, CountsStartAnewButOldValuesStay) {
    LineReader r;
    ASSERT_EQ(match(&r, "1 2 3 4 5 6", "[i] [i] [i] [i] [i] [i]"), 1);
    EXPECT_EQ(match(&r, "9 x", "[i] [i]"), 0);
    EXPECT_EQ(IntsOf(r), (Ints{9}));
    EXPECT_EQ(r.ints[1], 2);
    EXPECT_EQ(r.ints[5], 6);
}

TEST(Match, RestartBeginsOneWordAfterTheFirst) {
    LineReader r;
    EXPECT_EQ(match(&r, "a a a b", "['a'] ['a'] ['b']"), 1);
    EXPECT_EQ(match(&r, "a b a c", "['a'] ['c']"), 1);
    EXPECT_EQ(match(&r, "a b", "['b'] ['a']"), 0);
}

TEST(Match, MoreThan32CapturesAreNotStored) {
    LineReader r;
    std::string line;
    for (int i = 0; i < 40; ++i) {
        line += std::to_string(i) + " x ";
    }
    line += "100 101";
    // Every attempt keeps one integer before it fails on x.
    EXPECT_EQ(match(&r, line.c_str(), "[i] [i]"), 1);
    ASSERT_EQ(r.intCount, kMaxTokens);
    for (int i = 0; i < kMaxTokens; ++i) {
        EXPECT_EQ(r.ints[i], i);
    }
    std::string words;
    for (int i = 0; i < 500; ++i) {
        words += "a ";
    }
    EXPECT_EQ(match(&r, words.c_str(), "['a'] ['b']"), 0);
    EXPECT_EQ(r.wordCount, kMaxTokens);
    EXPECT_EQ(match(&r, words.c_str(), "[s=1] [f]"), 0);
    EXPECT_EQ(r.wordCount, kMaxTokens);
}

TEST(Match, ThirtyTwoTokensFitAndNoMore) {
    LineReader r;
    std::string pattern;
    std::string line;
    for (int i = 0; i < 32; ++i) {
        pattern += "[f] ";
        line += "2.5 ";
    }
    EXPECT_EQ(match(&r, line.c_str(), pattern.c_str()), 1);
    EXPECT_EQ(r.floatCount, 32);
    line += "2.5";
    pattern += "[f]";
    EXPECT_EQ(match(&r, line.c_str(), pattern.c_str()), 0);
}

TEST(Match, OverlongWordsCountAsCut) {
    LineReader r;
    const std::string word(200, 'w');
    EXPECT_EQ(match(&r, (word + " 5").c_str(), "[s>0] [i]"), 1);
    EXPECT_EQ(WordsOf(r), (Words{std::string(79, 'w')}));
    EXPECT_EQ(match(&r, word.c_str(), "[s=79]"), 1);
    EXPECT_EQ(match(&r, word.c_str(), "[s>79]"), 0);
    EXPECT_EQ(match(&r, word.c_str(), ("['" + word + "']").c_str()), 1) << "both are cut";
    // A number of 100 digits is cut to 79 of them.
    EXPECT_EQ(match(&r, ("0." + std::string(100, '5')).c_str(), "[f]"), 1);
    EXPECT_EQ(FloatsOf(r), (Floats{0.5555555555555556F}));
}

TEST(Match, OverlongLinesCountAsCut) {
    LineReader r;
    const std::string line = std::string(1021, ' ') + "12 13";
    EXPECT_EQ(match(&r, line.c_str(), "[i]"), 1);
    EXPECT_EQ(IntsOf(r), (Ints{12}));
    EXPECT_EQ(match(&r, line.c_str(), "[i] [i]"), 0);
}

TEST(Match, ReadsItsOwnLine) {
    LineReader r;
    std::strcpy(r.line, "World Vertices 4");
    EXPECT_EQ(match(&r, r.line, "['World'] ['Vertices'] [i]"), 1);
    EXPECT_EQ(IntsOf(r), (Ints{4}));
    EXPECT_EQ(WordsOf(r), (Words{"World", "Vertices"}));
}

TEST(Match, ANumberEqualToTheFailureValueIsOne) {
    LineReader r;
    EXPECT_EQ(match(&r, "-2147483648", "[i]"), 0);
    EXPECT_EQ(match(&r, "-2147483647", "[i]"), 1);
    EXPECT_EQ(match(&r, "1.1754944e-38", "[f]"), 0);
    EXPECT_EQ(match(&r, "-1.1754944e-38", "[f]"), 1);
}

// --- numbers -----------------------------------------------------------------------------------

TEST(ScanInt, WholeTextsOnly) {
    EXPECT_EQ(scanInt("12"), 12);
    EXPECT_EQ(scanInt("  -12"), -12);
    EXPECT_EQ(scanInt("+0"), 0);
    EXPECT_EQ(scanInt("2147483647"), INT32_MAX);
    EXPECT_EQ(scanInt("99999999999"), INT32_MAX);
    for (const char* const text : {"12a", "12 ", "a", "--1", "+-1", "1.0", "0x10", "1e3", "\x80"}) {
        EXPECT_EQ(scanInt(text), kNotAnInt) << text;
    }
    EXPECT_EQ(scanInt(nullptr), kNotAnInt);
}

TEST(ScanFloat, WholeTextsOnly) {
    EXPECT_EQ(scanFloat("1.5"), 1.5);
    EXPECT_EQ(scanFloat("  -.5"), -0.5);
    EXPECT_EQ(scanFloat("5."), 5.0);
    EXPECT_EQ(scanFloat("1e3"), 1000.0);
    EXPECT_EQ(scanFloat("1E-2"), static_cast<double>(0.01F));
    EXPECT_EQ(scanFloat("+7"), 7.0);
    EXPECT_EQ(scanFloat("1e"), 1.0);
    EXPECT_EQ(scanFloat("1e+"), 1.0);
    for (const char* const text : {"1.5x", "1.5 ", "x", "--1", "1.2.3", "1e2e3", "1e2.5", "inf",
                                   "nan", "0x1p3", "1,5", "1.5f"}) {
        EXPECT_EQ(scanFloat(text), kNotAFloat) << text;
    }
    EXPECT_EQ(scanFloat(nullptr), kNotAFloat);
}

TEST(R16_Digitless, TextsThatScanWithoutDigitsAreZero) {
    EXPECT_EQ(scanInt(""), 0);
    EXPECT_EQ(scanInt("-"), 0);
    EXPECT_EQ(scanInt("+"), 0);
    for (const char* const text : {"", "-", "+", ".", "-.", "e5", "E", "d7", ".e", "-e-"}) {
        EXPECT_EQ(scanFloat(text), 0.0) << text;
    }
    EXPECT_EQ(scanFloat("2d3"), 2.0);
    EXPECT_EQ(scanFloat("2.5D+10"), 2.5);
}

TEST(ScanFloat, SameInEveryRoundingMode) {
    const ScopedFloatMode chop(FloatMode::Chop);
    EXPECT_EQ(scanFloat("0.1"), static_cast<double>(0.1F));
    LineReader r;
    EXPECT_EQ(match(&r, "0.1 0.7 16777217", "[f] [f] [f]"), 1);
    EXPECT_EQ(FloatsOf(r), (Floats{0.1F, 0.7F, 16777216.0F}));
}

// --- text helpers ------------------------------------------------------------------------------

TEST(ReplaceChars, CopiesAndCounts) {
    char out[32];
    EXPECT_EQ(replaceChars("<1,2>", out, ",<>", ' ', 1), 3);
    EXPECT_STREQ(out, " 1 2 ");
    EXPECT_EQ(replaceChars("abcABC", out, "b", '.', 1), 1);
    EXPECT_STREQ(out, "a.cABC");
    EXPECT_EQ(replaceChars("abcABC", out, "b", '.', 0), 2);
    EXPECT_STREQ(out, "a.cA.C");
    EXPECT_EQ(replaceChars("abcABC", out, "B", '.', 7), 2);
    EXPECT_EQ(replaceChars("azAZ`{@[", out, "zA", '.', 0), 4) << "the first and the last letter";
    EXPECT_STREQ(out, "....`{@[");
    EXPECT_EQ(replaceChars("aab", out, "aa", 'x', 1), 2) << "a character counts once";
    EXPECT_STREQ(out, "xxb");
}

TEST(ReplaceChars, InPlace) {
    char text[] = "\"plain color\"";
    EXPECT_EQ(replaceChars(text, text, "\"", ' ', 1), 2);
    EXPECT_STREQ(text, " plain color ");
}

TEST(ReplaceChars, NullAndEmptyArguments) {
    char out[8] = "old";
    EXPECT_EQ(replaceChars(nullptr, out, "a", 'x', 1), 0);
    EXPECT_EQ(replaceChars("", out, "a", 'x', 1), 0);
    EXPECT_STREQ(out, "old") << "nothing is written";
    EXPECT_EQ(replaceChars("abc", nullptr, "a", 'x', 1), 0);
    EXPECT_EQ(replaceChars("abc", out, nullptr, 'x', 1), 0);
    EXPECT_STREQ(out, "abc");
    EXPECT_EQ(replaceChars("def", out, "", 'x', 1), 0);
    EXPECT_STREQ(out, "def");
}

TEST(Trim, BothEnds) {
    char text[] = " \t a b \r\n";
    EXPECT_EQ(trimLeft(text), text);
    EXPECT_STREQ(text, "a b \r\n");
    EXPECT_EQ(trimRight(text), text);
    EXPECT_STREQ(text, "a b");
    char blanks[] = " \v\f\n";
    EXPECT_STREQ(trimRight(blanks), "");
    char empty[] = "";
    EXPECT_STREQ(trimLeft(empty), "");
    EXPECT_STREQ(trimRight(empty), "");
    EXPECT_EQ(trimLeft(nullptr), nullptr);
    EXPECT_EQ(trimRight(nullptr), nullptr);
    char high[] = "\xA0";
    EXPECT_STREQ(trimLeft(high), "\xA0") << "only the six blanks of the C locale";
}

// --- reading -----------------------------------------------------------------------------------

class ReadLine : public DataFolderTest {
protected:
    ~ReadLine() override { reset(&reader); }

    // All lines that the options let through.
    Words Read(const std::string& bytes, std::uint32_t options) {
        EXPECT_TRUE(open(&reader, Write("lines.txt", bytes).c_str()));
        Words lines;
        while (readLine(&reader, options) != nullptr) {
            lines.emplace_back(reader.line);
            EXPECT_EQ(reader.length, static_cast<std::int32_t>(lines.back().size()));
        }
        EXPECT_EQ(reader.lineCount, static_cast<std::int32_t>(lines.size()));
        return lines;
    }

    LineReader reader;
};

TEST_F(ReadLine, AsItIsWithoutOptions) {
    EXPECT_EQ(Read(" a \n\n b", 0), (Words{" a \n", "\n", " b"}));
}

TEST_F(ReadLine, BlankLinesAreSkippedWithOption1) {
    EXPECT_EQ(Read("\n  \n \t a b \n\r\n\nc\n  ", READ_SKIP_BLANK), (Words{"a b \n", "c\n"}));
}

TEST_F(ReadLine, TrimAlone) {
    EXPECT_EQ(Read(" a \n\n b\r\n", READ_TRIM), (Words{"a", "", "b"}));
}

TEST_F(ReadLine, SkipAndTrim) {
    EXPECT_EQ(Read("\n  x y \r\n \r\n\tz", READ_SKIP_BLANK | READ_TRIM), (Words{"x y", "z"}));
}

TEST_F(ReadLine, CommentsOnlyTogetherWithOption1) {
    const std::string text = "# one\n  # two\na # rest\nb\n";
    EXPECT_EQ(Read(text, READ_SKIP_BLANK | READ_TRIM | READ_COMMENTS), (Words{"a", "b"}));
    EXPECT_EQ(Read(text, READ_TRIM | READ_COMMENTS), (Words{"# one", "# two", "a # rest", "b"}));
    EXPECT_EQ(Read(text, READ_SKIP_BLANK | READ_TRIM), (Words{"# one", "# two", "a # rest", "b"}));
}

TEST_F(ReadLine, CommentMarkerCanBeChangedUntilReset) {
    ASSERT_TRUE(open(&reader, Write("m.txt", "// x\na // y\n#b\n").c_str()));
    std::strcpy(reader.commentMarker, "//");
    EXPECT_STREQ(readLine(&reader, 21), "a");
    EXPECT_STREQ(readLine(&reader, 21), "#b");
    reset(&reader);
    EXPECT_STREQ(reader.commentMarker, "#");
}

TEST_F(ReadLine, AnEmptyMarkerMarksNothing) {
    ASSERT_TRUE(open(&reader, Write("m.txt", "# x\n").c_str()));
    reader.commentMarker[0] = '\0';
    EXPECT_STREQ(readLine(&reader, 21), "# x");
}

TEST_F(ReadLine, LongLinesComeInPieces) {
    const std::string text = std::string(1500, 'a') + "\nb\n";
    EXPECT_EQ(Read(text, READ_TRIM), (Words{std::string(1023, 'a'), std::string(477, 'a'), "b"}));
}

TEST_F(ReadLine, AZeroByteEndsALine) {
    EXPECT_EQ(Read(std::string("ab\0cd\nef\n", 9), READ_SKIP_BLANK | READ_TRIM),
              (Words{"ab", "ef"}));
    EXPECT_EQ(Read(std::string("\0cd\nef\n", 7), READ_SKIP_BLANK | READ_TRIM), (Words{"ef"}));
}

TEST_F(ReadLine, NoFileNoLine) {
    EXPECT_EQ(readLine(&reader, 5), nullptr);
    EXPECT_FALSE(open(&reader, "./data/absent.txt"));
    EXPECT_EQ(reader.file, nullptr);
    EXPECT_EQ(readLine(&reader, 5), nullptr);
    EXPECT_EQ(reader.lineCount, 0);
    EXPECT_FALSE(open(&reader, "./data/texture")) << "a folder is no file";
    EXPECT_FALSE(open(&reader, nullptr));
    EXPECT_FALSE(open(&reader, ""));
}

TEST_F(ReadLine, EmptyFile) {
    EXPECT_EQ(Read("", 5), Words{});
    EXPECT_EQ(Read("", 0), Words{});
    EXPECT_EQ(Read("\n\n\n", 5), Words{});
}

TEST_F(ReadLine, ResetClosesAndClears) {
    ASSERT_TRUE(open(&reader, Write("a.txt", "abc\ndef\n").c_str()));
    ASSERT_NE(readLine(&reader, 0), nullptr);
    EXPECT_EQ(reset(&reader), 1);
    EXPECT_EQ(reader.file, nullptr);
    EXPECT_EQ(reader.length, 0);
    EXPECT_EQ(reader.lineCount, 0);
    for (const char c : reader.line) {
        ASSERT_EQ(c, '\0');
    }
    EXPECT_EQ(reset(&reader), 1) << "a second time as well";
}

TEST_F(ReadLine, ANewReaderIsReset) {
    const LineReader fresh;
    EXPECT_EQ(fresh.file, nullptr);
    EXPECT_EQ(fresh.length, 0);
    EXPECT_EQ(fresh.lineCount, 0);
    EXPECT_STREQ(fresh.commentMarker, "#");
    EXPECT_STREQ(fresh.line, "");
}

TEST_F(ReadLine, OpeningAnotherFileClosesTheFirst) {
    ASSERT_TRUE(open(&reader, Write("a.txt", "a\n").c_str()));
    ASSERT_NE(readLine(&reader, 5), nullptr);
    ASSERT_TRUE(open(&reader, Write("b.txt", "b\n").c_str()));
    EXPECT_EQ(reader.lineCount, 0);
    EXPECT_STREQ(readLine(&reader, 5), "b");
}

TEST_F(ReadLine, BlankLineNeverReachesTheMatcher) {
    ASSERT_TRUE(open(&reader, Write("a.txt", "   \n\t\n5\n").c_str()));
    ASSERT_NE(readLine(&reader, 5), nullptr);
    EXPECT_EQ(match(&reader, reader.line, "[i]"), 1);
    EXPECT_EQ(reader.lineCount, 1);
}

} // namespace
} // namespace ombrel
