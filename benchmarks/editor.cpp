#include "sample_package.h"

#include "window/find_panel.h"
#include "window/main_window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iostream>

// Usage: editor COUNT LANGUAGES
//
// Times what users of the editor wait for, in a package with COUNT behaviors. Prints a line per
// case: its name, and the microseconds until it is done and shown, the least of several runs.
namespace {

using Editor::MainWindow;

// Some work is spread over turns of the event loop.
void settle(const std::function<bool()> &isDone) {
    do
        QCoreApplication::processEvents();
    while (!isDone());
    QCoreApplication::processEvents();
}

class Stopwatch {
public:
    // Repeats an operation, each time after undoing what it did.
    void measure(const char *name, int runs, const std::function<void()> &operation,
                 const std::function<void()> &undo = {}) {
        qint64 least = 0;
        for (int run = 0; run < runs; ++run) {
            QElapsedTimer timer;
            timer.start();
            operation();
            const qint64 elapsed = timer.nsecsElapsed();
            least = run == 0 ? elapsed : std::min(least, elapsed);
            if (undo)
                undo();
        }
        std::cout << name << ' ' << double(least) / 1000 << std::endl;
    }
};

void type(QWidget *field, const char *text) {
    QTest::keyClicks(field, QLatin1String(text));
    QCoreApplication::processEvents();
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::cerr << "Usage: editor COUNT LANGUAGES\n";
        return EXIT_FAILURE;
    }
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("manifest.xml"));
    const int count = std::atoi(argv[1]);
    if (!SamplePackage::package(count, std::atoi(argv[2])).saveToManifestFile(file.toStdString()))
        return EXIT_FAILURE;

    Stopwatch watch;
    watch.measure("editorLoad", 3, [&] {
        Tano::PackageInfo record;
        QFile manifest(file);
        if (!record.loadFromManifestFile(manifest))
            std::abort();
    });
    MainWindow window;
    window.keepEditsIn(folder.path());
    window.show();
    QCoreApplication::processEvents();
    watch.measure("editorOpen", 3, [&] {
        window.openFile(file);
        window.showPage(3);
        QCoreApplication::processEvents();
    });

    auto &document = window.document();
    const auto undo = [&] { document.undoStack()->undo(); };
    const std::string middle = SamplePackage::path(count / 2);
    window.showField(QString::fromStdString("behaviors[" + middle + "].names[en_US]"));
    QCoreApplication::processEvents();
    QWidget *name = QApplication::focusWidget();
    watch.measure("editorKey", 20, [&] { type(name, "x"); });
    watch.measure("editorUndoKeys", 1, undo);

    const QString first = QString::fromStdString("behaviors[" + SamplePackage::path(0) + "]");
    using Zel::PackageModel::Edit;
    const auto removeFirst = [&] {
        document.edit({{Edit::Action::Remove, *Tano::FieldPath::parse(first.toStdString())}});
        QCoreApplication::processEvents();
    };
    watch.measure("editorRemoveFirst", 5, removeFirst, undo);
    removeFirst();
    watch.measure(
        "editorUndoRemoval", 5,
        [&] {
            undo();
            QCoreApplication::processEvents();
        },
        removeFirst);
    undo();

    // A text of each behavior, as replacing all or filling in translations does.
    Zel::PackageModel::Edits changes;
    for (int i = 0; i < count; ++i)
        changes.push_back({Edit::Action::Set,
                           Tano::FieldPath()
                               .field("behaviors")
                               .entry(SamplePackage::path(i))
                               .field("names")
                               .key("fr_FR"),
                           QStringLiteral("x")});
    const auto changeAll = [&] {
        document.edit(changes);
        QCoreApplication::processEvents();
    };
    const auto undoAll = [&] {
        undo();
        QCoreApplication::processEvents();
    };
    watch.measure("editorChangeAll", 3, changeAll, undoAll);
    changeAll();
    watch.measure("editorUndoAll", 3, undoAll, changeAll);
    undoAll();

    auto *panel = window.findChild<Editor::FindPanel *>();
    panel->parentWidget()->show();
    panel->start();
    QCoreApplication::processEvents();
    auto *text = panel->findChild<QLineEdit *>();
    watch.measure(
        "editorFind", 3,
        [&] {
            text->setText(QStringLiteral("number 77,"));
            settle([&] { return !panel->isSearching(); });
        },
        [&] { text->clear(); });
    panel->parentWidget()->hide();

    watch.measure("editorSave", 3, [&] {
        type(name, "x");
        document.save(file);
    });
    window.showPage(6);
    QCoreApplication::processEvents();
    return EXIT_SUCCESS;
}
