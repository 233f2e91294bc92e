// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: a session bus of the test's own, and on it a desktop that tells whether it has
// animations. A test that includes this links Qt6::DBus.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <utility>

// No program is started by it, whatever is installed. From its start on, it is the session bus of
// this process and of the processes that it starts.
class SessionBus final
{
public:
    SessionBus() = default;
    ~SessionBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(SessionBus)

    // False if it does not run.
    [[nodiscard]] bool start()
    {
        QFile settings(m_folder.filePath(QStringLiteral("bus.conf")));
        if (!settings.open(QIODevice::WriteOnly))
            return false;
        settings.write("<busconfig><type>session</type><listen>unix:dir=" +
                       QFile::encodeName(m_folder.path()) +
                       "</listen><policy context=\"default\"><allow send_destination=\"*\" "
                       "eavesdrop=\"true\"/>"
                       "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        settings.close();
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
                        QStringLiteral("--config-file=") + settings.fileName()});
        while (!m_daemon.canReadLine())
            if (!m_daemon.waitForReadyRead(20'000))
                return false;
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_daemon.readLine().trimmed());
        return true;
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
};

// Answers Read of org.freedesktop.portal.Settings. It needs a session bus.
class SettingsPortal final : public QDBusVirtualObject
{
public:
    enum class Answers { On, Off, OffInOneVariant, Error, Never };

    explicit SettingsPortal(Answers answers)
        : m_answers(answers),
          m_bus(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
                                              QStringLiteral("portal")))
    {
        m_bus.registerVirtualObject(path(), this);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    ~SettingsPortal() override { QDBusConnection::disconnectFromBus(QStringLiteral("portal")); }
    Q_DISABLE_COPY_MOVE(SettingsPortal)

    // How often Read was called for the setting.
    [[nodiscard]] int reads() const { return m_reads; }
    // The call that was not answered.
    void answerAtLast(bool animations) { answer(m_waiting, animations); }
    void changeTo(bool animations) { tell(group(), key(), animations); }
    void tell(const QString &group, const QString &key, bool value)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(path(), interface(), QStringLiteral("SettingChanged"));
        signal.setArguments({group, key, QVariant::fromValue(QDBusVariant(value))});
        m_bus.send(signal);
    }
    // Waits until the bus has all that was sent.
    void flush() { call(m_bus); }
    // Waits for an answer of the bus itself.
    static void call(const QDBusConnection &bus)
    {
        bus.call(QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
    }

    [[nodiscard]] static QString group() { return QStringLiteral("org.gnome.desktop.interface"); }
    [[nodiscard]] static QString key() { return QStringLiteral("enable-animations"); }

    [[nodiscard]] QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection & /*bus*/) override
    {
        if (message.interface() != interface() || message.member() != u"Read" ||
            message.arguments() != QVariantList{group(), key()})
            return false;
        ++m_reads;
        if (m_answers == Answers::Never)
            m_waiting = message;
        else if (m_answers == Answers::Error)
            m_bus.send(message.createErrorReply(
                QStringLiteral("org.freedesktop.portal.Error.NotFound"), QStringLiteral("none")));
        else
            answer(message, m_answers == Answers::On);
        return true;
    }

private:
    [[nodiscard]] static QString path()
    {
        return QStringLiteral("/org/freedesktop/portal/desktop");
    }
    [[nodiscard]] static QString interface()
    {
        return QStringLiteral("org.freedesktop.portal.Settings");
    }

    // Real portals put the value into two variants.
    void answer(const QDBusMessage &message, bool animations)
    {
        const QDBusVariant value(animations);
        const QDBusVariant twice(QVariant::fromValue(value));
        m_bus.send(message.createReply(
            QVariant::fromValue(m_answers == Answers::OffInOneVariant ? value : twice)));
    }

    Answers m_answers;
    QDBusConnection m_bus;
    QDBusMessage m_waiting;
    int m_reads = 0;
};
