// The line reader and its pattern matcher. A pattern is compiled at every match into tokens that
// point into it. A match may come to a word once for every token; it finds each word of the line
// and scans it as a number only once, so a call touches each character a few times.
#include "assets/line_reader.h"

#include <cstring>

#include "base/data_file.h"
#include "base/parse_number.h"
#include "base/text.h"

namespace ombrel {

namespace {

char ToUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// One token of a pattern.
struct Token {
    char kind;           // ' literal, f, i, s
    char op;             // s: < = >
    std::int32_t length; // s: N; literal: its length
    const char* literal; // in the pattern, not closed by a zero
};

struct Pattern {
    Token tokens[kMaxTokens];
    std::int32_t count;
};

// Reads the token after a '['. Returns the place after its ']', or null when it is malformed.
const char* CompileToken(const char* p, Token* token) {
    token->kind = *p;
    switch (*p++) {
    case '\'': {
        const char* const end = std::strchr(p, '\'');
        if (end == nullptr) {
            return nullptr;
        }
        const auto length = end - p;
        token->literal = p;
        token->length = length < kMaxWord ? static_cast<std::int32_t>(length) : kMaxWord - 1;
        p = end + 1;
        break;
    }
    case 'f':
    case 'i':
        break;
    case 's':
        token->op = *p;
        if (*p != '<' && *p != '=' && *p != '>') {
            return nullptr;
        }
        token->length = ParseInt(++p, nullptr);
        p = SkipDigits(p);
        break;
    default:
        return nullptr;
    }
    return *p == ']' ? p + 1 : nullptr;
}

// False when the pattern is malformed or holds more than 32 tokens.
bool CompilePattern(const char* text, Pattern* pattern) {
    pattern->count = 0;
    for (const char* p = SkipBlanks(text); *p != '\0'; p = SkipBlanks(p)) {
        if (*p != '[' || pattern->count == kMaxTokens) {
            return false;
        }
        p = CompileToken(p + 1, &pattern->tokens[pattern->count]);
        if (p == nullptr) {
            return false;
        }
        ++pattern->count;
    }
    return true;
}

void KeepWord(LineReader* reader, const char* word, std::int32_t length) {
    if (reader->wordCount < kMaxTokens) {
        char* const entry = reader->words[reader->wordCount++];
        std::memcpy(entry, word, static_cast<std::size_t>(length));
        entry[length] = '\0';
    }
}

bool FitsLength(const Token& token, std::int32_t length) {
    switch (token.op) {
    case '<':
        return length < token.length;
    case '=':
        return length == token.length;
    default:
        return length > token.length;
    }
}

// The words of a line, found as far as a match has come.
struct Word {
    std::int16_t start;
    std::int8_t length; // at most 79 count
    bool knowsInt, knowsFloat;
    std::int32_t intValue; // of scanInt and scanFloat, once they are known
    double floatValue;
};
struct Words {
    const char* line;
    std::int32_t length;
    std::int32_t count, end; // words found, and the end of the last one
    Word words[kMaxLine / 2];
};

// Word number index of the line, which is one of those found or the next; null after the last.
Word* FindWord(Words* words, std::int32_t index) {
    if (index < words->count) {
        return &words->words[index];
    }
    const char* const line = words->line;
    std::int32_t p = words->end;
    while (p < words->length && IsBlank(line[p])) {
        ++p;
    }
    const std::int32_t start = p;
    while (p < words->length && !IsBlank(line[p])) {
        ++p;
    }
    words->end = p;
    if (p == start) {
        return nullptr;
    }
    const std::int32_t length = p - start < kMaxWord ? p - start : kMaxWord - 1;
    Word* const word = &words->words[words->count++];
    word->start = static_cast<std::int16_t>(start);
    word->length = static_cast<std::int8_t>(length);
    word->knowsInt = false;
    word->knowsFloat = false;
    return word;
}

// A copy that ends with a zero.
struct WordText {
    char text[kMaxWord];
};
WordText TextOf(const Words& words, const Word& word) {
    WordText copy;
    std::memcpy(copy.text, words.line + word.start, static_cast<std::size_t>(word.length));
    copy.text[word.length] = '\0';
    return copy;
}

std::int32_t IntOf(const Words& words, Word* word) {
    if (!word->knowsInt) {
        word->intValue = scanInt(TextOf(words, *word).text);
        word->knowsInt = true;
    }
    return word->intValue;
}

double FloatOf(const Words& words, Word* word) {
    if (!word->knowsFloat) {
        word->floatValue = scanFloat(TextOf(words, *word).text);
        word->knowsFloat = true;
    }
    return word->floatValue;
}

// Tests a word against a token and keeps what it captures.
bool TestWord(LineReader* reader, const Token& token, const Words& words, Word* word) {
    switch (token.kind) {
    case 'f': {
        const double value = FloatOf(words, word);
        if (value == kNotAFloat) {
            return false;
        }
        if (reader->floatCount < kMaxTokens) {
            reader->floats[reader->floatCount++] = static_cast<Single>(value);
        }
        return true;
    }
    case 'i': {
        const std::int32_t value = IntOf(words, word);
        if (value == kNotAnInt) {
            return false;
        }
        if (reader->intCount < kMaxTokens) {
            reader->ints[reader->intCount++] = value;
        }
        return true;
    }
    default: {
        const char* const text = words.line + word->start;
        const bool fits =
            token.kind == 's'
                ? FitsLength(token, word->length)
                : word->length == token.length &&
                      std::memcmp(text, token.literal, static_cast<std::size_t>(token.length)) == 0;
        if (fits) {
            KeepWord(reader, text, word->length);
        }
        return fits;
    }
    }
}

// The comment rules for a line without leading blanks: false when all of it is a comment; a marker
// further on ends the line.
bool CutComment(LineReader* reader) {
    if (reader->commentMarker[0] == '\0') {
        return true;
    }
    char* const marker = std::strstr(reader->line, reader->commentMarker);
    if (marker != nullptr) {
        *marker = '\0';
    }
    return marker != reader->line;
}

} // namespace

int reset(LineReader* reader) {
    if (reader->file != nullptr) {
        std::fclose(reader->file);
        reader->file = nullptr;
    }
    std::memset(reader->line, 0, sizeof reader->line);
    std::memset(reader->commentMarker, 0, sizeof reader->commentMarker);
    reader->commentMarker[0] = '#';
    reader->length = 0;
    reader->lineCount = 0;
    return 1;
}

bool open(LineReader* reader, const char* path) {
    reset(reader);
    reader->file = OpenDataFile(path, "r");
    return reader->file != nullptr;
}

const char* readLine(LineReader* reader, std::uint32_t options) {
    if (reader->file == nullptr) {
        return nullptr;
    }
    const bool skipBlank = (options & READ_SKIP_BLANK) != 0;
    do {
        if (std::fgets(reader->line, kMaxLine, reader->file) == nullptr) {
            return nullptr;
        }
        if (skipBlank) {
            trimLeft(reader->line);
        }
    } while (skipBlank &&
             (reader->line[0] == '\0' || ((options & READ_COMMENTS) != 0 && !CutComment(reader))));
    if ((options & READ_TRIM) != 0) {
        trimRight(trimLeft(reader->line));
    }
    reader->length = static_cast<std::int32_t>(std::strlen(reader->line));
    ++reader->lineCount;
    return reader->line;
}

int match(LineReader* reader, const char* line, const char* pattern) {
    if (line == nullptr || pattern == nullptr || *line == '\0' || *pattern == '\0') {
        return 0;
    }
    Pattern compiled;
    if (!CompilePattern(pattern, &compiled)) {
        return 0;
    }
    // REQUIRED R15: once, not at every attempt.
    reader->wordCount = 0;
    reader->floatCount = 0;
    reader->intCount = 0;

    Words words;
    const std::size_t whole = std::strlen(line);
    words.line = line;
    words.length = whole < kMaxLine ? static_cast<std::int32_t>(whole) : kMaxLine - 1;
    words.count = 0;
    words.end = 0;
    std::int32_t first = 0; // word of this attempt
    std::int32_t token = 0;
    while (token < compiled.count) {
        Word* const word = FindWord(&words, first + token);
        if (word == nullptr) {
            return 0;
        }
        // Go on with the next token, or try again one word further; not past the end of the line.
        const bool last = first + token == words.count - 1 && words.end >= words.length;
        if (TestWord(reader, compiled.tokens[token], words, word)) {
            ++token;
        } else if (last) {
            return 0;
        } else {
            ++first;
            token = 0;
        }
    }
    return 1;
}

int replaceChars(const char* source, char* destination, const char* set, char replacement,
                 int caseMode) {
    if (source == nullptr || destination == nullptr || *source == '\0') {
        return 0;
    }
    const char* const chars = set == nullptr ? "" : set;
    int count = 0;
    for (; *source != '\0'; ++source, ++destination) {
        *destination = *source;
        for (const char* c = chars; *c != '\0'; ++c) {
            if (caseMode == 1 ? *c == *source : ToUpper(*c) == ToUpper(*source)) {
                *destination = replacement;
                ++count;
                break;
            }
        }
    }
    *destination = '\0';
    return count;
}

// REQUIRED R16: no digit is needed for a text to scan; it is then 0.
std::int32_t scanInt(const char* text) {
    if (text == nullptr || *SkipDigits(SkipSign(SkipBlanks(text))) != '\0') {
        return kNotAnInt;
    }
    return ParseInt(text, nullptr);
}

double scanFloat(const char* text) {
    if (text == nullptr) {
        return kNotAFloat;
    }
    const char* p = SkipDigits(SkipSign(SkipBlanks(text)));
    if (*p == '.') {
        p = SkipDigits(p + 1);
    }
    if (*p == 'e' || *p == 'E' || *p == 'd' || *p == 'D') {
        p = SkipDigits(SkipSign(p + 1));
    }
    return *p == '\0' ? static_cast<double>(ParseFloat(text, nullptr)) : kNotAFloat;
}

char* trimLeft(char* text) {
    if (text != nullptr) {
        const char* const first = SkipBlanks(text);
        if (first != text) {
            std::memmove(text, first, std::strlen(first) + 1);
        }
    }
    return text;
}

char* trimRight(char* text) {
    if (text != nullptr) {
        char* end = text + std::strlen(text);
        while (end > text && IsBlank(end[-1])) {
            --end;
        }
        *end = '\0';
    }
    return text;
}

} // namespace ombrel
