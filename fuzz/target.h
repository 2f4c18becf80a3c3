#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// Defined by every fuzz target: runs one input, and aborts through require() if the code under
/// test fails. Called by libFuzzer and by the replay of the corpus in the tests.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Aborts with a message unless the condition holds.
void require(bool holds, const std::string &promise);
