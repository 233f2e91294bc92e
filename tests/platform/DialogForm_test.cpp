// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DialogForm.h"

#include "support/FormTest.h"

#include <QDialog>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Usual(300, 200);

class KeptDialog final : public DialogForm
{
public:
    explicit KeptDialog(const QString &name)
    {
        setObjectName(name);
        resize(Usual);
        openAsLastClosed();
    }

    bool mayUnload = true;

protected:
    bool Form_QueryUnload() override { return mayUnload; }
};

class OtherDialog final : public DialogForm
{
public:
    OtherDialog()
    {
        setObjectName(u"dlgOther"_s);
        resize(Usual);
    }
};

template <class Dialog> void showActive(Dialog &dialog)
{
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
}

// The test's own name is that of the dialog, so that no test knows the places of another one.
QString testName()
{
    return QLatin1String(QTest::currentTestFunction());
}

QRect placeWhenOpened()
{
    KeptDialog dialog(testName());
    showActive(dialog);
    return dialog.geometry();
}

} // namespace

class DialogForm_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDialogOpensAgainWhereItWasClosed_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Esc") << true;
        QTest::newRow("close box") << false;
    }

    void aDialogOpensAgainWhereItWasClosed()
    {
        QFETCH(bool, byKey);
        const QRect place = byKey ? QRect(120, 90, 410, 320) : QRect(150, 60, 380, 350);
        {
            KeptDialog dialog(testName());
            showActive(dialog);
            dialog.setGeometry(place);
            if (byKey)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                QVERIFY(dialog.close());
            QVERIFY(!dialog.isVisible());
        }
        QCOMPARE(placeWhenOpened(), place);
    }

    void theFirstOneHasItsUsualSize() { QCOMPARE(placeWhenOpened().size(), Usual); }

    void oneThatRefusesToCloseIsNotRemembered()
    {
        KeptDialog dialog(testName());
        showActive(dialog);
        dialog.mayUnload = false;
        dialog.resize(500, 400);
        QVERIFY(!dialog.close());
        QCOMPARE(placeWhenOpened().size(), Usual);
    }

    void anotherDialogHasItsOwnPlace()
    {
        KeptDialog dialog(testName());
        showActive(dialog);
        dialog.setGeometry(120, 90, 410, 320);
        QVERIFY(dialog.close());
        KeptDialog other(u"dlgOther"_s);
        showActive(other);
        QCOMPARE(other.size(), Usual);
    }

    void aDialogThatDoesNotAskForItOpensAsUsual()
    {
        {
            OtherDialog dialog;
            showActive(dialog);
            dialog.resize(500, 400);
            QVERIFY(dialog.close());
        }
        OtherDialog dialog;
        showActive(dialog);
        QCOMPARE(dialog.size(), Usual);
    }

    void itComesBackOntoTheScreen_data()
    {
        QTest::addColumn<QRect>("closed");
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        QTest::newRow("right of it") << QRect(room.right() + 500, 40, 300, 200);
        QTest::newRow("below it") << QRect(40, room.bottom() + 500, 300, 200);
        QTest::newRow("above it") << QRect(40, -900, 300, 200);
        QTest::newRow("larger") << QRect(QPoint(), room.size() * 2);
        QTest::newRow("half outside") << QRect(room.right() - 100, room.bottom() - 100, 300, 200);
    }

    void itComesBackOntoTheScreen()
    {
        QFETCH(QRect, closed);
        {
            KeptDialog dialog(testName());
            showActive(dialog);
            dialog.setGeometry(closed);
            QVERIFY(dialog.close());
        }
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        const QRect opened = placeWhenOpened();
        QVERIFY2(room.contains(opened), qPrintable(u"%1,%2 %3x%4"_s.arg(opened.x())
                                                       .arg(opened.y())
                                                       .arg(opened.width())
                                                       .arg(opened.height())));
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<DialogForm_test>(argc, argv);
}

#include "DialogForm_test.moc"
