// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/SoundThread.h"

#include "platform/Paths.h"
#include "platform/sound/SoundPlayer.h"

#include <QCoreApplication>
#include <QPluginLoader>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <utility>

namespace {

using namespace std::chrono_literals;

std::unique_ptr<SoundThread> g_thread;
QtMessageHandler g_nextHandler = nullptr;
thread_local bool t_isSoundThread = false;

// A machine without sound is no fault to report, but Qt's sound classes report it at each request.
void dropMessagesOfSoundThread(QtMsgType type, const QMessageLogContext &context,
                               const QString &text)
{
    if (!t_isSoundThread || type == QtFatalMsg)
        g_nextHandler(type, context, text);
}

void leaveAtOnce(int status, void * /*unused*/)
{
    std::fflush(nullptr);
    std::_Exit(status);
}

class Worker final : public QObject
{
public:
    explicit Worker(QString plugin) : m_plugin(std::move(plugin)) {}

    // Silence where the plugin cannot be loaded.
    void loop(const QString &path)
    {
        if (!m_player)
            m_player.reset(QPluginLoader(m_plugin).instance());
        request([this, path](SoundPlayer &player) { player.loop(path, m_gain); });
    }

    void setGain(double gain)
    {
        m_gain = gain;
        request([gain](SoundPlayer &player) { player.setGain(gain); });
    }

private:
    using Request = std::function<void(SoundPlayer &)>;

    // Ending a sound handles events, and with them the next request, which must not come while this
    // one is at work.
    void request(Request request)
    {
        m_requests.push_back(std::move(request));
        auto *const player = qobject_cast<SoundPlayer *>(m_player.get());
        if (std::exchange(m_isAtWork, true))
            return;
        for (; !m_requests.empty(); m_requests.pop_front())
            if (player)
                m_requests.front()(*player);
        m_isAtWork = false;
    }

    QString m_plugin;
    std::unique_ptr<QObject> m_player;
    std::deque<Request> m_requests;
    double m_gain = 1;
    bool m_isAtWork = false;
};

} // namespace

SoundThread::SoundThread()
{
    auto worker =
        std::make_unique<Worker>(pathOf(Place::Plugins) + QStringLiteral("/tanglewit_sound"));
    worker->moveToThread(this);
    connect(this, &SoundThread::requested, worker.get(), &Worker::loop);
    connect(this, &SoundThread::gainChanged, worker.get(), &Worker::setGain);
    m_worker = std::move(worker);
    // The sound that the server keeps in store, in milliseconds, so that music goes on while the
    // machine is busy. Qt has no other way to set it for good.
    if (!qEnvironmentVariableIsSet("PULSE_LATENCY_MSEC"))
        qputenv("PULSE_LATENCY_MSEC", "1000");
    if (!g_nextHandler)
        g_nextHandler = qInstallMessageHandler(dropMessagesOfSoundThread);
    qAddPostRoutine(&SoundThread::end);
    start();
}

SoundThread::~SoundThread() = default;

void SoundThread::run()
{
    t_isSoundThread = true;
    exec();
    // The destructor of a sound handles events, which must not be requests.
    QCoreApplication::removePostedEvents(m_worker.get());
    m_worker.reset();
}

void SoundThread::loop(const QString &path, double gain)
{
    if (!g_thread)
        g_thread.reset(new SoundThread);
    setGain(gain);
    Q_EMIT g_thread->requested(path);
}

void SoundThread::silence()
{
    // Without the thread nothing plays.
    if (g_thread)
        Q_EMIT g_thread->requested(QString());
}

void SoundThread::setGain(double gain)
{
    if (g_thread)
        Q_EMIT g_thread->gainChanged(gain);
}

void SoundThread::end()
{
    g_thread->quit();
    // Longer only if the sound server does not answer.
    if (g_thread->wait(2s))
        g_thread.reset();
    else
        static_cast<void>(g_thread.release());
    // Qt closes its connections to the sound server by static destructors, without a lock against
    // the threads of these connections. That sometimes crashes.
    on_exit(leaveAtOnce, nullptr);
}
