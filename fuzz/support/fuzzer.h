#pragma once

#include <cstddef>
#include <cstdint>

// Each fuzzer defines it: tries one input. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// A fuzzer may define it: changes an input in place. Returns the new size.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed);

// libFuzzer's own changes, for LLVMFuzzerCustomMutator.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);
