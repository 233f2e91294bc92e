// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "editor/SampleLists.h"
#include "editor/frmMain.h"
#include "editor/frmSplash.h"
#include "platform/Application.h"
#include "platform/EndRequest.h"
#include "platform/Guarded.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"

#include <cstdlib>

int main(int argc, char *argv[])
{
    Application application(argc, argv);
    EndRequest endRequest([] { return Module1::gChanged; });
    QObject::connect(&endRequest, &EndRequest::begun, &application,
                     [] { Module1::gStopImport = true; });
    if (application.PrevInstance()) {
        MsgBox(QStringLiteral("The Tanglewit(c) is already running."));
        return 0;
    }
    // Between the splash and the main window no window is open.
    Application::setQuitOnLastWindowClosed(false);
    auto splash = std::make_unique<frmSplash>();
    std::unique_ptr<frmMain> mainWindow;
    QObject::connect(splash.get(), &frmSplash::unloaded, &application, [&splash, &mainWindow] {
        splash.release()->deleteLater();
        runGuarded([] { installSampleLists(pathOf(Place::WordLists)); });
        if (!runGuarded([&mainWindow] {
                mainWindow = std::make_unique<frmMain>();
                mainWindow->showMaximized();
            }))
            Application::exit(EXIT_FAILURE);
        Application::setQuitOnLastWindowClosed(true);
    });
    splash->show();
    return Application::exec();
}
