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

private:
    std::unique_ptr<OneLineBox> m_box;
};

int main(int argc, char *argv[])
{
    return runFormTest<OneLineBox_test>(argc, argv);
}

#include "OneLineBox_test.moc"
