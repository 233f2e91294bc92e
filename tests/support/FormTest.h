// SPDX-License-Identifier: GPL-3.0-or-later
// The main function of a test that opens windows: the real application object, Qt's own dialogs.
#pragma once

#include "platform/Application.h"

#include <QTest>

template <class Test> int runFormTest(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Application application(argc, argv);
    // Tests close windows in the middle.
    Application::setQuitOnLastWindowClosed(false);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
