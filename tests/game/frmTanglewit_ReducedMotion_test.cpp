// SPDX-License-Identifier: GPL-3.0-or-later
// The game on a desktop without animations.
#include "platform/ReducedMotion.h"

#include "game/GameForm.h"
#include "support/DesktopSettings.h"
#include "support/FormTest.h"
#include "support/MotionStyle.h"
#include "support/Motions.h"

#include <QVariantAnimation>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmTanglewit_ReducedMotion_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_bus.start(), "dbus-daemon does not start");
        m_portal = std::make_unique<SettingsPortal>(SettingsPortal::Answers::Off);
        QApplication::setStyle(new MotionStyle(200));
    }

    void nothingMoves()
    {
        GameForm form;
        form.start();
        QTRY_VERIFY(ReducedMotion::isAskedFor());
        const auto isStill = [&form](QDialog &) { QCOMPARE(motions(form.window()), 0); };
        form.passTime(29); // letters are turned up, and the last seconds pass
        QCOMPARE(motions(form.window()), 0);
        form.expectMiss(isStill);
        form.passTime();
        form.answerRight();
        QCOMPARE(motions(form.window()), 0);
        form.expectMiss(isStill);
        form.answer(u"wrong"_s);
        form.answerRight(18);
        form.answers.expectMsgBox(u"Level 2"_s, QMessageBox::Ok, isStill);
        form.answerRight();
        form.expectTop10Entry(u"Ann"_s, [](QDialog &dialog) {
            const auto &celebration = *dialog.findChild<QVariantAnimation *>();
            QCOMPARE(celebration.state(), QAbstractAnimation::Stopped);
        });
        form.click("cmdQuit");
    }

    void aChangeIsFollowedInTheGame()
    {
        GameForm form;
        form.start();
        QTRY_VERIFY(ReducedMotion::isAskedFor());
        m_portal->changeTo(true);
        QTRY_VERIFY(!ReducedMotion::isAskedFor());
        form.answerRight();
        QVERIFY(motions(form.window()) > 0);
        m_portal->changeTo(false);
        QTRY_VERIFY(ReducedMotion::isAskedFor());
    }

private:
    SessionBus m_bus;
    std::unique_ptr<SettingsPortal> m_portal;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_ReducedMotion_test>(argc, argv);
}

#include "frmTanglewit_ReducedMotion_test.moc"
