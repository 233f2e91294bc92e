// SPDX-License-Identifier: GPL-3.0-or-later
// watching_child: watches whether the desktop asks for reduced motion. It writes "watching", then
// "moves" or "still" for each line that it reads, and ends with its standard input.
#include "platform/Motion.h"
#include "platform/ReducedMotion.h"
#include "support/DesktopSettings.h"
#include "support/MotionStyle.h"
#include "support/Motions.h"

#include <QApplication>

#include <iostream>
#include <string>

using namespace std::chrono_literals;

namespace {

// What a widget does.
const char *motion()
{
    MotionStyle style(200);
    QWidget widget;
    widget.setStyle(&style);
    widget.show();
    Motion::play(widget, widget.rect(), 100ms, [](QPainter &, double) {});
    return motions(widget) > 0 ? "moves" : "still";
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    ReducedMotion::watch();
    std::cout << "watching" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        // The bus answers in order: what it had for this process before has come.
        QCoreApplication::processEvents();
        if (QDBusConnection::sessionBus().isConnected())
            SettingsPortal::call(QDBusConnection::sessionBus());
        QCoreApplication::processEvents();
        std::cout << motion() << std::endl;
    }
    return 0;
}
