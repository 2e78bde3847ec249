// The texts. Bytes above 127 are code page 1251 and are written as escapes, with the line as it
// reads beside them.
#include "demo/texts.h"

namespace ombrel {

const char* const kTitleText = "\xAB"
                               "Ombrel\xBB"; // «Ombrel»
const char* const kSubtitleText = "(a fast prod in software render)";

const char* const kBlockTexts[kBlockSlots] = {
    "", "Well... And now a scroller time!", "", "Greetings fly out to ex-USSR sceners...", "",
};

// Six columns, each a run of slots; the next column's x bounds the width, in characters. Slots 5
// and 17 belong to no column.
// clang-format off
const char* const kGreetingTexts[kGreetingSlots] = {
    // column 0, four wide
    "orv3", "mulp", "brae", "nimm", "zolk",
    "hush",
    // column 1, four wide
    "ixli", "dwop", "kvaz", "tund", "gnum",
    "",
    // column 2, four wide
    "umbo", "404!", "fjut", "ozzl", "yolk",
    "psst",
    // column 3, four wide
    "plov", "wimz", "ekra", "dacz", "rumb", "oops",
    // column 4, two wide
    "ik", "7f", "oq", "ye", "zz", "pi",
    "",
    // column 5, eleven wide
    "samovarix", "snowdrifter", "mr.carry", "pixelkasha", "zero.flag", "babushka16", "lostvertex",
    "",
};
// clang-format on

namespace {

// «  С праздником весны, друзья! Мира и солнца!»
constexpr char kSpringGreeting[] =
    "  \xD1 \xEF\xF0\xE0\xE7\xE4\xED\xE8\xEA\xEE\xEC \xE2\xE5\xF1\xED\xFB, "
    "\xE4\xF0\xF3\xE7\xFC\xFF! \xCC\xE8\xF0\xE0 \xE8 \xF1\xEE\xEB\xED\xF6\xE0!";

} // namespace

const char* const kScrollerTexts[kScrollerSlots] = {
    // page one
    "",
    "            Hail to the First of May, hooray!",
    "",
    "                Pixels of all lands, unite!",
    "",
    "                  Communism!",
    "",
    "",
    "                  Be cool! =)",
    "",
    "",
    "",
    // page two
    "",
    "",
    "Ooo-oo-hoo-hoo-oo hoo-hoo-oo--oo-ooo Don't worry",
    "Woo-oo-woo-oo-oo-oo-ooo Be happy",
    "Woo-oo-woo-oo-ooo Don't worry, be happy",
    "",
    "",
    "",
    "",
    "",
    kSpringGreeting,
    "",
    // page three
    "",
    "",
    "",
    "",
    "            Our demo goes to end...",
    "",
    "",
    "",
    "As you can see, we need an artist to work on demos",
    "If you can, and want work on demo connect us!",
    "Drop us a line: quellant at post.example, we reply",
    "",
    // page four
    "",
    "",
    "",
    "",
    "",
    "oventa .... idea, concept art, visual QA",
    "",
    "dru3 ......... sound",
    "",
    "kaxo ........ code, models",
    "",
    "",
    // the line after the last page
    "             see ya! =)",
};

} // namespace ombrel
