// Tries a million random inputs on each body. To repeat or lengthen a run, set the environment
// variables WARDLOCK_FUZZ_SEED and WARDLOCK_FUZZ_COUNT.

#include "FuzzBodies.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace {

unsigned long FromEnvironment(const char* name, unsigned long otherwise) {
    const char* text = std::getenv(name);
    return text ? std::strtoul(text, nullptr, 0) : otherwise;
}

void Run(const char* name, void (*body)(const std::uint8_t*, std::size_t), unsigned long count,
         unsigned long seed) {
    std::mt19937_64 random(seed);
    QElapsedTimer timer;
    timer.start();
    std::vector<std::uint8_t> input;
    for (unsigned long i = 0; i < count; ++i) {
        // Mostly short, so that many can be tried. Bytes with a meaning on the wire are frequent.
        const std::size_t limit = i % 64 == 0 ? 2000 : 120;
        input.resize(random() % limit);
        for (std::uint8_t& byte : input) {
            static constexpr std::uint8_t favourites[] = {0x00, 0xFF, 0x55, 0xAA, 0xF3, 0x01};
            const std::uint64_t number = random();
            byte = number % 4 == 0 ? favourites[number / 4 % 6]
                                   : static_cast<std::uint8_t>(number >> 32);
        }
        body(input.data(), input.size());
    }
    std::printf("%s: %lu inputs, seed %lu, %.1f s\n", name, count, seed,
                static_cast<double>(timer.elapsed()) / 1000.0);
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const unsigned long seed = FromEnvironment("WARDLOCK_FUZZ_SEED", 20260301);
    const unsigned long count = FromEnvironment("WARDLOCK_FUZZ_COUNT", 1'000'000);
    std::printf("seed %lu\n", seed); // in case a body aborts
    std::fflush(stdout);
    Run("receive buffer", FuzzReceiveBuffer, count, seed);
    Run("memory image", FuzzMemoryImage, count, seed);
}
