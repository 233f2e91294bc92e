// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Appearance.h"

#include "platform/EntryTextBox.h"
#include "support/Contrast.h"
#include "support/Controls.h"
#include "support/FormTest.h"
#include "support/LargeType.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>

using namespace Contrast;
using namespace Qt::StringLiterals;

namespace {

// The inner part of a widget, without its frame and round corners.
Seen lookInside(QWidget &widget)
{
    constexpr int frame = 6;
    return Seen(widget.grab(widget.rect().adjusted(frame, frame, -frame, -frame)).toImage());
}

QFont fontWithThickStrokes()
{
    QFont font;
    font.setPixelSize(40);
    font.setBold(true);
    return font;
}

// Counts the events of one type that an object gets.
class EventCounter final : public QObject
{
public:
    EventCounter(QObject &object, QEvent::Type type) : m_type(type)
    {
        object.installEventFilter(this);
    }
    [[nodiscard]] int count() const { return m_count; }

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        m_count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};

} // namespace

class Appearance_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { wear(lightPalette()); }

    void theAccentStandsOutFromItsWindow()
    {
        for (const QPalette &palette : {lightPalette(), darkPalette(), highContrastPalette()}) {
            for (const auto role : {QPalette::Window, QPalette::Base})
                QVERIFY(contrast(accentColour(palette), palette.color(role)) >= ReadableMark);
        }
        QVERIFY(accentColour(lightPalette()) != accentColour(darkPalette()));
    }

    void panelsAreALittleLighterThanTheWindow()
    {
        for (const QPalette &palette : {QApplication::style()->standardPalette(), lightPalette(),
                                        darkPalette(), highContrastPalette()}) {
            const QColor window = palette.color(QPalette::Window);
            const QColor panel = panelColour(palette);
            QVERIFY(panel.lightness() > window.lightness());
            QVERIFY(contrast(panel, window) < 1.6);
            QVERIFY(contrast(quietColour(palette), panel) >= ReadableText);
        }
    }

    void whatAnEmptyBoxSaysIsReadable()
    {
        for (const QPalette &palette : {lightPalette(), darkPalette(), highContrastPalette()}) {
            wear(palette);
            const QPalette worn = QLineEdit().palette();
            QVERIFY(contrast(worn.color(QPalette::PlaceholderText), worn.color(QPalette::Base)) >=
                    ReadableText);
        }
    }

    void buttonsAreReadable_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("isDefault");
        QTest::addColumn<bool>("enabled");
        for (const bool dark : {false, true})
            for (const bool isDefault : {false, true})
                for (const bool enabled : {false, true})
                    QTest::addRow("%s, %s, %s", dark ? "dark" : "light",
                                  isDefault ? "default" : "ordinary",
                                  enabled ? "enabled" : "disabled")
                        << dark << isDefault << enabled;
    }

    void buttonsAreReadable()
    {
        QFETCH(bool, dark);
        QFETCH(bool, isDefault);
        QFETCH(bool, enabled);
        wear(dark ? darkPalette() : lightPalette());
        QWidget window;
        QPushButton button(u"IIII"_s, &window);
        button.setFont(fontWithThickStrokes());
        button.resize(240, 80);
        button.setDefault(isDefault);
        button.setEnabled(enabled);
        window.show();
        const Seen seen = lookInside(button);
        QVERIFY2(seen.contrastOfInk() >= (enabled ? ReadableText : ReadableMark),
                 qPrintable(seen.text()));
        QCOMPARE(seen.paper == accentColour(QApplication::palette()), isDefault && enabled);
    }

    void aPressedButtonIsReadable()
    {
        for (const QPalette &palette : {lightPalette(), darkPalette(), highContrastPalette()}) {
            for (const bool isDefault : {false, true}) {
                wear(palette);
                QPushButton button(u"IIII"_s);
                button.setFont(fontWithThickStrokes());
                button.resize(240, 80);
                button.setDefault(isDefault);
                button.show();
                button.setDown(true);
                const Seen seen = lookInside(button);
                QVERIFY2(contrast(seen.paper, seen.ink) >= ReadableText,
                         qPrintable(seen.ink.name() + u" on "_s + seen.paper.name()));
            }
        }
    }

    void optionButtonsAndCheckBoxesStandOutFromTheWindow()
    {
        for (const QPalette &palette : {lightPalette(), darkPalette()}) {
            wear(palette);
            QRadioButton option;
            QCheckBox check;
            for (QAbstractButton *button : {static_cast<QAbstractButton *>(&option),
                                            static_cast<QAbstractButton *>(&check)}) {
                button->show();
                const Seen off(button->grab().toImage());
                QVERIFY2(off.contrastOfInk() >= ReadableMark, qPrintable(off.text()));
                const QImage before = button->grab().toImage();
                button->setCheckable(true);
                button->setChecked(true);
                QVERIFY(button->grab().toImage() != before);
                button->hide();
            }
        }
    }

    void optionButtonsAndCheckBoxesGrowWithTheType()
    {
        const LargeType type(2);
        const QRadioButton option;
        for (const auto metric : {QStyle::PM_IndicatorWidth, QStyle::PM_ExclusiveIndicatorHeight})
            QVERIFY(option.style()->pixelMetric(metric, nullptr, &option) >=
                    option.fontMetrics().height() / 2);
    }

    void theTitleOfAFrameIsReadable()
    {
        for (const QPalette &palette : {lightPalette(), darkPalette(), highContrastPalette()}) {
            wear(palette);
            QWidget window;
            QGroupBox frame(u"IIII"_s, &window);
            frame.setFont(fontWithThickStrokes());
            frame.resize(300, 200);
            window.resize(320, 220);
            window.show();
            const Seen seen(frame.grab(QRect(16, 10, 60, 20)).toImage());
            QVERIFY2(contrast(seen.paper, seen.ink) >= ReadableText,
                     qPrintable(seen.ink.name() + u" on "_s + seen.paper.name()));
        }
    }

    void selectedTextIsReadable()
    {
        for (const QPalette &palette : {lightPalette(), darkPalette(), highContrastPalette()}) {
            wear(palette);
            QLineEdit box(u"IIIIIIIIIIIIIIII"_s);
            box.setFont(fontWithThickStrokes());
            box.resize(160, 80);
            box.show();
            QVERIFY(QTest::qWaitForWindowActive(&box));
            box.setFocus();
            box.selectAll();
            const Seen seen(box.grab(QRect(12, 26, 100, 24)).toImage());
            QVERIFY2(contrast(seen.paper, seen.ink) >= ReadableText,
                     qPrintable(seen.ink.name() + u" on "_s + seen.paper.name()));
        }
    }

    // The focus frame must have enough contrast to the pixels of a button without focus.
    void theFocusIsSeenOnEveryButton()
    {
        for (const QPalette &palette : {lightPalette(), darkPalette(), highContrastPalette()}) {
            for (const bool isDefault : {false, true}) {
                wear(palette);
                QWidget window;
                QPushButton button(QString(), &window);
                QPushButton other(QString(), &window);
                button.setGeometry(20, 20, 200, 60);
                other.setGeometry(20, 100, 200, 60);
                button.setAutoDefault(false);
                other.setAutoDefault(false);
                button.setDefault(isDefault);
                window.resize(240, 180);
                window.show();
                QVERIFY(QTest::qWaitForWindowActive(&window));
                const auto frame = [&button] { return button.grab().toImage().pixelColor(100, 1); };
                other.setFocus();
                const QColor without = frame();
                button.setFocus();
                QVERIFY2(contrast(frame(), without) >= 1.5,
                         qPrintable(frame().name() + u" and "_s + without.name()));
            }
        }
    }

    // The middle of the thumb against the middle of the track below it.
    void theThumbOfAScrollBarStandsOutFromItsTrack()
    {
        for (const QPalette &palette : {lightPalette(), darkPalette(), highContrastPalette()}) {
            wear(palette);
            QScrollBar bar(Qt::Vertical);
            bar.setRange(0, 100);
            bar.setPageStep(50);
            bar.resize(bar.sizeHint().width(), 300);
            bar.show();
            const QPoint thumb = Controls::middleOf(bar, QStyle::SC_ScrollBarSlider);
            const QPoint track = Controls::middleOf(bar, QStyle::SC_ScrollBarAddPage);
            const QImage seen = bar.grab().toImage();
            const double difference = contrast(seen.pixelColor(thumb), seen.pixelColor(track));
            QVERIFY2(difference >= ReadableMark, qPrintable(QString::number(difference)));
        }
    }

    void theTypeFollowsTheApplications_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isLong");
        for (const char *name : {"txtWord", "lblWordExist", "lstHits", "lstMisses", "lblHint",
                                 "lblTitle", "lblAnswerIs", "txtUserAnswer", "txtName"})
            QTest::newRow(name) << QString::fromLatin1(name) << false;
        QTest::newRow("lblAnswerIs, long") << u"lblAnswerIs"_s << true;
    }

    void theTypeFollowsTheApplications()
    {
        QFETCH(QString, name);
        QFETCH(bool, isLong);
        QLineEdit control; // the rule for txtWord is for boxes alone
        control.setObjectName(name);
        control.setProperty("long", isLong);
        const int usual = typeOf(control);
        const LargeType type(1.5);
        QVERIFY2(typeOf(control) >= usual * 5 / 4, qPrintable(QString::number(typeOf(control))));
        QVERIFY(typeOf(control) > QFontInfo(QApplication::font()).pixelSize());
    }

    void theTypeOfTheEntryBoxesFollowsTheApplications()
    {
        EntryTextBox box;
        const int usual = typeOf(box);
        const LargeType type(1.5);
        QVERIFY2(typeOf(box) >= usual * 5 / 4, qPrintable(QString::number(typeOf(box))));
    }

    void theLookFollowsThePaletteAtRunTime()
    {
        QPushButton button(u"IIII"_s);
        button.setFont(fontWithThickStrokes());
        button.resize(240, 80);
        button.setDefault(true);
        button.show();
        const QColor light = lookInside(button).paper;
        QCOMPARE(light, accentColour(lightPalette()));
        wear(darkPalette());
        QCOMPARE(lookInside(button).paper, accentColour(darkPalette()));
        wear(lightPalette());
        QCOMPARE(lookInside(button).paper, light);
    }

    void aChangeOfThePaletteSettles()
    {
        const EventCounter changes(*qApp, QEvent::ApplicationPaletteChange);
        wear(darkPalette());
        const int first = changes.count();
        QVERIFY(first >= 1);
        QVERIFY2(first <= 4, qPrintable(QString::number(first)));
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
        QCOMPARE(changes.count(), first);
    }

    void applyingTheLookAgainChangesNothing()
    {
        const QString before = qApp->styleSheet();
        QVERIFY(!before.isEmpty());
        QPushButton button;
        button.show();
        const EventCounter paletteChanges(*qApp, QEvent::ApplicationPaletteChange);
        const EventCounter styleChanges(button, QEvent::StyleChange);
        applyAppearance(*qApp);
        QCoreApplication::processEvents();
        QCOMPARE(qApp->styleSheet(), before);
        QCOMPARE(paletteChanges.count(), 0);
        QCOMPARE(styleChanges.count(), 0);
    }

    void noPlaceholderIsLeftInTheStyleSheet()
    {
        QVERIFY2(!qApp->styleSheet().contains(u'@'), qPrintable(qApp->styleSheet()));
    }

private:
    static int typeOf(QWidget &control)
    {
        control.ensurePolished();
        return control.fontInfo().pixelSize();
    }

    static void wear(const QPalette &palette)
    {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<Appearance_test>(argc, argv);
}

#include "Appearance_test.moc"
