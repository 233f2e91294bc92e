// SPDX-License-Identifier: GPL-3.0-or-later
// A sound server of the test's own, whose one output leads nowhere but is recorded. It must be
// there before the first sound, which finds it by the environment.
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

    // Starts the server, then the recorder; false if one of them does not run.
    [[nodiscard]] bool start();
    void stop();

    // What has been heard up to now, on one channel.
    [[nodiscard]] const std::vector<double> &heard();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QProcess m_server;
    QProcess m_recorder;
    QFile m_recording;
    std::vector<double> m_heard;
};
