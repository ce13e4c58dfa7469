#pragma once

#include "Scenario.h"
#include "SendQueue.h"

#include <random>

namespace docksim {

using NoiseSource = std::mt19937;

// Random bytes. The same seed gives the same bytes.
SendItem NoiseItem(NoiseSource& noise, long count);

// The answer to a read: the memory frames with all faults of a memory stream, or the status
// frame "no reader". It does not say how the bytes are delivered (pace, gaps, single bytes).
std::vector<SendItem> BuildMemoryStream(const Scenario& scenario, NoiseSource& noise);

} // namespace docksim
