// SPDX-License-Identifier: GPL-3.0-or-later
// The application object for benchmarks of windows. It needs no display unless QT_QPA_PLATFORM
// names one, and has an empty home folder of its own, so that no file of the user is touched.
#pragma once

#include "platform/Application.h"

#include <QTemporaryDir>

class BenchApplication final
{
public:
    explicit BenchApplication(char **argv) : m_application(m_argumentCount, argv) {}

private:
    struct Surroundings
    {
        Surroundings()
        {
            for (const char *place : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
                qputenv(place, home.path().toLocal8Bit());
            if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
                qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        QTemporaryDir home;
    };

    Surroundings m_surroundings;
    int m_argumentCount = 1; // the rest are the benchmarks' options
    Application m_application;
};
