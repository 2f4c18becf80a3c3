#include "small_editor.h"

#include <QApplication>

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    SmallEditor editor;
    if (argc > 1 && !editor.open(QString::fromLocal8Bit(argv[1])))
        return 1;
    editor.show();
    return QApplication::exec();
}
