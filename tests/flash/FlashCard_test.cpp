// SPDX-License-Identifier: GPL-3.0-or-later
// The type size of a card, its clicks and its animation.
#include "flash/FlashCard.h"

#include "flash/FlashForm.h"
#include "support/FormTest.h"
#include "support/MotionStyle.h"
#include "support/Motions.h"

#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

// A text of words with this number of characters.
QString prose(int length)
{
    QString text;
    while (text.size() < length)
        text +=
            u"a small animal with soft fur that people keep as a companion and that hunts mice "_s;
    return text.left(length - 1) + u'.';
}

int typeSize(const FlashCard &card)
{
    return card.document()->defaultFont().pointSize();
}

// Whether the whole text is visible without scrolling.
bool fits(const FlashCard &card)
{
    const QScrollBar &bar = *card.verticalScrollBar();
    return bar.minimum() == bar.maximum();
}

} // namespace

class FlashCard_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(u"a small animal"_s); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void aShortTextIsShownInTheLargestType()
    {
        QCOMPARE(typeSize(card()), 32);
        QCOMPARE(typeSize(m_form->card("txtWord")), 32);
        m_form->clickCard();
        QCOMPARE(card().toPlainText(), u"a small animal"_s);
        QVERIFY(typeSize(card()) >= 28);
        QVERIFY(fits(card()));
    }

    void theLongerTheTextTheSmallerItsType()
    {
        int last = 100;
        for (const int length : {5, 40, 80, 163, 300, 600}) {
            card().setText(prose(length), FlashCard::Side::Front);
            QVERIFY(typeSize(card()) <= last);
            last = typeSize(card());
        }
        QVERIFY(last < 32);
        card().setText(u"cat"_s, FlashCard::Side::Front);
        QCOMPARE(typeSize(card()), 32);
    }

    void aDefinitionOf163CharactersFits()
    {
        start(prose(163));
        m_form->clickCard();
        QCOMPARE(card().toPlainText(), prose(163));
        QVERIFY(fits(card()));
        QVERIFY(typeSize(card()) >= 12);
    }

    void aTextThatFitsScrollsAtNoHeight()
    {
        card().setText(prose(163), FlashCard::Side::Front);
        for (int height = 400; height < 700; ++height) {
            m_form->dialog().resize(700, height);
            QTRY_COMPARE(m_form->dialog().height(), height);
            QCoreApplication::processEvents();
            QVERIFY2(fits(card()), qPrintable(QString::number(height)));
        }
    }

    void aDefinitionOf2000CharactersScrollsInTheSmallestType()
    {
        start(prose(2000));
        m_form->clickCard();
        QCOMPARE(card().toPlainText(), prose(2000));
        QCOMPARE(typeSize(card()), 12);
        QScrollBar &bar = *card().verticalScrollBar();
        QVERIFY(!fits(card()));
        QVERIFY(bar.isVisible());
        QCOMPARE(bar.value(), 0);
        // The keyboard scrolls it to its end.
        card().setFocus();
        for (int i = 0; i < 20; ++i)
            Controls::press(Qt::Key_PageDown);
        QCOMPARE(bar.value(), bar.maximum());
        // The next text is shown from its beginning.
        m_form->click("cmdNext");
        QVERIFY(fits(card()));
        m_form->clickCard();
        QCOMPARE(bar.value(), 0);
    }

    void aWordWithoutABlankIsBrokenRatherThanCut()
    {
        card().setText(QString(100, u'm'), FlashCard::Side::Front);
        QCOMPARE(card().horizontalScrollBar()->maximum(), 0);
        QVERIFY(fits(card()));
    }

    void aWordThatIsBrokenIsInTheMiddle()
    {
        card().setText(QString(150, u'm'), FlashCard::Side::Front);
        QCOMPARE(typeSize(card()), 12);
        QTextCursor place(card().document());
        const QRect first = card().cursorRect(place);
        place.movePosition(QTextCursor::End);
        const QRect last = card().cursorRect(place);
        QVERIFY(last.top() > first.bottom());
        const int above = card().viewport()->y() + first.top() - card().contentsRect().top();
        const int below = card().contentsRect().bottom() - card().viewport()->y() - last.bottom();
        QVERIFY2(qAbs(above - below) < first.height() / 2,
                 qPrintable(u"%1, %2"_s.arg(above).arg(below)));
    }

    void aWordThatIsLongerThanTheCardStartsAtItsTop()
    {
        card().setText(QString(5000, u'm'), FlashCard::Side::Front);
        QVERIFY(!fits(card()));
        QCOMPARE(card().viewport()->y(), card().contentsRect().y());
        QCOMPARE(card().verticalScrollBar()->value(), 0);
    }

    void theTypeFollowsTheSizeOfTheCard()
    {
        m_form->dialog().resize(600, 400);
        card().setText(prose(163), FlashCard::Side::Front);
        QTRY_VERIFY(typeSize(card()) < 24);
        const int size = typeSize(card());
        m_form->dialog().resize(1000, 700);
        QTRY_VERIFY(typeSize(card()) > size);
        QVERIFY(fits(card()));
    }

    void theStyleFollowsTheSide()
    {
        m_form->dialog().setStyleSheet(u"FlashCard[back=\"true\"] { background: red; }"_s);
        const auto isRed = [this] {
            return card().grab().toImage().pixelColor(10, card().height() / 2) == QColor(Qt::red);
        };
        QVERIFY(isRed());
        card().setText(u"front"_s, FlashCard::Side::Front);
        QVERIFY(!isRed());
        card().setText(u"back"_s, FlashCard::Side::Back);
        QVERIFY(isRed());
    }

    void aLineBreakInADefinitionIsOneOnTheCard()
    {
        start(u"a small\r\nanimal"_s);
        m_form->clickCard();
        QCOMPARE(card().toPlainText(), u"a small\nanimal"_s);
    }

    void emptyLinesAroundTheTextAreNotShown()
    {
        card().setText(u"a small\r\n\r\nanimal"_s, FlashCard::Side::Front);
        const QImage text = card().grab().toImage();
        const QString whole = u"\r\n \r\na small\r\n\r\nanimal"_s + QString(200, u' ') +
                              u"\r\n"_s.repeated(60) + u' ';
        card().setText(whole, FlashCard::Side::Front);
        QCOMPARE(card().grab().toImage(), text);
        QCOMPARE(card().toPlainText(), QString(whole).remove(u'\r'));
        // There is nothing to scroll to.
        QVERIFY(fits(card()));
    }

    void aLongTextScrollsToItsLastLineOnly()
    {
        card().setText(prose(2000), FlashCard::Side::Front);
        const int last = card().verticalScrollBar()->maximum();
        QVERIFY(last > 0);
        card().setText(prose(2000) + u"\n"_s.repeated(60), FlashCard::Side::Front);
        QCOMPARE(card().verticalScrollBar()->maximum(), last);
    }

    void aCardOfEmptyLinesIsEmpty()
    {
        card().setText({}, FlashCard::Side::Front);
        const QImage empty = card().grab().toImage();
        card().setText(u"\r\n \r\n"_s, FlashCard::Side::Front);
        QCOMPARE(card().grab().toImage(), empty);
    }

    void theCardTakesNoTyping()
    {
        card().setFocus();
        QTest::keyClicks(&card(), u"cat"_s);
        QCOMPARE(card().toPlainText(), u"Click on card\n"_s);
    }

    void onlyTheLeftButtonOverTheCardIsAClick()
    {
        QSignalSpy clicks(&card(), &FlashCard::Click);
        QWidget *viewport = card().viewport();
        QTest::mouseClick(viewport, Qt::RightButton);
        QTest::mousePress(viewport, Qt::LeftButton);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, QPoint(-50, -50));
        QCOMPARE(clicks.count(), 0);
        QTest::mouseClick(viewport, Qt::LeftButton);
        QCOMPARE(clicks.count(), 1);
    }

    void theWholeCardTakesClicks()
    {
        FlashCard &card = m_form->card("txtDef");
        QSignalSpy clicks(&card, &FlashCard::Click);
        const QPoint aboveTheText(card.width() / 2, 10);
        QVERIFY(!card.viewport()->geometry().contains(aboveTheText));
        QTest::mouseClick(&card, Qt::LeftButton, {}, aboveTheText);
        QCOMPARE(clicks.count(), 1);
    }

    void openingTheCardIsAnimated()
    {
        setMotion(50);
        m_form->clickCard();
        QCOMPARE(turns(), 1);
        // The text changes at once, and the animation ends by itself.
        QCOMPARE(m_form->definition(), u"a small animal"_s);
        QTRY_COMPARE(turns(), 0);
    }

    void theCardThatTurnsHasRoundCorners()
    {
        setMotion(10'000);
        card().turnTo(u"a small animal"_s, FlashCard::Side::Front);
        QCOMPARE(turns(), 1);
        // Its first picture has the full width.
        const QImage first = card().grab().toImage();
        const QColor behind = m_form->dialog().palette().color(QPalette::Window);
        QCOMPARE(first.pixelColor(0, 0), behind);
        QCOMPARE(first.pixelColor(first.width() - 1, first.height() - 1), behind);
        QVERIFY(first.pixelColor(0, first.height() / 2) != behind);
    }

    void withoutAnimationsTheCardOpensAtOnce()
    {
        setMotion(0);
        m_form->clickCard();
        QCOMPARE(turns(), 0);
        QCOMPARE(m_form->definition(), u"a small animal"_s);
    }

    void clickingAnOpenCardIsNotAnimated()
    {
        setMotion(0);
        m_form->clickCard();
        setMotion(10'000);
        m_form->clickCard();
        QCOMPARE(turns(), 0);
    }

    void theNextCardEndsTheAnimation()
    {
        setMotion(10'000);
        m_form->clickCard();
        QCOMPARE(turns(), 1);
        m_form->click("cmdNext");
        QTRY_COMPARE_WITH_TIMEOUT(turns(), 0, 1000);
        QCOMPARE(m_form->definition(), u"Click on card"_s);
    }

private:
    void start(const QString &definition)
    {
        m_form.reset();
        m_form = std::make_unique<FlashForm>(definition);
    }

    [[nodiscard]] FlashCard &card() { return m_form->card("txtDef"); }

    void setMotion(int duration)
    {
        auto *style = new MotionStyle(duration);
        style->setParent(&m_form->dialog());
        card().setStyle(style);
    }

    [[nodiscard]] int turns() { return motions(card()); }

    std::unique_ptr<FlashForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<FlashCard_test>(argc, argv);
}

#include "FlashCard_test.moc"
