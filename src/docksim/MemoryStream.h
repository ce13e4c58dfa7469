#pragma once

#include "Scenario.h"
#include "SendQueue.h"

#include <random>

namespace docksim {

using NoiseSource = std::mt19937;

// The frame that tells of something other than memory: eight bytes of 01 for a transfer fault,
// eight of FF for an empty station.
SendItem TransferFaultFrame(const Scenario& scenario);
SendItem NoReaderFrame(const Scenario& scenario);

// Random bytes, the same ones for the same seed.
SendItem NoiseItem(NoiseSource& noise, long count);

// What answers a read: the memory frames with all the faults that strike a memory stream, but
// without the way in which bytes are delivered (pace, gaps, single bytes).
std::vector<SendItem> BuildMemoryStream(const Scenario& scenario, NoiseSource& noise);

} // namespace docksim
