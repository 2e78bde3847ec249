// Which path a request leads to, on whatever processor this is.
#include <algorithm>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "base/vector_path.h"

namespace ombrel {
namespace {

constexpr VectorPath kPaths[] = {VectorPath::Scalar, VectorPath::Sse,  VectorPath::Avx2,
                                 VectorPath::Avx512, VectorPath::Neon, VectorPath::Wasm};
static_assert(std::size(kPaths) == kVectorPathCount);

// The best that is taken by default.
VectorPath BestByDefault() {
    return ProcessorRuns(VectorPath::Neon)   ? VectorPath::Neon
           : ProcessorRuns(VectorPath::Avx2) ? VectorPath::Avx2
           : ProcessorRuns(VectorPath::Sse)  ? VectorPath::Sse
                                             : VectorPath::Scalar;
}

bool IsHere(VectorPath path) {
    return std::find(std::begin(kPathsHere), std::end(kPathsHere), path) != std::end(kPathsHere);
}

TEST(VectorPaths, EveryProcessorRunsTheScalarOneAndThoseBelowItsBest) {
    EXPECT_EQ(kPathsHere[0], VectorPath::Scalar);
    EXPECT_TRUE(ProcessorRuns(VectorPath::Scalar));
    for (std::size_t i = 1; i < std::size(kPathsHere); ++i) {
        EXPECT_TRUE(!ProcessorRuns(kPathsHere[i]) || ProcessorRuns(kPathsHere[i - 1])) << i;
    }
}

TEST(VectorPaths, OfOtherArchitecturesAreNotRun) {
    for (const VectorPath path : kPaths) {
        EXPECT_TRUE(IsHere(path) || !ProcessorRuns(path)) << NameOf(path);
    }
    EXPECT_NE(IsHere(VectorPath::Neon), IsHere(VectorPath::Sse));
}

TEST(VectorPaths, ARequestIsMetOrTheNextOneDownIsTaken) {
    for (std::size_t i = 0; i < std::size(kPathsHere); ++i) {
        bool understood = false;
        const VectorPath path = kPathsHere[i];
        const VectorPath taken = PathFor(NameOf(path), &understood);
        EXPECT_EQ(understood, taken == path);
        EXPECT_EQ(ProcessorRuns(path), taken == path);
        std::size_t best = i;
        while (!ProcessorRuns(kPathsHere[best])) {
            --best; // the first one always runs
        }
        EXPECT_EQ(taken, kPathsHere[best]);
    }
}

TEST(VectorPaths, ARequestForAnotherArchitectureIsNone) {
    for (const VectorPath path : kPaths) {
        bool understood = true;
        if (!IsHere(path)) {
            EXPECT_EQ(PathFor(NameOf(path), &understood), BestByDefault());
            EXPECT_FALSE(understood);
        }
    }
}

TEST(VectorPaths, NoRequestNeverMeansTheWidest) {
    for (const char* nothing : {static_cast<const char*>(nullptr), ""}) {
        bool understood = false;
        EXPECT_EQ(PathFor(nothing, &understood), BestByDefault());
        EXPECT_TRUE(understood);
        EXPECT_EQ(PathFor(nothing, nullptr), BestByDefault());
    }
}

TEST(VectorPaths, AnUnknownWordIsNoRequest) {
    for (const char* word : {"AVX2", "avx", "avx2 ", " sse", "scalarr", "0", "mmx"}) {
        bool understood = true;
        EXPECT_EQ(PathFor(word, &understood), BestByDefault()) << word;
        EXPECT_FALSE(understood) << word;
    }
}

TEST(VectorPaths, HaveTheNamesOfTheVariable) {
    const char* names[] = {"scalar", "sse", "avx2", "avx512", "neon", "wasm"};
    for (int i = 0; i < kVectorPathCount; ++i) {
        EXPECT_EQ(std::string(NameOf(kPaths[i])), names[i]);
    }
}

} // namespace
} // namespace ombrel
