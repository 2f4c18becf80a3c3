// Packages stay consistent whatever observers edit, load and delete within notifications: caches,
// records and children agree.

#include "observer_world.h"
#include "offscreen.h"
#include "target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    startOffscreen();
    Observers::World(data, size).run();
    return 0;
}
