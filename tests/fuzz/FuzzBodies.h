#pragma once

#include <cstddef>
#include <cstdint>

/// Each body takes any bytes as its input. A broken promise writes a line to standard error and
/// aborts the program. So the same bodies serve the random test and a fuzzer.

/// The input is a script of chunks for one receive buffer: frames, damaged frames and junk.
void FuzzReceiveBuffer(const std::uint8_t* data, std::size_t size);

/// The input is cut into full and short frames and decoded as one memory image.
void FuzzMemoryImage(const std::uint8_t* data, std::size_t size);
