// SPDX-License-Identifier: GPL-3.0-or-later
// The main function of a test that opens windows: the real application object, Qt's own dialogs,
// and none of the printers that the machine happens to have.
#pragma once

#include "platform/Application.h"

#include <QTest>

template <class Test> int runFormTest(int argc, char *argv[])
{
    qputenv("CUPS_SERVER", "/nonexistent/printers");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Application application(argc, argv);
    // Tests close windows in the middle.
    Application::setQuitOnLastWindowClosed(false);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
