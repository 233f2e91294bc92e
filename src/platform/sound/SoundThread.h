// SPDX-License-Identifier: GPL-3.0-or-later
// The thread that plays sounds. It starts with the first one and loads the plugin that plays them.
//
// It has its own thread because QAudioSink waits for the sound server, for half a minute if the
// server does not answer, and feeds it from the event loop of its thread: on the windows' thread a
// server that hangs would stop the windows, and a window at work would stop the music.
#pragma once

#include <QThread>

#include <memory>

class SoundThread final : public QThread
{
    Q_OBJECT

public:
    // Plays the wave file over and over, instead of what is playing. `gain` is the factor for its
    // samples, from 0 to 1. All three return at once.
    static void loop(const QString &path, double gain);
    static void silence();
    // For the sound that is playing.
    static void setGain(double gain);

    ~SoundThread() override;

Q_SIGNALS:
    void requested(const QString &path);
    void gainChanged(double gain);

protected:
    void run() override;

private:
    SoundThread();

    static void end();

    std::unique_ptr<QObject> m_worker;
};
