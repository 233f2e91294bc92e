// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a benchmark of windows runs it: without a display if none is asked for, and in an
// empty home of its own, so that nothing of the person who measures is touched.
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
