// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/SoundThread.h"

#include "platform/Paths.h"
#include "platform/sound/SoundPlayer.h"

#include <QCoreApplication>
#include <QLibrary>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

using namespace std::chrono_literals;

std::unique_ptr<SoundThread> g_thread;
QtMessageHandler g_otherMessages = nullptr;
Qt::HANDLE g_windowsThread = nullptr;

// A machine without sound is no fault to report, and the sound classes do so time and again. Only
// they have threads beside that of the windows.
void withoutMessagesOfSound(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (QThread::currentThreadId() == g_windowsThread || type == QtFatalMsg)
        g_otherMessages(type, context, text);
}

// Nothing if the library or what it needs is missing.
std::unique_ptr<SoundPlayer> loadedPlayer(const QString &folder)
{
    QLibrary library(folder + QLatin1Char('/') + QLatin1String(SoundPlayer::LibraryName));
    // Sound threads of the system's may outlive everything else.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const auto make =
        reinterpret_cast<SoundPlayer::MakeFunction *>(library.resolve(SoundPlayer::MakeName));
    return std::unique_ptr<SoundPlayer>(make ? make() : nullptr);
}

#ifdef __GLIBC__
void leaveAtOnce(int status, void * /*unused*/)
{
    std::fflush(nullptr);
    std::_Exit(status);
}
#endif

class Worker final : public QObject
{
public:
    explicit Worker(QString folder) : m_folder(std::move(folder)) {}

    void loop(const QString &path)
    {
        if (!m_player)
            m_player = loadedPlayer(m_folder);
        if (m_player)
            m_player->loop(path);
    }

private:
    QString m_folder;
    std::unique_ptr<SoundPlayer> m_player;
};

} // namespace

SoundThread::SoundThread()
{
    auto worker = std::make_unique<Worker>(pathOf(Place::Plugins));
    worker->moveToThread(this);
    connect(this, &SoundThread::requested, worker.get(), &Worker::loop);
    m_worker = std::move(worker);
    g_windowsThread = QThread::currentThreadId();
    if (!g_otherMessages)
        g_otherMessages = qInstallMessageHandler(withoutMessagesOfSound);
    qAddPostRoutine(&SoundThread::end);
    start();
}

SoundThread::~SoundThread() = default;

void SoundThread::run()
{
    exec();
    // A sound stream that goes runs the event loop, which must find no request for the worker.
    QCoreApplication::removePostedEvents(m_worker.get());
    // Sound streams end in the thread that made them.
    m_worker.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void SoundThread::loop(const QString &path)
{
    if (!g_thread)
        g_thread.reset(new SoundThread);
    Q_EMIT g_thread->requested(path);
}

void SoundThread::silence()
{
    // Without the thread nothing plays.
    if (g_thread)
        Q_EMIT g_thread->requested(QString());
}

void SoundThread::end()
{
    g_thread->quit();
    if (g_thread->wait(500ms)) {
        g_thread.reset();
        return;
    }
    // A sound server keeps the thread waiting, and what the sound classes do as the process exits
    // would wait for the thread. The windows are gone by now.
    static_cast<void>(g_thread.release());
#ifdef __GLIBC__
    on_exit(leaveAtOnce, nullptr);
#endif
}
