// SPDX-License-Identifier: GPL-3.0-or-later
// The main function of a test that opens windows: it uses the program's application class, Qt's
// own dialogs, and none of the printers of the machine. Such a test links tanglewit_platform.
#pragma once

#include "platform/Application.h"

#include <QTest>

template <class Test> int runFormTest(int argc, char *argv[])
{
    qputenv("CUPS_SERVER", "/nonexistent/printers");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Application application(argc, argv);
    // A test may close all windows and go on.
    Application::setQuitOnLastWindowClosed(false);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
