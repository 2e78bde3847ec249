// Which path a request leads to, on whatever processor this is.
#include <string>

#include <gtest/gtest.h>

#include "base/vector_path.h"

namespace ombrel {
namespace {

constexpr VectorPath kPaths[] = {VectorPath::Scalar, VectorPath::Sse, VectorPath::Avx2,
                                 VectorPath::Avx512};

// The best that is taken by default.
VectorPath BestByDefault() {
    return ProcessorRuns(VectorPath::Avx2)  ? VectorPath::Avx2
           : ProcessorRuns(VectorPath::Sse) ? VectorPath::Sse
                                            : VectorPath::Scalar;
}

TEST(VectorPaths, EveryProcessorRunsTheScalarOneAndThoseBelowItsBest) {
    EXPECT_TRUE(ProcessorRuns(VectorPath::Scalar));
    for (int i = 1; i < kVectorPathCount; ++i) {
        EXPECT_TRUE(!ProcessorRuns(kPaths[i]) || ProcessorRuns(kPaths[i - 1])) << i;
    }
}

TEST(VectorPaths, ARequestIsMetOrTheNextOneDownIsTaken) {
    for (const VectorPath path : kPaths) {
        bool understood = false;
        const VectorPath taken = PathFor(NameOf(path), &understood);
        EXPECT_TRUE(ProcessorRuns(taken));
        EXPECT_LE(taken, path);
        EXPECT_EQ(understood, taken == path);
        EXPECT_EQ(ProcessorRuns(path), taken == path);
        EXPECT_TRUE(taken == path || !ProcessorRuns(static_cast<VectorPath>(int(taken) + 1)));
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
    const char* names[] = {"scalar", "sse", "avx2", "avx512"};
    for (int i = 0; i < kVectorPathCount; ++i) {
        EXPECT_EQ(std::string(NameOf(kPaths[i])), names[i]);
    }
}

} // namespace
} // namespace ombrel
