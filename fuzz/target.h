#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// What every fuzz target defines: tries one input, and ends the process through require() when the
/// code under test does not keep its promise. libFuzzer calls it, and so does the replay of the
/// corpus in the tests.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Says what does not hold, and aborts, unless it holds.
void require(bool holds, const std::string &promise);
