// Usage: load_files FOLDER
//
// Loads all manifests in a folder and its subfolders, and prints the processor time in
// microseconds.

#include <tano/package_info.h>

#include <QDirIterator>

#include <cstdlib>
#include <ctime>
#include <iostream>

int main(int argc, char **argv) {
    if (argc != 2) {
        std::cerr << "Usage: load_files FOLDER\n";
        return EXIT_FAILURE;
    }
    const std::clock_t start = std::clock();
    QDirIterator files(QString::fromLocal8Bit(argv[1]), {QStringLiteral("manifest.xml")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        Tano::PackageInfo package;
        if (!package.loadFromManifestFile(file)) {
            std::cerr << "load_files: " << package.errorString() << '\n';
            return EXIT_FAILURE;
        }
    }
    std::cout << double(std::clock() - start) * 1e6 / CLOCKS_PER_SEC << '\n';
    return EXIT_SUCCESS;
}
