#include "Simulator.h"

int main(int argc, char** argv) { return docksim::RunDocksim({argv + 1, argv + argc}); }
