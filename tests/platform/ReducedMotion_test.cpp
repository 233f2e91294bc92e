// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the desktop's setting for animations reaches the program, over a session bus that the
// test starts. A process asks only once, so each case has a child of its own.
#include "platform/ReducedMotion.h"

#include "support/DesktopSettings.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using Answers = SettingsPortal::Answers;

Q_DECLARE_METATYPE(SettingsPortal::Answers)

class ReducedMotion_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bus = std::make_unique<SessionBus>();
        QVERIFY2(m_bus->start(), "dbus-daemon does not start");
    }

    void cleanup()
    {
        if (m_child) {
            m_child->closeWriteChannel();
            QVERIFY(m_child->waitForFinished());
            QCOMPARE(m_child->exitCode(), 0);
        }
        m_child.reset();
        m_portal.reset();
        m_bus.reset();
    }

    void theSettingIsFollowed_data()
    {
        QTest::addColumn<Answers>("answers");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("on") << Answers::On << "moves"_ba;
        QTest::newRow("off") << Answers::Off << "still"_ba;
        QTest::newRow("off, in one variant") << Answers::OffInOneVariant << "still"_ba;
        QTest::newRow("not known to the desktop") << Answers::Error << "moves"_ba;
    }

    void theSettingIsFollowed()
    {
        QFETCH(Answers, answers);
        QFETCH(QByteArray, expected);
        m_portal = std::make_unique<SettingsPortal>(answers);
        startChild();
        QTRY_COMPARE(m_portal->reads(), 1);
        m_portal->flush();
        QTRY_COMPARE(motion(), expected);
    }

    void aChangeIsFollowed()
    {
        m_portal = std::make_unique<SettingsPortal>(Answers::On);
        startChild();
        QTRY_COMPARE(m_portal->reads(), 1);
        for (const bool animations : {false, true, false}) {
            m_portal->changeTo(animations);
            m_portal->flush();
            QTRY_COMPARE(motion(), animations ? "moves" : "still");
        }
        QCOMPARE(m_portal->reads(), 1);
    }

    void otherSettingsChangeNothing()
    {
        m_portal = std::make_unique<SettingsPortal>(Answers::On);
        startChild();
        QTRY_COMPARE(m_portal->reads(), 1);
        m_portal->tell(u"org.gnome.desktop.sound"_s, SettingsPortal::key(), false);
        m_portal->tell(SettingsPortal::group(), u"clock-show-seconds"_s, false);
        m_portal->flush();
        QCOMPARE(motion(), "moves");
    }

    void withoutABusThingsMove()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
        startChild();
        QCOMPARE(motion(), "moves");
    }

    void withoutADesktopThingsMove()
    {
        startChild();
        QCOMPARE(motion(), "moves");
    }

    void aDesktopThatStartsLaterIsFollowed()
    {
        startChild();
        QCOMPARE(motion(), "moves");
        m_portal = std::make_unique<SettingsPortal>(Answers::On);
        m_portal->changeTo(false);
        m_portal->flush();
        QTRY_COMPARE(motion(), "still");
    }

    void nothingWaitsForTheAnswer()
    {
        m_portal = std::make_unique<SettingsPortal>(Answers::Never);
        startChild();
        QTRY_COMPARE(m_portal->reads(), 1);
        QCOMPARE(motion(), "moves");
        m_portal->answerAtLast(false);
        m_portal->flush();
        QTRY_COMPARE(motion(), "still");
    }

private:
    // The test's event loop runs meanwhile, so that the desktop can answer.
    QByteArray line()
    {
        if (!QTest::qWaitFor([this] { return m_child->canReadLine(); }, 20'000))
            return "no answer";
        return m_child->readLine().trimmed();
    }

    void startChild()
    {
        m_child = std::make_unique<QProcess>();
        m_child->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_child->start(QStringLiteral(WATCHING_CHILD), QStringList());
        QCOMPARE(line(), "watching");
    }

    QByteArray motion()
    {
        m_child->write("?\n");
        return line();
    }

    std::unique_ptr<SessionBus> m_bus;
    std::unique_ptr<SettingsPortal> m_portal;
    std::unique_ptr<QProcess> m_child;
};

QTEST_MAIN(ReducedMotion_test)

#include "ReducedMotion_test.moc"
