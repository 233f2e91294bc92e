// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the texts and controls of every window stand out, in the style's own palette, a light, a
// dark and a high-contrast one.
#include "support/WindowContrast.h"

#include "editor/EveryWindow.h"
#include "help/HandbookText.h"
#include "platform/Appearance.h"
#include "support/Contrast.h"
#include "support/FormTest.h"

#include <QStyle>

using namespace Contrast;
using namespace Qt::StringLiterals;

class WindowContrast_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("of the style") << QApplication::style()->standardPalette();
        QTest::newRow("light") << lightPalette();
        QTest::newRow("dark") << darkPalette();
        QTest::newRow("high contrast") << highContrastPalette();
    }

    void linksInTheHandbookAreReadable()
    {
        QFETCH_GLOBAL(QPalette, palette);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        for (const char *head : {"", "<link rel='stylesheet' href='handbook.css'>"}) {
            HandbookText text(nullptr);
            text.setHtml(
                u"<html><head>%1</head><body><h1><a href='x.html'>IIIIII</a></h1></body>"_s.arg(
                    QLatin1String(head)));
            text.resize(400, 200);
            text.show();
            const QRect place(text.viewport()->pos(), text.viewport()->size());
            const Seen seen(text.grab(place.adjusted(8, 8, -8, -8)).toImage());
            QVERIFY2(seen.contrastOfInk() >= ReadableText, qPrintable(seen.text()));
            QCOMPARE(seen.ink, accentColour(QApplication::palette()));
        }
    }

    void textsBordersAndTheFocusStandOut_data() { EveryWindow::addRows(); }

    void textsBordersAndTheFocusStandOut()
    {
        QFETCH_GLOBAL(QPalette, palette);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        EveryWindow::open([](QWidget &window) {
            const QStringList weak = WindowContrast::weakTexts(window) +
                                     WindowContrast::weakBorders(window) +
                                     WindowContrast::weakFocusFrames(window);
            QVERIFY2(weak.isEmpty(), qPrintable(weak.join(u"; "_s)));
        });
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<WindowContrast_test>(argc, argv);
}

#include "WindowContrast_test.moc"
