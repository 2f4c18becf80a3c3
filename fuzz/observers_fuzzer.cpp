// Observers that edit, load and delete within every notification leave packages whose caches,
// records and children agree.

#include "observer_world.h"
#include "offscreen.h"
#include "target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    startOffscreen();
    Observers::World(data, size).run();
    return 0;
}
