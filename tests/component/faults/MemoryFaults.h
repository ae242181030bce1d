#pragma once

#include <cstddef>

// Making the memory of this program run short. Linux only: there the whole process, the host's library
// with it, uses one `new`.
namespace faults {

// Lets `successes` further allocations of this thread succeed, and the one after them fail, once.
// Negative: none fails.
void FailMemory(int successes);

// Calls the failure off; whether it had come.
bool MemoryHasFailed();

// Calls the function when this thread next allocates exactly that many bytes, before it gets them.
void OnAllocation(std::size_t bytes, void (*call)());

}  // namespace faults
