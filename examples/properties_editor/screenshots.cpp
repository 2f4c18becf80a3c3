// Takes the screenshots in docs/images/ without a display, in the language of the locale:
// editor_screenshots DIRECTORY SAMPLES.

#include "window/application_setup.h"
#include "window/color_scheme.h"
#include "window/main_window.h"

#include <QApplication>
#include <QDir>

#include <array>

namespace {

using namespace Editor;

struct Picture {
    const char *name;
    const char *sample;
    const char *field; // shown before the picture is taken, if any
    int page;
    ColorScheme colors;
};

constexpr std::array pictures{
    Picture{"editor-light", "ten-languages", nullptr, 1, ColorScheme::Platform},
    Picture{"editor-dark", "ten-languages", nullptr, 3, ColorScheme::Dark},
    Picture{"problems-light", "faulty", nullptr, 2, ColorScheme::Platform},
    Picture{"problems-dark", "faulty", "behaviors[patrol].triggerSentences[fr_FR]", 3,
            ColorScheme::Dark},
};

bool draw(const Picture &picture, const QDir &images, const QDir &samples) {
    useColorScheme(picture.colors);

    MainWindow window;
    if (!window.openFile(
            samples.filePath(QLatin1String(picture.sample) + QLatin1String("/manifest.xml"))))
        return false;
    window.resize(1100, 820);
    window.show();
    window.showPage(picture.page);
    if (picture.field)
        window.showField(QLatin1String(picture.field));
    QApplication::processEvents();
    return window.grab().save(images.filePath(QLatin1String(picture.name) + QLatin1String(".png")));
}

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    setUpApplication();
    QApplication::setFont(QFont(QStringLiteral("Noto Sans"), 10));
    for (const Picture &picture : pictures) {
        if (!draw(picture, QDir(arguments.at(1)), QDir(arguments.at(2))))
            return 1;
    }
    return 0;
}
