// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OneLineBox.h"

#include "support/FormTest.h"

#include <QAction>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace {

void copyElsewhere(const QString &text)
{
    QApplication::clipboard()->setText(text);
}

// The part of both pictures in which they differ.
QRect difference(const QImage &one, const QImage &other)
{
    QRegion part;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (one.pixel(x, y) != other.pixel(x, y))
                part += QRect(x, y, 1, 1);
    return part.boundingRect();
}

} // namespace

class OneLineBox_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_box = std::make_unique<OneLineBox>();
        m_box->show();
        QVERIFY(QTest::qWaitForWindowActive(m_box.get()));
        m_box->setFocus();
    }

    void cleanup()
    {
        m_box.reset();
        QApplication::clipboard()->clear();
    }

    void lineBreaksGoAtTheEndsAndBecomeBlanksInside_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("no line break") << u" cat "_s << u" cat "_s;
        for (const auto &[name, lineBreak] :
             {std::pair("LF", "\n"), std::pair("CR", "\r"), std::pair("CR LF", "\r\n"),
              std::pair("line separator", "\u2028"), std::pair("paragraph separator", "\u2029")}) {
            const QString mark = QString::fromUtf8(lineBreak);
            QTest::addRow("%s at the end", name) << u"big cat"_s + mark << u"big cat"_s;
            QTest::addRow("%s at the beginning", name) << mark + u"big cat"_s << u"big cat"_s;
            QTest::addRow("%s inside", name) << u"big"_s + mark + u"cat"_s << u"big cat"_s;
            QTest::addRow("%s alone", name) << mark << QString();
        }
        QTest::newRow("several") << u"\r\n\nbig\r\n\r\ncat\n\r\n"_s << u"big  cat"_s;
        QTest::newRow("blanks beside them") << u"\n big \n cat \n"_s << u" big   cat "_s;
        QTest::newRow("a tab and a hard blank") << u"a\tb\u00A0c"_s << u"a\tb\u00A0c"_s;
    }

    void lineBreaksGoAtTheEndsAndBecomeBlanksInside()
    {
        QFETCH(QString, text);
        QTEST(oneLine(text), "line");
    }

    void everyWayOfPastingGivesOneLine_data()
    {
        QTest::addColumn<std::function<void(OneLineBox &)>>("paste");
        QTest::newRow("Ctrl+V") << std::function(
            [](OneLineBox &box) { QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier); });
        QTest::newRow("Shift+Insert") << std::function(
            [](OneLineBox &box) { QTest::keyClick(&box, Qt::Key_Insert, Qt::ShiftModifier); });
        QTest::newRow("the context menu") << std::function([](OneLineBox &box) {
            const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
            for (QAction *item : menu->actions())
                if (item->text().contains(u"&Paste"_s))
                    item->trigger();
        });
        QTest::newRow("a drop") << std::function([](OneLineBox &box) {
            QMimeData data;
            data.setText(QApplication::clipboard()->text());
            QDragEnterEvent drag({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&box, &drag);
            QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&box, &drop);
            QVERIFY(drop.isAccepted());
        });
    }

    void everyWayOfPastingGivesOneLine()
    {
        QFETCH(std::function<void(OneLineBox &)>, paste);
        copyElsewhere(u"\nbig\r\ncat\r\n"_s);
        paste(*m_box);
        QCOMPARE(m_box->text(), u"big cat"_s);
    }

    void aPasteReplacesWhatIsSelected()
    {
        m_box->setText(u"dog"_s);
        m_box->selectAll();
        copyElsewhere(u"cat\n"_s);
        QTest::keyClick(m_box.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m_box->text(), u"cat"_s);
        QTest::keyClick(m_box.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_box->text(), u"dog"_s);
    }

    void aPasteIsOneStepOfUndo()
    {
        QTest::keyClicks(m_box.get(), u"a"_s);
        copyElsewhere(u"\nbig\ncat\n"_s);
        QTest::keyClick(m_box.get(), Qt::Key_V, Qt::ControlModifier);
        QTest::keyClicks(m_box.get(), u"s"_s);
        QCOMPARE(m_box->text(), u"abig cats"_s);
        for (const char *before : {"abig cat", "a", ""}) {
            QTest::keyClick(m_box.get(), Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(m_box->text(), QLatin1String(before));
        }
        QTest::keyClick(m_box.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(m_box.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_box->text(), u"abig cat"_s);
    }

    void theSelectionStaysIfNothingCanBePasted_data()
    {
        QTest::addColumn<bool>("empty");
        QTest::newRow("an empty clipboard") << true;
        QTest::newRow("a line break alone") << false;
    }

    void theSelectionStaysIfNothingCanBePasted()
    {
        QFETCH(bool, empty);
        if (!empty)
            copyElsewhere(u"\r\n"_s);
        m_box->setText(u"cat"_s);
        m_box->selectAll();
        QTest::keyClick(m_box.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m_box->text(), u"cat"_s);
        QCOMPARE(m_box->selectedText(), u"cat"_s);
    }

    void theMaximumLengthIsKept()
    {
        m_box->setMaxLength(7);
        copyElsewhere(u"\n\nbig\ncats\n"_s);
        QTest::keyClick(m_box.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m_box->text(), u"big cat"_s);
    }

    void aReadOnlyBoxTakesNothing()
    {
        m_box->setReadOnly(true);
        copyElsewhere(u"cat"_s);
        QTest::keyClick(m_box.get(), Qt::Key_V, Qt::ControlModifier);
        m_box->paste();
        QCOMPARE(m_box->text(), QString());
    }

    void aTextSetByTheProgramIsNotChanged()
    {
        m_box->setText(u"big\ncat\n"_s);
        QCOMPARE(m_box->text(), u"big\ncat\n"_s);
    }

    // The place follows the text when it is scrolled.
    void aMarkIsPaintedBelowItsCharacters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("short") << u"gla\u0142cier"_s;
        QTest::newRow("longer than the box")
            << u"a long row of words "_s.repeated(10) + u"\u0142x"_s;
    }

    void aMarkIsPaintedBelowItsCharacters()
    {
        QFETCH(QString, text);
        m_box->resize(200, m_box->sizeHint().height());
        m_box->setText(text);
        const int lost = int(text.indexOf(u'\u0142'));
        const auto left = [this](int position) {
            m_box->setCursorPosition(position);
            return m_box->inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
        };
        const auto picture = [&] {
            m_box->setCursorPosition(int(text.size()));
            m_box->clearFocus(); // no cursor in the picture
            return m_box->grab().toImage();
        };
        const QImage plain = picture();
        m_box->showLostCharacters(true);
        const QRect painted = difference(plain, picture());
        QVERIFY(!painted.isEmpty());
        QVERIFY(std::abs(painted.left() - left(lost)) <= 2);
        QVERIFY(std::abs(painted.right() - left(lost + 1)) <= 2);
        QVERIFY(painted.top() > m_box->height() / 2);
        QCOMPARE(m_box->text(), text);
        QVERIFY(!m_box->isUndoAvailable());
    }

    void aTextFromRightToLeftIsMarkedWhereItStands()
    {
        m_box->resize(300, m_box->sizeHint().height());
        m_box->setText(u"\u05D0\u05D1 abc"_s);
        m_box->clearFocus();
        const QImage plain = m_box->grab().toImage();
        m_box->showLostCharacters(true);
        const QRect painted = difference(plain, m_box->grab().toImage());
        const auto at = [this](int position) {
            m_box->setCursorPosition(position);
            return m_box->inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
        };
        QVERIFY(!painted.isEmpty());
        QVERIFY(std::abs(painted.right() - at(0)) <= 2);
        QVERIFY(painted.left() > at(int(m_box->text().size())));
    }

    void differencesAreMarkedUntilTheTextChanges()
    {
        m_box->setText(u"Glacier"_s);
        const QImage plain = m_box->grab().toImage();
        m_box->showDifferences({{0, 1}});
        QCOMPARE(m_box->marks().size(), 1);
        const QRect painted = difference(plain, m_box->grab().toImage());
        QVERIFY(!painted.isEmpty() && painted.width() < m_box->width() / 2);
        QTest::keyClicks(m_box.get(), u"s"_s);
        QCOMPARE(m_box->marks().size(), 0);
    }

    // The text that is composed would shift what is behind it.
    void nothingIsMarkedWhileTextIsComposed()
    {
        m_box->setText(u"\u0142"_s);
        const auto compose = [this](const QString &text) {
            QInputMethodEvent event(text, {});
            QCoreApplication::sendEvent(m_box.get(), &event);
            return m_box->grab().toImage();
        };
        const QImage plain = compose(u"n"_s);
        m_box->showLostCharacters(true);
        QCOMPARE(compose(u"n"_s), plain);
        QVERIFY(compose({}) != plain);
    }

private:
    std::unique_ptr<OneLineBox> m_box;
};

int main(int argc, char *argv[])
{
    return runFormTest<OneLineBox_test>(argc, argv);
}

#include "OneLineBox_test.moc"
