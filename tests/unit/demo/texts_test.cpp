// The tables of texts: what is fixed word for word, and what fits the places it is shown at.
#include "demo/texts.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>
#include <string>

namespace ombrel {
namespace {

TEST(Texts, TitleInGuillemetsOfTheCodePage) {
    EXPECT_STREQ(kTitleText, "\xAB"
                             "Ombrel"
                             "\xBB");
    EXPECT_STREQ(kSubtitleText, "(a fast prod in software render)");
}

TEST(Texts, Block) {
    const char* const expected[] = {"", "Well... And now a scroller time!", "",
                                    "Greetings fly out to ex-USSR sceners...", ""};
    for (int i = 0; i < kBlockSlots; ++i) {
        EXPECT_STREQ(kBlockTexts[i], expected[i]);
        EXPECT_LE(std::strlen(kBlockTexts[i]), 49U);
    }
}

TEST(Texts, ScrollerLinesWordForWord) {
    const std::map<int, std::string> fixed = {
        {5, "                  Communism!"},
        {8, "                  Be cool! =)"},
        {14, "Ooo-oo-hoo-hoo-oo hoo-hoo-oo--oo-ooo Don't worry"},
        {15, "Woo-oo-woo-oo-oo-oo-ooo Be happy"},
        {16, "Woo-oo-woo-oo-ooo Don't worry, be happy"},
        {28, "            Our demo goes to end..."},
        {32, "As you can see, we need an artist to work on demos"},
        {33, "If you can, and want work on demo connect us!"},
        {41, "oventa .... idea, concept art, visual QA"},
        {43, "dru3 ......... sound"},
        {45, "kaxo ........ code, models"},
        {48, "             see ya! =)"},
    };
    const std::set<int> open = {1, 3, 22, 34};
    for (int i = 0; i < kScrollerSlots; ++i) {
        const std::string text = kScrollerTexts[i];
        if (fixed.count(i) != 0) {
            EXPECT_EQ(text, fixed.at(i)) << i;
        } else if (open.count(i) != 0) {
            EXPECT_GT(text.size(), 10U) << i;
        } else {
            EXPECT_EQ(text, "") << i;
        }
        EXPECT_LE(text.size(), 52U) << i;
    }
}

std::size_t LeadingBlanks(const std::string& text) {
    return text.find_first_not_of(' ');
}

TEST(Texts, OpenLinesHaveTheirLeadingBlanks) {
    EXPECT_EQ(LeadingBlanks(kScrollerTexts[1]), 12U);
    EXPECT_EQ(LeadingBlanks(kScrollerTexts[3]), 16U);
    EXPECT_EQ(LeadingBlanks(kScrollerTexts[22]), 2U);
}

// Back from the code page, letter by letter.
std::string FromCodePage(const std::string& text) {
    std::string out;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            out += c;
            continue;
        }
        EXPECT_GE(byte, 0xC0) << "not a letter";
        const unsigned point = 0x410U + byte - 0xC0;
        out += static_cast<char>(0xC0 | point >> 6);
        out += static_cast<char>(0x80 | (point & 0x3F));
    }
    return out;
}

TEST(Texts, RussianLineReadsAsItShould) {
    EXPECT_EQ(FromCodePage(kScrollerTexts[22]), "  С праздником весны, друзья! Мира и солнца!");
}

TEST(Texts, ThirtySixHandlesAllDifferentInTheirWidths) {
    const std::set<int> empty = {11, 30, 38};
    std::set<std::string> handles;
    for (int i = 0; i < kGreetingSlots; ++i) {
        const std::string handle = kGreetingTexts[i];
        EXPECT_EQ(handle.empty(), empty.count(i) != 0) << i;
        const std::size_t most = i < 24 ? 4 : i < 31 ? 2 : 11;
        EXPECT_LE(handle.size(), most) << i;
        if (!handle.empty()) {
            EXPECT_TRUE(handles.insert(handle).second) << handle;
        }
    }
    EXPECT_EQ(handles.size(), 36U);
}

} // namespace
} // namespace ombrel
