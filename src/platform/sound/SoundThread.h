// SPDX-License-Identifier: GPL-3.0-or-later
// The thread that plays sounds and all that it needs, there from the first sound on. A sound
// server may keep its callers waiting, and music is not to stop while a window is busy.
#pragma once

#include <QThread>

#include <memory>

class SoundThread final : public QThread
{
    Q_OBJECT

public:
    // In the place of what is playing. Both return at once.
    static void loop(const QString &path);
    static void silence();

    ~SoundThread() override;

Q_SIGNALS:
    void requested(const QString &path);

protected:
    void run() override;

private:
    SoundThread();

    static void end();

    std::unique_ptr<QObject> m_worker;
};
