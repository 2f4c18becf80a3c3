#pragma once

#include <QGuiApplication>

/// Starts the application object that icons need, without a display. Never destroyed.
inline void startOffscreen() {
    static int argc = 1;
    static char name[] = "fuzzer";
    static char *argv[] = {name, nullptr};
    static const bool isSet = qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto *application = isSet ? new QGuiApplication(argc, argv) : nullptr;
    Q_UNUSED(application)
}
