#include <velk/xml/block_memory.hpp>
#include <velk/xml/element.hpp>
#include <velk/xml/text.hpp>

#include <gtest/gtest.h>

#include <malloc.h>

#include <string>
#include <thread>

namespace {

using velk::xml::block_memory;
using velk::xml::element;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool pieces_kept = false;
#else
constexpr bool pieces_kept = true;
#endif

// A tree of `count` leaves, each a name and a text: about three pieces each.
element wide_tree(int count)
{
    element root("NFe");
    for (int i = 0; i < count; ++i) {
        root.append_node(element("vProd", velk::xml::text(std::to_string(i))));
    }
    return root;
}

TEST(block_memory, a_piece_given_back_is_handed_out_again_for_any_size_of_its_step)
{
    if (!pieces_kept) {
        GTEST_SKIP() << "under AddressSanitizer every piece goes back to the allocator";
    }
    void* const first = block_memory::take(81);
    block_memory::give(first, 81);
    void* const again = block_memory::take(96);
    EXPECT_EQ(again, first) << "81 and 96 bytes share the step of 96";
    block_memory::give(again, 96);
}

TEST(block_memory, sizes_beyond_the_steps_go_straight_to_the_allocator)
{
    for (std::size_t const size : {std::size_t{0}, std::size_t{1}, std::size_t{192}, std::size_t{193}, std::size_t{4096}}) {
        void* const block = block_memory::take(size);
        ASSERT_NE(block, nullptr) << size;
        block_memory::give(block, size);
    }
    block_memory::give(nullptr, 64);
}

// What a thread keeps goes back when it ends: a thread that built and dropped
// a large tree leaves the heap as it found it.
TEST(block_memory, a_thread_that_ends_releases_what_it_kept)
{
    std::size_t const before = mallinfo2().uordblks;
    std::thread worker([] {
        for (int round = 0; round < 3; ++round) {
            element const tree = wide_tree(20'000);
            ASSERT_EQ(tree.get_node_range().size(), 20'000u);
        }
    });
    worker.join();
    std::size_t const after = mallinfo2().uordblks;
    EXPECT_LT(after, before + 256 * 1024) << "before " << before << ", after " << after;
}

// One thread's trees, built and dropped over and over, stop growing the heap
// once its kept pieces cover one tree.
TEST(block_memory, documents_one_after_another_grow_nothing)
{
    { element const warm = wide_tree(2'000); }
    std::size_t const settled = mallinfo2().uordblks;
    for (int round = 0; round < 200; ++round) {
        element const tree = wide_tree(2'000);
    }
    EXPECT_LE(mallinfo2().uordblks, settled + 64 * 1024);
}

}  // namespace
