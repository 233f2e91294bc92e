// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PagePreview.h"

#include "core/FreshState.h"
#include "core/ListTools.h"
#include "platform/PrintMetrics.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

#include <memory>

using namespace Module1;
using namespace Qt::StringLiterals;

class PagePreview_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshState>();
        for (int i = 1; i <= 200; ++i)
            gVocabList().AddVocab(u"word"_s, u"definition"_s, u"sentence"_s);
        FromWord = 1;
        ToWord = 200;
        m_preview = std::make_unique<PagePreview>();
        m_preview->resize(400, 500);
        m_preview->show();
        QVERIFY(QTest::qWaitForWindowActive(m_preview.get()));
        m_preview->setFocus();
        setPages();
        QTRY_VERIFY(isCounted());
    }

    void thePageAndTheNumberOfPagesAreShown()
    {
        QCOMPARE(m_preview->page(), 1);
        QVERIFY(m_preview->isFirst());
        QVERIFY(!m_preview->isLast());
        QCOMPARE(m_preview->pageText(), u"Page 1 of %1"_s.arg(count()));
    }

    void keysTurnThePages()
    {
        QTest::keyClick(m_preview.get(), Qt::Key_PageDown);
        QCOMPARE(m_preview->page(), 2);
        QTest::keyClick(m_preview.get(), Qt::Key_Right);
        QCOMPARE(m_preview->page(), 3);
        QTest::keyClick(m_preview.get(), Qt::Key_PageUp);
        QTest::keyClick(m_preview.get(), Qt::Key_Left);
        QCOMPARE(m_preview->page(), 1);
        QTest::keyClick(m_preview.get(), Qt::Key_PageUp);
        QCOMPARE(m_preview->page(), 1);
        QTest::keyClick(m_preview.get(), Qt::Key_End);
        QCOMPARE(m_preview->page(), count());
        QVERIFY(m_preview->isLast());
        QTest::keyClick(m_preview.get(), Qt::Key_PageDown);
        QCOMPARE(m_preview->page(), count());
        QTest::keyClick(m_preview.get(), Qt::Key_Home);
        QCOMPARE(m_preview->page(), 1);
    }

    void theLastPageCanBeShownBeforeThePagesAreCounted()
    {
        setPages();
        m_preview->goTo(PagePreview::Page::Last);
        QTRY_VERIFY(m_preview->isLast());
        QCOMPARE(m_preview->page(), count());
    }

    void theWheelTurnsThePages()
    {
        turn(-120);
        QCOMPARE(m_preview->page(), 2);
        turn(120);
        QCOMPARE(m_preview->page(), 1);
    }

    void partsOfAStepOfTheWheelAddUp()
    {
        for (int i = 0; i < 14; ++i)
            turn(-8);
        QCOMPARE(m_preview->page(), 1);
        turn(-8);
        QCOMPARE(m_preview->page(), 2);
        for (int i = 0; i < 15; ++i)
            turn(8);
        QCOMPARE(m_preview->page(), 1);
    }

    void aPageThatIsNotLaidOutYetShowsANotice()
    {
        makeLongList();
        const PagePreview::Pause pause(*m_preview);
        setPages();
        QVERIFY(!isCounted());
        m_preview->goTo(PagePreview::Page::Last);
        QVERIFY(m_preview->page() > 1);
        QVERIFY(darkPixelsInTheMiddle() > 0);
        // The first page is laid out. Its lines end above the middle.
        m_preview->goTo(PagePreview::Page::First);
        QCOMPARE(darkPixelsInTheMiddle(), 0);
    }

    void anErrorInTheBackgroundIsShownOnce()
    {
        makeLongList();
        {
            const PagePreview::Pause pause(*m_preview);
            setPages();
            QVERIFY(!isCounted());
            gVocabList().ClearList();
            gVocabList().AddVocab(u"word"_s, {}, {}); // the job expects more entries
        }
        DialogAnswers answers;
        answers.expectMsgBox(u"Run-time error '9':\n\nSubscript out of range"_s);
        QTRY_COMPARE(answers.seen(), 1);
        for (int i = 0; i < 100; ++i)
            QCoreApplication::processEvents(); // must not fail again in the background
        QVERIFY(answers.allSeen());
        QVERIFY(!isCounted());
    }

    void nothingIsLaidOutWhilePaused()
    {
        makeLongList();
        {
            const PagePreview::Pause pause(*m_preview);
            setPages();
            const QString before = m_preview->pageText();
            for (int i = 0; i < 200; ++i)
                QCoreApplication::processEvents();
            QCOMPARE(m_preview->pageText(), before);
            QVERIFY(!isCounted());
        }
        QTRY_VERIFY(isCounted());
    }

    void inActualSizeTheWheelScrollsToTheEndOfThePageFirst()
    {
        QTest::keyClick(m_preview.get(), Qt::Key_Plus);
        QScrollBar &bar = *m_preview->verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        turn(-120);
        QCOMPARE(m_preview->page(), 1);
        QVERIFY(bar.value() > 0);
        bar.setValue(bar.maximum());
        turn(-120);
        QCOMPARE(m_preview->page(), 2);
        QCOMPARE(bar.value(), 0);
        QTest::keyClick(m_preview.get(), Qt::Key_Minus);
        QCOMPARE(bar.maximum(), 0);
    }

    void whenThePageIsGoneTheLastOneIsShown()
    {
        m_preview->goTo(PagePreview::Page::Last);
        ToWord = 20;
        setPages();
        QTRY_VERIFY(isCounted());
        QVERIFY(m_preview->page() >= 1);
        QCOMPARE(m_preview->page(), count());
    }

    void anEmptyListHasNoPages()
    {
        gVocabList().ClearList();
        ToWord = 0;
        setPages();
        QTRY_VERIFY(isCounted());
        QCOMPARE(m_preview->pageText(), u"No pages"_s);
        QVERIFY(m_preview->isFirst() && m_preview->isLast());
        gVocabList().AddVocab(u"word"_s, {}, {});
        ToWord = 1;
        setPages();
        QTRY_VERIFY(isCounted());
        QCOMPARE(m_preview->pageText(), u"Page 1 of 1"_s);
    }

    void thePaperIsWhiteOnADarkerBackground_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::newRow("light") << QColor(0xEF, 0xF0, 0xF1);
        QTest::newRow("dark") << QColor(0x2A, 0x2E, 0x32);
    }

    void thePaperIsWhiteOnADarkerBackground()
    {
        QFETCH(QColor, window);
        QPalette palette = m_preview->palette();
        palette.setColor(QPalette::Window, window);
        m_preview->setPalette(palette);
        const QImage picture = m_preview->viewport()->grab().toImage();
        // The corner of the viewport, and the lower right part of the sheet, which has no text.
        const QColor ground = picture.pixelColor(2, 2);
        const QColor paper = picture.pixelColor(picture.width() / 2, picture.height() - 40);
        QCOMPARE(paper, QColor(Qt::white));
        QVERIFY(paper.lightness() - ground.lightness() > 40);
        QVERIFY(ground.lightness() < window.lightness());
    }

    void theMarginsAreDrawnAsLines()
    {
        const auto isLineAt = [this](double x) { // whether most of the lower half is coloured
            const QImage picture = m_preview->viewport()->grab().toImage();
            int coloured = 0;
            for (int y = picture.height() / 2; y < picture.height() - 20; ++y)
                for (const int near : {-1, 0, 1})
                    if (picture.pixelColor(qRound(x) + near, y).saturation() > 40) {
                        ++coloured;
                        break;
                    }
            return coloured > (picture.height() / 2 - 20) / 2;
        };
        const double inch = (m_preview->viewport()->height() - 32) / 11.0; // of the sheet
        const double left = (m_preview->viewport()->width() - 8 * inch) / 2;
        QVERIFY(!isLineAt(left + 2 * inch) && !isLineAt(left + 5 * inch));
        LeftMargin = Currency(2);
        RightMargin = Currency(3);
        setPages();
        QTRY_VERIFY(isCounted());
        QVERIFY(isLineAt(left + 2 * inch));
        QVERIFY(isLineAt(left + 5 * inch));
    }

private:
    void setPages()
    {
        const auto metrics =
            std::make_shared<PrintMetrics>(QSizeF(8, 11), QRectF(0, 0, 8, 11), 600);
        m_preview->setPages(
            std::make_unique<PreviewPages>(metrics, gVocabList(), WordListPrint::chosen(), 1));
    }
    // No text is in the middle of the sheet.
    void makeLongList()
    {
        for (int i = gVocabList().NumWords().toInt(); i < 30'000; ++i)
            gVocabList().AddVocab(u"word"_s, u"definition"_s, {});
        ToWord = gVocabList().NumWords();
    }
    [[nodiscard]] int darkPixelsInTheMiddle()
    {
        const QImage picture = m_preview->viewport()->grab().toImage();
        QRect middle(0, 0, 120, 30);
        middle.moveCenter(picture.rect().center());
        int dark = 0;
        for (int y = middle.top(); y <= middle.bottom(); ++y)
            for (int x = middle.left(); x <= middle.right(); ++x)
                dark += picture.pixelColor(x, y).lightness() < 128;
        return dark;
    }
    [[nodiscard]] bool isCounted() const { return !m_preview->pageText().contains(u"about"_s); }
    [[nodiscard]] int count() const
    {
        return m_preview->pageText().section(QLatin1Char(' '), -1).toInt();
    }
    void turn(int delta)
    {
        const QPointF middle(200, 250);
        QWheelEvent wheel(middle, m_preview->mapToGlobal(middle), {}, {0, delta}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_preview->viewport(), &wheel);
    }

    std::unique_ptr<FreshState> m_state;
    std::unique_ptr<PagePreview> m_preview;
};

int main(int argc, char *argv[])
{
    return runFormTest<PagePreview_test>(argc, argv);
}

#include "PagePreview_test.moc"
