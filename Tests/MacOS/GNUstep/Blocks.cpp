// The part of the blocks runtime that the tests need: blocks which capture nothing but C++ objects.
// GCC's Objective-C runtime has none; the layout is that of the blocks' published binary interface.

#include <cstdlib>
#include <cstring>

namespace {

struct Descriptor {
    unsigned long reserved;
    unsigned long size;
    void (*copy)(void* destination, const void* source);
    void (*dispose)(const void* block);
};

struct Block {
    void* isa;
    int flags;
    int uses; ///< Reserved for the runtime.
    void (*invoke)();
    const Descriptor* descriptor;
};

constexpr int needsFree = 1 << 24;
constexpr int hasCopyAndDispose = 1 << 25;
constexpr int isGlobal = 1 << 28;

} // namespace

extern "C" {

void* _NSConcreteStackBlock[32];
void* _NSConcreteGlobalBlock[32];

void* _Block_copy(const void* original)
{
    auto* const block = static_cast<Block*>(const_cast<void*>(original));
    if (!block || (block->flags & isGlobal) != 0)
        return block;
    if ((block->flags & needsFree) != 0) {
        ++block->uses;
        return block;
    }
    auto* const copy = static_cast<Block*>(std::malloc(block->descriptor->size));
    std::memcpy(copy, block, block->descriptor->size);
    copy->flags |= needsFree;
    copy->uses = 1;
    if ((block->flags & hasCopyAndDispose) != 0)
        block->descriptor->copy(copy, block);
    return copy;
}

void _Block_release(const void* released)
{
    auto* const block = static_cast<Block*>(const_cast<void*>(released));
    if (!block || (block->flags & needsFree) == 0 || --block->uses > 0)
        return;
    if ((block->flags & hasCopyAndDispose) != 0)
        block->descriptor->dispose(block);
    std::free(block);
}
}
