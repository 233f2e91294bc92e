// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmSplash.h"

#include "platform/SvgPicture.h"
#include "support/Controls.h"
#include "support/FormTest.h"
#include "support/Layout.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QSet>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;

class frmSplash_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLabelsNameTheProgram_data()
    {
        QTest::addColumn<QByteArray>("label");
        QTest::addColumn<QString>("text");
        QTest::newRow("product") << "lblProductName"_ba << u"The Tanglewit"_s;
        QTest::newRow("maker") << "lblCompanyProduct"_ba << u"LexiBrook"_s;
        QTest::newRow("version") << "lblVersion"_ba << u"Version 1.0.0a"_s;
    }

    void theLabelsNameTheProgram()
    {
        QFETCH(QByteArray, label);
        frmSplash splash;
        splash.show();
        const auto &found = Controls::find<QLabel>(splash, label);
        QTEST(found.text(), "text");
        QVERIFY(found.isVisible());
    }

    void theVersionIsThatOfTheApplicationWithAnA()
    {
        frmSplash splash;
        splash.show();
        QCOMPARE(Controls::find<QLabel>(splash, "lblVersion").text(),
                 u"Version %1.%2.%3a"_s.arg(Application::Major())
                     .arg(Application::Minor())
                     .arg(Application::Revision()));
    }

    void theLegalNoticeIsThatOfTheApplication()
    {
        frmSplash splash;
        splash.show();
        QVERIFY(!Application::LegalCopyright().isEmpty());
        QCOMPARE(Controls::find<QLabel>(splash, "lblLegalNotice_1").text(),
                 Application::LegalCopyright());
        for (const char *label : {"lblLegalNotice_2", "lblWarning", "lblPlatform"})
            QVERIFY(!Controls::find<QLabel>(splash, label).text().isEmpty());
    }

    void thePictureIsThere()
    {
        frmSplash splash;
        splash.show();
        const auto &picture = Controls::find<SvgPicture>(splash, "Image1");
        QVERIFY(picture.isVisible());
        QVERIFY(QFile::exists(picture.source()));
        const QImage image = splash.grab().toImage();
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); y += 4)
            for (int x = 0; x < image.width(); x += 4)
                colours += image.pixel(x, y);
        QVERIFY(colours.size() > 20);
    }

    void nothingIsCut()
    {
        frmSplash splash;
        splash.show();
        QVERIFY(QTest::qWaitForWindowExposed(&splash));
        QCOMPARE(splash.findChildren<QLabel *>().size(), 7);
        Layout::checkNothingIsCut(splash);
        Layout::checkNames(splash);
    }

    void theTimerRunsFromTheMomentTheSplashIsShown()
    {
        frmSplash splash;
        const auto &timer = Controls::find<QTimer>(splash, "Timer1");
        QVERIFY(!timer.isActive());
        splash.show();
        QVERIFY(timer.isActive());
        QCOMPARE(timer.interval(), 3000);
    }

    void afterThreeSecondsTheSplashIsUnloadedOnce()
    {
        frmSplash splash;
        QSignalSpy unloaded(&splash, &frmSplash::unloaded);
        // The main window is shown only when the splash is gone.
        bool wasVisible = true;
        connect(&splash, &frmSplash::unloaded, this, [&] { wasVisible = splash.isVisible(); });
        QElapsedTimer shown;
        shown.start();
        splash.show();
        QVERIFY(unloaded.wait(10000));
        QVERIFY(shown.elapsed() >= 2850); // a coarse timer may be 5 % early
        QVERIFY(!wasVisible);
        QVERIFY(!Controls::find<QTimer>(splash, "Timer1").isActive());
        QCOMPARE(unloaded.size(), 1);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmSplash_test>(argc, argv);
}

#include "frmSplash_test.moc"
