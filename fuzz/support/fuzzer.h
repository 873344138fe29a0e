#pragma once

#include <cstddef>
#include <cstdint>

// What each fuzzer defines: tries one input. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
