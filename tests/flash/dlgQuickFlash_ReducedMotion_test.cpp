// SPDX-License-Identifier: GPL-3.0-or-later
// The flash cards on a desktop without animations.
#include "platform/ReducedMotion.h"

#include "flash/FlashForm.h"
#include "support/DesktopSettings.h"
#include "support/FormTest.h"
#include "support/MotionStyle.h"
#include "support/Motions.h"

class dlgQuickFlash_ReducedMotion_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_bus.start(), "dbus-daemon does not start");
        m_portal = std::make_unique<SettingsPortal>(SettingsPortal::Answers::Off);
        QApplication::setStyle(new MotionStyle(200));
    }

    void theCardTurnsAtOnce()
    {
        FlashForm form;
        QTRY_VERIFY(ReducedMotion::isAskedFor());
        form.clickCard();
        QCOMPARE(motions(form.dialog()), 0);
        m_portal->changeTo(true);
        QTRY_VERIFY(!ReducedMotion::isAskedFor());
        form.click("cmdNext");
        form.clickCard();
        QVERIFY(motions(form.dialog()) > 0);
    }

    void theLineOfTimeMovesInStepsOfASecond()
    {
        FlashForm form;
        m_portal->changeTo(false);
        QTRY_VERIFY(ReducedMotion::isAskedFor());
        form.click("cmdAutoFlash");
        const auto &steps = *form.control<QWidget>("wordTime").findChild<QTimer *>();
        QCOMPARE(steps.interval(), 1000);
        form.click("cmdStop");
        m_portal->changeTo(true);
        QTRY_VERIFY(!ReducedMotion::isAskedFor());
        form.click("cmdAutoFlash");
        QVERIFY(steps.interval() < 100);
    }

private:
    SessionBus m_bus;
    std::unique_ptr<SettingsPortal> m_portal;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgQuickFlash_ReducedMotion_test>(argc, argv);
}

#include "dlgQuickFlash_ReducedMotion_test.moc"
