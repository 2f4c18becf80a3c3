#include <packagemodel/package_info_model.h>
#include <tano/save_file.h>

#include <QTextStream>

// Prints the name of the package whose manifest is given. Fingerprints are in a library that the
// target includes.
int main(int argc, char **argv) {
    Zel::PackageInfoModel package;
    if (argc != 2 || Tano::FileFingerprint::ofFile(argv[1]) == Tano::FileFingerprint() ||
        !package.loadFromManifestFile(QString::fromLocal8Bit(argv[1])))
        return 1;
    QTextStream(stdout) << package.name(Zel::Language::defaultLanguage()) << '\n';
    return 0;
}
