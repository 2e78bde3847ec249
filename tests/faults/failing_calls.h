// Calls of the C library that fail when a test says so. The program is linked so that every malloc,
// calloc, realloc, fopen, fread, fgets, fseek and ftell of ours comes here first, and so does every
// operator new.
#pragma once

#include <cstdint>
#include <string>

namespace ombrel {

inline constexpr std::int64_t kNever = INT64_MAX;

// Which calls of a kind fail. Calls count from 0 since StartFailing.
struct FailureRule {
    std::int64_t first = kNever; // from this call on
    std::int64_t last = kNever;  // up to this one, included
    std::int64_t every = 1;      // of them only first, first + every, ...
};

struct FailingCalls {
    FailureRule blocks;               // malloc, calloc, realloc
    FailureRule small;                // operator new; its next try is a call of its own
    FailureRule opens;                // fopen
    FailureRule reads;                // fread and fgets
    FailureRule seeks;                // fseek and ftell
    const char* broken = nullptr;     // the file whose name ends in this, and which of its reads
    FailureRule brokenReads;          //   fail; they count from 0 with every open
    const char* unreadable = nullptr; // names that end in this cannot be opened
    std::int64_t blockCalls = 0, smallCalls = 0, openCalls = 0, readCalls = 0, seekCalls = 0;
    std::int64_t failed = 0; // calls of any kind
    bool active = false;
    void (*onOpen)(std::int64_t call) = nullptr; // before every open
};
extern FailingCalls failing;

// Nothing fails outside of these two. StopFailing keeps the counts.
void StartFailing();
void StopFailing();

} // namespace ombrel
