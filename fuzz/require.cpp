#include "target.h"

#include <cstdlib>
#include <iostream>

void require(bool holds, const std::string &promise) {
    if (holds)
        return;
    std::cerr << "Does not hold: " << promise << '\n';
    std::abort();
}
