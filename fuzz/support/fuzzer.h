#pragma once

#include <cstddef>
#include <cstdint>

// What each fuzzer defines: tries one input. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// What a fuzzer may define: changes an input in its place. Returns the new size.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed);

// libFuzzer's own changes, for it.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);
