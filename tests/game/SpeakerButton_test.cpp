// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/SpeakerButton.h"

#include "game/SoundRequests.h"
#include "support/Contrast.h"
#include "support/Controls.h"
#include "support/FormTest.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMenu>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

class SpeakerButton_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_palette = QApplication::palette();
        setSoundMuted(false);
        setSoundVolume(100);
        m_window = std::make_unique<QWidget>();
        auto *column = new QVBoxLayout(m_window.get());
        column->addWidget(m_box = new QLineEdit);
        column->addWidget(m_button = new SpeakerButton);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_box->setFocus();
    }

    void cleanup()
    {
        m_window.reset();
        QApplication::setPalette(m_palette);
    }

    void aClickMutesAndAnotherOneEndsIt()
    {
        SoundRequests sounds;
        QTest::mouseClick(m_button, Qt::LeftButton, {}, QPoint(12, 16));
        QVERIFY(isSoundMuted());
        QVERIFY(m_button->isChecked());
        QCOMPARE(m_button->toolTip(), u"Hear the music again (Ctrl+M)"_s);
        QCOMPARE(QApplication::focusWidget(), m_box);
        QTest::mouseClick(m_button, Qt::LeftButton, {}, QPoint(12, 16));
        QVERIFY(!isSoundMuted());
        QCOMPARE(m_button->toolTip(), u"Mute the music (Ctrl+M)"_s);
        QCOMPARE(sounds.take(), QStringList()); // no track stops or starts
    }

    void ctrlMMutesFromAnywhereInTheWindow()
    {
        QTest::keyClick(m_box, Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(isSoundMuted());
        QCOMPARE(m_box->text(), QString());
        QTRY_VERIFY(!m_button->isDown());
        QTest::keyClick(m_box, Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(!isSoundMuted());
    }

    void whileItIsHiddenCtrlMDoesNothing()
    {
        m_button->hide();
        QTest::keyClick(m_box, Qt::Key_M, Qt::ControlModifier);
        QVERIFY(!m_button->isDown());
        QVERIFY(!isSoundMuted());
    }

    void theKeyboardReachesIt()
    {
        QTest::keyClick(m_box, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), m_button);
        QTest::keyClick(m_button, Qt::Key_Space);
        QVERIFY(isSoundMuted());
        // Setting a volume ends the muting.
        QTest::keyClick(m_button, Qt::Key_Down);
        QCOMPARE(soundVolume(), 90);
        QVERIFY(!isSoundMuted());
        QVERIFY(!m_button->isChecked());
        QTest::keyClick(m_button, Qt::Key_Up);
        QTest::keyClick(m_button, Qt::Key_Up);
        QCOMPARE(soundVolume(), 100);
    }

    void theMenuSetsTheVolume()
    {
        auto &slider = Controls::find<QSlider>(*m_button, "volume");
        bool isOpen = false;
        QTimer::singleShot(0, this, [&] {
            isOpen = slider.isVisible();
            QTest::keyClick(&slider, Qt::Key_Left);
            QTest::keyClick(&slider, Qt::Key_Left);
            m_button->menu()->close();
        });
        m_button->showMenu();
        QVERIFY(isOpen);
        QCOMPARE(soundVolume(), 80);
        QCOMPARE(slider.accessibleName(), u"Music volume"_s);
    }

    void whatIsSetIsKeptForTheNextWindow()
    {
        setSoundVolume(30);
        setSoundMuted(true);
        SpeakerButton next;
        next.show();
        QVERIFY(next.isChecked());
        QCOMPARE(Controls::find<QSlider>(next, "volume").value(), 30);
        QCOMPARE(soundVolume(), 30);
        QVERIFY(isSoundMuted());
    }

    void aScreenReaderSaysWhatItDoesAndWhetherItIsOn()
    {
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(m_button);
        QCOMPARE(spoken->text(QAccessible::Name), u"Mute music"_s);
        QVERIFY(spoken->state().checkable);
        QVERIFY(!spoken->state().checked);
        QCOMPARE(spoken->text(QAccessible::Description), u"Volume 100 percent"_s);
        m_button->click();
        QVERIFY(spoken->state().checked);
    }

    void theSpeakerShowsTheStateAndCanBeSeen_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << Contrast::lightPalette();
        QTest::newRow("dark") << Contrast::darkPalette();
    }

    void theSpeakerShowsTheStateAndCanBeSeen()
    {
        QFETCH(QPalette, palette);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        QList<QImage> looks;
        const auto look = [&] { looks += m_button->grab().toImage(); };
        look();
        setSoundVolume(50);
        look();
        setSoundVolume(10);
        look();
        setSoundVolume(0);
        look();
        setSoundMuted(true);
        look();
        for (qsizetype i = 0; i < looks.size(); ++i)
            for (qsizetype j = 0; j < i; ++j)
                QVERIFY(looks[i] != looks[j]);
        // The body of the speaker on the button.
        const QImage &image = looks.constFirst();
        const QColor body = image.pixelColor(6 + 9, image.height() / 2);
        const QColor behind = image.pixelColor(4, image.height() / 2);
        QVERIFY(Contrast::contrast(body, behind) >= Contrast::ReadableText);
    }

private:
    QPalette m_palette;
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_box = nullptr;
    SpeakerButton *m_button = nullptr;
};

int main(int argc, char *argv[])
{
    return runFormTest<SpeakerButton_test>(argc, argv);
}

#include "SpeakerButton_test.moc"
