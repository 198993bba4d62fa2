// What GNUstep's headers ask for where the compiler knows blocks; Blocks.cpp has it.
#pragma once

extern "C" {
void* _Block_copy(const void* block);
void _Block_release(const void* block);
}
