// SPDX-License-Identifier: GPL-3.0-or-later
// Layout, colours and keyboard use of the print dialog.
#include "platform/Appearance.h"
#include "print/PrintForm.h"
#include "support/FormTest.h"
#include "support/Layout.h"

#include <QAccessible>
#include <QLabel>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

// Between the most frequent colour and the one that differs most from it.
double contrastIn(const QImage &picture)
{
    std::map<QRgb, int> pixels;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++pixels[picture.pixel(x, y)];
    const auto ground = std::max_element(pixels.begin(), pixels.end(),
                                         [](auto &a, auto &b) { return a.second < b.second; });
    double most = 1;
    for (const auto &[colour, count] : pixels)
        most = std::max(most, contrast(QColor(colour), QColor(ground->first)));
    return most;
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x31, 0x36, 0x3B), QColor(0x2A, 0x2E, 0x32));
    palette.setColor(QPalette::Base, QColor(0x1B, 0x1E, 0x20));
    palette.setColor(QPalette::Text, QColor(0xFC, 0xFC, 0xFC));
    palette.setColor(QPalette::ButtonText, QColor(0xFC, 0xFC, 0xFC));
    palette.setColor(QPalette::WindowText, QColor(0xFC, 0xFC, 0xFC));
    return palette;
}

// Sets the application's font and palette while it exists.
class Looks final
{
public:
    explicit Looks(double fontScale, const QPalette &palette = QApplication::palette())
    {
        QFont font = m_font;
        font.setPointSizeF(font.pointSizeF() * fontScale);
        QApplication::setFont(font);
        QApplication::setPalette(palette);
        applyAppearance(*qApp);
    }
    Q_DISABLE_COPY_MOVE(Looks)
    ~Looks()
    {
        QApplication::setFont(m_font);
        QApplication::setPalette(m_palette);
        applyAppearance(*qApp);
    }

private:
    QFont m_font = QApplication::font();
    QPalette m_palette = QApplication::palette();
};

bool isCounted(PrintForm &form)
{
    return !form.control<QLabel>("lblPage").text().contains(u"about"_s);
}

} // namespace

class frmPrint_Layout_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlsDoNotOverlapAndAreNotCutOff_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("fontScale");
        QTest::newRow("800x600") << QSize(800, 600) << 1.0;
        QTest::newRow("1024x768") << QSize(1024, 768) << 1.0;
        QTest::newRow("1920x1080") << QSize(1920, 1080) << 1.0;
        QTest::newRow("1024x768, large font") << QSize(1024, 768) << 1.5;
        QTest::newRow("1920x1080, large font") << QSize(1920, 1080) << 1.5;
    }

    void controlsDoNotOverlapAndAreNotCutOff()
    {
        QFETCH(QSize, size);
        QFETCH(double, fontScale);
        const Looks looks(fontScale);
        PrintForm form;
        frmPrint &dialog = form.dialog();
        const QSize least = dialog.minimumSizeHint();
        QVERIFY2(least.width() <= size.width() && least.height() <= size.height(),
                 qPrintable(u"%1x%2"_s.arg(least.width()).arg(least.height())));
        dialog.resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(dialog.size(), size);
        QVERIFY(Layout::visibleControls(dialog).size() > 30);
        Layout::checkNothingIsCut(dialog);
        Layout::checkNames(dialog);
        for (const char *box : {"txtTopMargin", "txtFromWord", "txtCopies"}) {
            const auto &line = form.control<QLineEdit>(box);
            QVERIFY2(line.width() >= line.fontMetrics().horizontalAdvance(u"32767"_s) + 12, box);
            QVERIFY2(line.height() >= line.fontMetrics().height() + 4, box);
        }
    }

    void onALowScreenTheSettingsScrollAndTheButtonsStay_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("fontScale");
        const QSize frame(16, 48);
        QTest::newRow("911x512") << QSize(911, 512) - frame << 1.0;
        QTest::newRow("800x600") << QSize(800, 600) - frame << 1.0;
        QTest::newRow("768x1024") << QSize(768, 1024) - frame << 1.0;
        QTest::newRow("1024x768, large font") << QSize(1024, 768) - frame << 1.5;
        QTest::newRow("1920x1080, very large font") << QSize(1920, 1080) - frame << 2.0;
    }

    void onALowScreenTheSettingsScrollAndTheButtonsStay()
    {
        QFETCH(QSize, size);
        QFETCH(double, fontScale);
        const Looks looks(fontScale);
        PrintForm form;
        form.click("optSubset");
        form.dialog().resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(form.dialog().size(), size);
        const auto isInView = [&form](const QWidget &control) {
            return !control.visibleRegion().isEmpty() &&
                   control.visibleRegion().boundingRect() == control.rect();
        };
        auto &settings = form.control<QWidget>("settings");
        const QStringList order = Controls::tabRound(Qt::Key_Tab);
        QVERIFY(order.size() > 15);
        for (const QString &name : order) {
            const auto &control = form.control<QWidget>(Controls::focusedControl().toUtf8());
            QVERIFY2(isInView(control), qPrintable(name));
            Controls::press(Qt::Key_Tab); // scrolls the next one into view
            for (const char *button : {"cmdPrint", "cmdCancel", "cmdZoom", "lblPage"})
                QVERIFY2(isInView(form.control<QWidget>(button)), button);
        }
        QVERIFY(settings.width() >= settings.minimumSizeHint().width());
    }

    void theDialogFitsOnASmallScreen()
    {
        PrintForm form;
        QVERIFY(form.dialog().width() <= 1024 && form.dialog().height() <= 768 - 40);
    }

    void allTextsCanBeRead_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << QApplication::palette();
        QTest::newRow("dark") << darkPalette();
    }

    void allTextsCanBeRead()
    {
        QFETCH(QPalette, palette);
        const Looks looks(1, palette);
        PrintForm form(500);
        form.click("optSubset");
        form.typeAndLeave("txtFromWord", u"1"_s);
        form.typeAndLeave("txtToWord", u"500"_s);
        QTRY_VERIFY(form.isEnabled("cmdNextPage"));
        const QImage picture = form.dialog().grab().toImage();
        for (const QWidget *control : Layout::visibleControls(form.dialog())) {
            const bool hasText = qobject_cast<const QLabel *>(control) ||
                                 qobject_cast<const QAbstractButton *>(control) ||
                                 qobject_cast<const QLineEdit *>(control) ||
                                 qobject_cast<const QListWidget *>(control);
            if (!hasText)
                continue;
            // Without the border of a button or box.
            const QRect inside = Layout::placeOf(*control).adjusted(3, 3, -3, -3);
            const double read = contrastIn(picture.copy(inside));
            QVERIFY2(read >= (control->isEnabled() ? 4.5 : 2.5),
                     control->objectName().toUtf8() + ' ' + QByteArray::number(read));
        }
    }

    void theTabOrderFollowsTheLayout()
    {
        PrintForm form;
        form.click("optSubset");
        form.control<QWidget>("lstPrinter").setFocus();
        const QStringList order = Controls::tabRound(Qt::Key_Tab);
        // Only the checked option buttons and the enabled page buttons can have the focus.
        QCOMPARE(order,
                 QStringList({u"lstPrinter"_s,      u"optPortrait"_s,        u"txtCopies"_s,
                              u"vsc_Copies"_s,      u"optSubset"_s,          u"txtFromWord"_s,
                              u"txtToWord"_s,       u"chkPrintItemNumber"_s, u"txtTopMargin"_s,
                              u"vsc_TopMargin"_s,   u"txtLeftMargin"_s,      u"vsc_LeftMargin"_s,
                              u"txtBottomMargin"_s, u"vsc_BottomMargin"_s,   u"txtRightMargin"_s,
                              u"vsc_RightMargin"_s, u"cmdPrint"_s,           u"cmdCancel"_s,
                              u"preview"_s,         u"cmdNextPage"_s,        u"cmdLastPage"_s,
                              u"cmdZoom"_s}));
    }

    void theListOfPrintersHasTheFocusFirst()
    {
        PrintForm form;
        QCOMPARE(Controls::focusedControl(), u"lstPrinter"_s);
    }

    void eachButtonHasAShortcutOfItsOwn()
    {
        PrintForm form;
        std::set<QChar> keys;
        for (const auto *button : form.dialog().findChildren<QAbstractButton *>()) {
            const qsizetype mark = button->text().indexOf(u'&');
            if (mark >= 0)
                QVERIFY2(keys.insert(button->text().at(mark + 1).toLower()).second,
                         qPrintable(button->text()));
        }
        QCOMPARE(keys.size(), std::size_t(2));
    }

    void eachControlHasANameForAssistiveTools()
    {
        PrintForm form;
        std::set<QString> names;
        for (const QWidget *control : Layout::visibleControls(form.dialog())) {
            if (control->focusPolicy() == Qt::NoFocus)
                continue;
            const auto *button = qobject_cast<const QAbstractButton *>(control);
            QString name = control->accessibleName();
            if (name.isEmpty() && button)
                name = button->text();
            QVERIFY2(!name.isEmpty(), qPrintable(control->objectName()));
            if (!control->objectName().endsWith(u"Copies"))
                QVERIFY2(names.insert(name).second, qPrintable(name));
        }
    }

    void keysTurnThePages()
    {
        PrintForm form(500);
        QTRY_VERIFY(!form.control<QLabel>("lblPage").text().contains(u"about"_s));
        const QString count = form.control<QLabel>("lblPage").text().section(QLatin1Char(' '), -1);
        const auto page = [&form](const QString &number) {
            return u"Page "_s + number + u" of "_s;
        };
        const auto shows = [&form, &page](const QString &number) {
            return form.control<QLabel>("lblPage").text().startsWith(page(number));
        };
        QVERIFY(count.toInt() > 3);
        QVERIFY(shows(u"1"_s));
        QVERIFY(!form.isEnabled("cmdFirstPage") && !form.isEnabled("cmdPreviousPage"));
        Controls::press(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(shows(u"2"_s));
        QVERIFY(form.isEnabled("cmdFirstPage") && form.isEnabled("cmdPreviousPage"));
        Controls::press(Qt::Key_PageUp, Qt::ControlModifier);
        QVERIFY(shows(u"1"_s));
        form.click("cmdNextPage");
        form.click("cmdNextPage");
        QVERIFY(shows(u"3"_s));
        form.click("cmdPreviousPage");
        QVERIFY(shows(u"2"_s));
        form.click("cmdLastPage");
        QVERIFY(shows(count));
        QVERIFY(!form.isEnabled("cmdLastPage") && !form.isEnabled("cmdNextPage"));
        form.click("cmdFirstPage");
        QVERIFY(shows(u"1"_s));
    }

    void aClickOnAPageButtonTakesWhatIsTyped()
    {
        PrintForm form(100);
        form.type("txtLeftMargin", u"1.5"_s);
        form.click("cmdNextPage");
        QCOMPARE(Controls::focusedControl(), u"txtLeftMargin"_s);
        QCOMPARE(form.text("txtLeftMargin"), u"1.50"_s);
        QCOMPARE(Module1::LeftMargin, Currency::fromScaled(15'000));
    }

    void aStepToTheLastPageKeepsTheKeyboard()
    {
        PrintForm form(100);
        QTRY_VERIFY(isCounted(form));
        form.control<QWidget>("cmdNextPage").setFocus();
        while (!form.control<QLabel>("lblPage").text().startsWith(u"Page 6"))
            Controls::press(Qt::Key_Space);
        QCOMPARE(form.control<QLabel>("lblPage").text(), u"Page 6 of 6"_s);
        QCOMPARE(Controls::focusedControl(), u"cmdNextPage"_s);
        Controls::press(Qt::Key_Space);
        QCOMPARE(form.control<QLabel>("lblPage").text(), u"Page 6 of 6"_s);
        Controls::press(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(Controls::focusedControl(), u"cmdPreviousPage"_s);
        QVERIFY(!form.isEnabled("cmdNextPage"));
    }

    void aScreenReaderHearsThePagesOnceTheyAreCounted()
    {
        // A screen reader is told of each change of the name. QLabel tells of a text only without
        // one.
        PrintForm form(20'000);
        const auto &label = form.control<QLabel>("lblPage");
        QStringList heard{label.accessibleName()};
        QVERIFY(label.text().contains(u"about"_s));
        QCOMPARE(heard, QStringList(u"Pages"_s));
        int changes = 0;
        const auto hear = [&] {
            ++changes;
            if (label.accessibleName() != heard.constLast())
                heard += label.accessibleName();
        };
        connect(&form.control<PagePreview>("preview"), &PagePreview::changed, this, hear);
        QTRY_VERIFY(isCounted(form));
        QVERIFY(changes > 2);
        const QString text = label.text();
        QCOMPARE(heard, QStringList({u"Pages"_s, text}));
        Controls::press(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(label.text() != text);
        QCOMPARE(label.accessibleName(), label.text());
        QCOMPARE(form.control<QWidget>("preview").accessibleDescription(), QString());
        const auto *accessible =
            QAccessible::queryAccessibleInterface(&form.control<QLabel>("lblPage"));
        QCOMPARE(accessible->role(), QAccessible::StatusBar);
    }

    void thePreviewFollowsEachSetting()
    {
        PrintForm form(500);
        const auto pages = [&form] {
            const auto &label = form.control<QLabel>("lblPage");
            if (!QTest::qWaitFor([&label] { return !label.text().contains(u"about"_s); }))
                failTest(u"the pages are not counted"_s);
            return label.text().section(QLatin1Char(' '), -1).toInt();
        };
        const int all = pages();
        form.typeAndLeave("txtTopMargin", u"3"_s);
        const int shorter = pages();
        QVERIFY(shorter > all);
        form.click("optLandscape");
        QVERIFY(pages() > shorter);
        form.click("optPortrait");
        QCOMPARE(pages(), shorter);
        form.control<StepBar>("vsc_TopMargin").setValue(0);
        QCOMPARE(pages(), all);
        form.control<StepBar>("vsc_Copies").setValue(2);
        QCOMPARE(pages(), 2 * all);
        form.control<StepBar>("vsc_Copies").setValue(1);
        form.click("optSubset");
        form.typeAndLeave("txtToWord", u"2"_s);
        QCOMPARE(pages(), 1);
        form.click("optPrintAllWords");
        QCOMPARE(pages(), all);
        QCOMPARE(gVocabList().CurrentWord(), Integer(500));
    }

    void thePreviewFollowsHundredthsOfAnInch()
    {
        PrintForm form(2);
        const auto picture = [&form] { return form.control<QWidget>("preview").grab().toImage(); };
        QTRY_COMPARE(form.control<QLabel>("lblPage").text(), u"Page 1 of 1"_s);
        const QImage before = picture();
        QCOMPARE(picture(), before);
        form.typeAndLeave("txtLeftMargin", u"0.04"_s);
        QCOMPARE(form.value("vsc_LeftMargin"), 0);
        QVERIFY(picture() != before);
    }

    void theZoomButtonNamesTheNextZoom()
    {
        PrintForm form;
        QCOMPARE(form.control<QPushButton>("cmdZoom").text(), u"Actual size"_s);
        form.click("cmdZoom");
        QCOMPARE(form.control<QPushButton>("cmdZoom").text(), u"Whole page"_s);
        form.click("cmdZoom");
        QCOMPARE(form.control<QPushButton>("cmdZoom").text(), u"Actual size"_s);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmPrint_Layout_test>(argc, argv);
}

#include "frmPrint_Layout_test.moc"
