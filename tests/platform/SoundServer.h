// SPDX-License-Identifier: GPL-3.0-or-later
// A sound server for one test. Start it before the first sound is played: the player finds it by an
// environment variable.
//
// Its only output is a pipe, and it plays as fast as the pipe is read. On a busy machine the test
// reads more slowly, and no sound is lost.
#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <vector>

class SoundServer final
{
public:
    static constexpr int SampleRate = 22050;

    SoundServer();
    ~SoundServer();
    Q_DISABLE_COPY_MOVE(SoundServer)

    [[nodiscard]] static bool isInstalled();

    // Starts the server; false if it does not run.
    [[nodiscard]] bool start();
    void stop();

    // Reads at most the next hundredth of a second.
    void listen();
    // All that has been read, on one channel.
    [[nodiscard]] const std::vector<double> &heard() const { return m_heard; }

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QProcess m_server;
    QProcess m_silence;
    QFile m_output;
    std::vector<double> m_heard;
};
