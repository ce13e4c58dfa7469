#pragma once

#include <cstddef>
#include <cstdint>

/// What is tried with one input, any bytes at all. A broken promise ends the program with a line on
/// standard error, so that the same bodies serve a random test and a fuzzer.

/// The input is a script of chunks for one receive buffer: frames, damaged frames and junk.
void FuzzReceiveBuffer(const std::uint8_t* data, std::size_t size);

/// The input is cut into frames, whole ones and short ones, and decoded as one memory image.
void FuzzMemoryImage(const std::uint8_t* data, std::size_t size);
