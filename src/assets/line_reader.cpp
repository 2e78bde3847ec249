// The line reader and its pattern matcher. A pattern is compiled at every match into tokens that
// point into it; a match walks the words of the line in place, so a call touches each character a
// few times.
#include "assets/line_reader.h"

#include <cstring>

#include "base/data_file.h"
#include "base/parse_number.h"

namespace ombrel {

namespace {

bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
char ToUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

const char* SkipBlanks(const char* p) {
    while (IsBlank(*p)) {
        ++p;
    }
    return p;
}
const char* SkipDigits(const char* p) {
    while (IsDigit(*p)) {
        ++p;
    }
    return p;
}
const char* SkipSign(const char* p) {
    return *p == '+' || *p == '-' ? p + 1 : p;
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

// Reads the token behind a '['. Returns the place behind its ']', or null when it is malformed.
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

// Tests a word (closed by a zero) against a token and keeps what it captures.
bool TestWord(LineReader* reader, const Token& token, const char* word, std::int32_t length) {
    switch (token.kind) {
    case 'f': {
        const double value = scanFloat(word);
        if (value == kNotAFloat) {
            return false;
        }
        if (reader->floatCount < kMaxTokens) {
            reader->floats[reader->floatCount++] = static_cast<float>(value);
        }
        return true;
    }
    case 'i': {
        const std::int32_t value = scanInt(word);
        if (value == kNotAnInt) {
            return false;
        }
        if (reader->intCount < kMaxTokens) {
            reader->ints[reader->intCount++] = value;
        }
        return true;
    }
    default: {
        const bool fits =
            token.kind == 's'
                ? FitsLength(token, length)
                : length == token.length &&
                      std::memcmp(word, token.literal, static_cast<std::size_t>(length)) == 0;
        if (fits) {
            KeepWord(reader, word, length);
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

    const std::size_t whole = std::strlen(line);
    const std::int32_t length = whole < kMaxLine ? static_cast<std::int32_t>(whole) : kMaxLine - 1;
    std::int32_t position = 0;
    std::int32_t restart = 0; // end of the first word of this attempt
    std::int32_t token = 0;
    bool first = true;
    while (token < compiled.count) {
        // Take the next word.
        while (position < length && IsBlank(line[position])) {
            ++position;
        }
        const std::int32_t start = position;
        while (position < length && !IsBlank(line[position])) {
            ++position;
        }
        std::int32_t size = position - start;
        if (size == 0) {
            return 0;
        }
        size = size < kMaxWord ? size : kMaxWord - 1;
        char word[kMaxWord];
        std::memcpy(word, line + start, static_cast<std::size_t>(size));
        word[size] = '\0';
        if (first) {
            restart = position;
        }

        // Go on with the next token, or try again one word further.
        if (TestWord(reader, compiled.tokens[token], word, size)) {
            ++token;
            first = false;
        } else if (position >= length) {
            return 0;
        } else {
            token = 0;
            position = restart;
            first = true;
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
