#include <packagemodel/package_info_model.h>

#include <QTextStream>

// Prints the name of the package whose manifest is given.
int main(int argc, char **argv) {
    Zel::PackageInfoModel package;
    if (argc != 2 || !package.loadFromManifestFile(QString::fromLocal8Bit(argv[1])))
        return 1;
    QTextStream(stdout) << package.name(Zel::Language::defaultLanguage()) << '\n';
    return 0;
}
