// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/StepBar.h"

#include "support/FormTest.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QWheelEvent>

class StepBar_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bar.setRange(0, 30);
        m_bar.setPageStep(5);
        m_bar.setValue(10);
        m_bar.show();
        QVERIFY(QTest::qWaitForWindowActive(&m_bar));
        m_bar.setFocus();
    }

    void theUpperArrowRaisesAndTheLowerOneLowers()
    {
        clickAt(4);
        QCOMPARE(m_bar.value(), 11);
        clickAt(m_bar.height() - 4);
        clickAt(m_bar.height() - 4);
        QCOMPARE(m_bar.value(), 9);
    }

    void theArrowsStopAtTheEndsOfTheRange()
    {
        m_bar.setValue(0);
        clickAt(m_bar.height() - 4);
        QCOMPARE(m_bar.value(), 0);
        clickAt(4);
        QCOMPARE(m_bar.value(), 1);
        m_bar.setValue(30);
        clickAt(4);
        QCOMPARE(m_bar.value(), 30);
        clickAt(m_bar.height() - 4);
        QCOMPARE(m_bar.value(), 29);
    }

    void keysThatPointUpwardsRaise_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("value");
        QTest::newRow("Up") << Qt::Key_Up << 11;
        QTest::newRow("Down") << Qt::Key_Down << 9;
        QTest::newRow("PageUp") << Qt::Key_PageUp << 15;
        QTest::newRow("PageDown") << Qt::Key_PageDown << 5;
        QTest::newRow("Home") << Qt::Key_Home << 30;
        QTest::newRow("End") << Qt::Key_End << 0;
    }

    void keysThatPointUpwardsRaise()
    {
        QFETCH(Qt::Key, key);
        QSignalSpy changed(&m_bar, &StepBar::valueChanged);
        QTest::keyClick(&m_bar, key);
        QTEST(m_bar.value(), "value");
        QCOMPARE(changed.count(), 1);
    }

    void theWheelUpwardsRaises()
    {
        turn(120);
        QCOMPARE(m_bar.value(), 11);
        turn(-120);
        turn(-120);
        QCOMPARE(m_bar.value(), 9);
    }

    void partsOfAStepOfTheWheelAddUp()
    {
        for (int i = 0; i < 14; ++i)
            turn(8);
        QCOMPARE(m_bar.value(), 10);
        turn(8);
        QCOMPARE(m_bar.value(), 11);
        for (int i = 0; i < 30; ++i)
            turn(-8);
        QCOMPARE(m_bar.value(), 9);
        turn(240);
        QCOMPARE(m_bar.value(), 11);
    }

    void aTurnOfTheWheelInTheOtherDirectionBeginsANewStep()
    {
        turn(112);
        turn(-8);
        turn(112);
        QCOMPARE(m_bar.value(), 10);
    }

    void theWheelStepsTheNumberOnlyWhereTheFocusIs()
    {
        QWidget window;
        auto *other = new QLineEdit(&window);
        auto *box = new QLineEdit(&window);
        auto *bar = new StepBar(&window);
        bar->setRange(0, 30);
        bar->setValue(10);
        bar->setBox(box);
        QSignalSpy boxStepped(bar, &StepBar::boxStepped);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (QWidget *focus : {box, static_cast<QLineEdit *>(nullptr), other}) {
            (focus ? focus : bar)->setFocus();
            const bool isHere = focus != other;
            for (QWidget *under : {static_cast<QWidget *>(box), static_cast<QWidget *>(bar)}) {
                bar->setValue(10);
                QCOMPARE(turn(120, *under), isHere);
                QCOMPARE(bar->value(), isHere ? 11 : 10);
            }
        }
        QCOMPARE(boxStepped.count(), 2); // the box had the focus for two of the turns
    }

private:
    void clickAt(int y) { QTest::mouseClick(&m_bar, Qt::LeftButton, {}, {m_bar.width() / 2, y}); }
    void turn(int delta) { QVERIFY(turn(delta, m_bar)); }
    // False if the turn is left to others.
    static bool turn(int delta, QWidget &under)
    {
        QWheelEvent wheel({5, 5}, under.mapToGlobal(QPointF(5, 5)), {}, {0, delta}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&under, &wheel);
        return wheel.isAccepted();
    }

    StepBar m_bar;
};

int main(int argc, char *argv[])
{
    return runFormTest<StepBar_test>(argc, argv);
}

#include "StepBar_test.moc"
