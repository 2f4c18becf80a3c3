// Draws the pictures of docs/images/ without a display, in the language of the locale:
// editor_screenshots DIRECTORY SAMPLES.

#include "widgets/roomy_style.h"
#include "window/main_window.h"

#include <packagemodel/translation.h>

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QStyleFactory>

#include <array>

namespace {

enum class Look { Light, Dark };

QPalette darkPalette() {
    const QColor window(0x24, 0x27, 0x2b);
    const QColor text(0xe6, 0xe8, 0xeb);
    const QColor faint(0x8b, 0x91, 0x99);
    QPalette palette(window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, QColor(0x2f, 0x33, 0x39));
    palette.setColor(QPalette::AlternateBase, QColor(0x34, 0x38, 0x3f));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0x3a, 0x3f, 0x46));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xf0));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x74, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

QPalette lightPalette() {
    QPalette palette(QColor(0xf2, 0xf3, 0xf5));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf8, 0xfa));
    palette.setColor(QPalette::PlaceholderText, QColor(0x70, 0x76, 0x7e));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x74, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

struct Picture {
    const char *name;
    const char *sample;
    const char *field; // shown before the picture is taken, if any
    int page;
    Look look;
};

constexpr std::array pictures{
    Picture{"editor-light", "ten-languages", nullptr, 1, Look::Light},
    Picture{"editor-dark", "ten-languages", nullptr, 3, Look::Dark},
    Picture{"problems-light", "faulty", nullptr, 2, Look::Light},
    Picture{"problems-dark", "faulty", "behaviors[patrol].triggerSentences[fr_FR]", 3, Look::Dark},
};

bool draw(const Picture &picture, const QDir &images, const QDir &samples) {
    const bool isDark = picture.look == Look::Dark;
    QIcon::setThemeName(isDark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
    QApplication::setPalette(isDark ? darkPalette() : lightPalette());

    Editor::MainWindow window;
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
    QIcon::setThemeSearchPaths({QStringLiteral("/usr/share/icons")});
    Zel::installTranslation();
    Zel::installTranslation(QStringLiteral("zel-properties-editor"));
    auto *style = new Editor::RoomyStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Editor::RoomyStyle::use(style);
    QApplication::setFont(QFont(QStringLiteral("Noto Sans"), 10));
    for (const Picture &picture : pictures) {
        if (!draw(picture, QDir(arguments.at(1)), QDir(arguments.at(2))))
            return 1;
    }
    return 0;
}
