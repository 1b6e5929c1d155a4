// SPDX-License-Identifier: GPL-3.0-or-later
//
// The processor reads and writes the block's samples and nothing beside them: buffers lie against
// pages that nobody may touch, in front and behind.

#include "brolt/signal/tests/BroltTestKit.h"

#include <gtest/gtest.h>

#ifdef __linux__
#    include <sys/mman.h>
#    include <unistd.h>
#endif

#ifdef __linux__

namespace {

/// One page of floats between two that are out of bounds.
class GuardedPage {
public:
    GuardedPage()
        : page(static_cast<std::size_t>(sysconf(_SC_PAGESIZE)))
        , memory(static_cast<char*>(
              mmap(nullptr, 3 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))) {
        if (mprotect(memory + page, page, PROT_READ | PROT_WRITE) != 0)
            std::abort();
    }

    ~GuardedPage() { munmap(memory, 3 * page); }

    GuardedPage(const GuardedPage&) = delete;
    GuardedPage& operator=(const GuardedPage&) = delete;

    [[nodiscard]] std::size_t floats() const { return page / sizeof(float); }

    [[nodiscard]] float* atFront() const { return reinterpret_cast<float*>(memory + page); }

    [[nodiscard]] float* atBack(std::size_t count) const { return atFront() + floats() - count; }

private:
    std::size_t page;
    char* memory;
};

template <int N>
void runAgainstTheEnds() {
    const Coefficients record = recordOf(defaultParameters());
    std::array<GuardedPage, 2> inputs;
    std::array<GuardedPage, 2> outputs;
    BroltState<N> state;
    for (const bool back : {false, true}) {
        for (std::size_t frames = 0; frames <= inputs[0].floats(); ++frames) {
            std::array<const float*, N> in{};
            std::array<float*, N> out{};
            for (std::size_t c = 0; c < N; ++c) {
                in[c] = back ? inputs[c].atBack(frames) : inputs[c].atFront();
                out[c] = back ? outputs[c].atBack(frames) : outputs[c].atFront();
            }
            Brolt<N, float>::process(state, in.data(), out.data(), record,
                                     static_cast<int32_t>(frames));
            Brolt<N, float>::processPlainly(state, in.data(), out.data(), record,
                                            static_cast<int32_t>(frames));
        }
    }
    EXPECT_GT(state.outputMeters[0].peakDecay, 0.0F);
}

} // namespace

TEST(BroltBufferEnds, areNeverCrossedInMono) {
    runAgainstTheEnds<1>();
}

TEST(BroltBufferEnds, areNeverCrossedInStereo) {
    runAgainstTheEnds<2>();
}

#else

TEST(BroltBufferEnds, areNeverCrossed) {
    GTEST_SKIP() << "the pages around the buffers are made with Linux calls; the code is the same";
}

#endif
