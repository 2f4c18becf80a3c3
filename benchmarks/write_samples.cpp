#include "sample_package.h"

#include <cstdlib>
#include <iostream>

// Usage: write_samples FOLDER COUNT...
//
// Writes a manifest for each number of behaviors to FOLDER/COUNT.xml.
int main(int argc, char **argv) {
    for (int i = 2; i < argc; ++i) {
        const std::string file = std::string(argv[1]) + '/' + argv[i] + ".xml";
        const Tano::PackageInfo package = SamplePackage::package(std::atoi(argv[i]));
        if (!package.saveToManifestFile(file)) {
            std::cerr << "write_samples: " << package.errorString() << '\n';
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
