// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ReducedMotion.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QPointer>

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString Group = QStringLiteral("org.gnome.desktop.interface");
const QString Key = QStringLiteral("enable-animations");

class Desktop final : public QObject
{
    Q_OBJECT

public:
    explicit Desktop(QObject *parent) : QObject(parent)
    {
        // The thread of Qt's bus registers it too, but maybe not yet; connect() would then fail.
        qRegisterMetaType<QDBusVariant>();
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.connect(Service, Path, Interface, QStringLiteral("SettingChanged"), this,
                    SLOT(take(QString, QString, QDBusVariant)));
        QDBusMessage read =
            QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("Read"));
        read.setArguments({Group, Key});
        auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            const QDBusPendingReply<QDBusVariant> reply = *answer;
            if (reply.isValid())
                take(Group, Key, reply.value());
            answer->deleteLater();
        });
    }

    bool hasAnimations = true;

private Q_SLOTS:
    void take(const QString &group, const QString &key, const QDBusVariant &value)
    {
        if (group != Group || key != Key)
            return;
        // Read wraps the value in one more variant than the signal does.
        QVariant plain = value.variant();
        if (plain.canConvert<QDBusVariant>())
            plain = plain.value<QDBusVariant>().variant();
        hasAnimations = plain.toBool();
    }
};

QPointer<Desktop> watched; // the application's child

} // namespace

void ReducedMotion::watch()
{
    if (!watched)
        watched = new Desktop(QCoreApplication::instance());
}

bool ReducedMotion::isAskedFor()
{
    return watched && !watched->hasAnimations;
}

#include "ReducedMotion.moc"
