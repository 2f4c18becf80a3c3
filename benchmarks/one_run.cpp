// Usage: one_run CASE FILE
//
// Does one thing once, so that its instructions can be counted: "read" reads the bytes of a
// manifest, "load" also makes a record of them, "save" also writes it again, and "validate" also
// makes models of the record and finds their issues.

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_issues.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

int main(int argc, char **argv) {
    const std::string name = argc == 3 ? argv[1] : "";
    if (name != "read" && name != "load" && name != "save" && name != "validate") {
        std::cerr << "Usage: one_run read|load|save|validate FILE\n";
        return EXIT_FAILURE;
    }
    std::ifstream file(argv[2], std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (name == "read")
        return bytes.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
    Tano::PackageInfo record;
    if (!record.loadFromManifestContent(bytes)) {
        std::cerr << "one_run: " << record.errorString() << '\n';
        return EXIT_FAILURE;
    }
    if (name == "save")
        return record.saveToManifestContent().empty() ? EXIT_FAILURE : EXIT_SUCCESS;
    if (name == "validate") {
        const Zel::PackageInfoModel package(record);
        std::cout << Zel::PackageModel::issues(&package).size() << '\n';
    }
    return EXIT_SUCCESS;
}
