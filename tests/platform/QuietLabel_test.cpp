// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QuietLabel.h"

#include "platform/Appearance.h"
#include "support/Contrast.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

using namespace Qt::StringLiterals;

class QuietLabel_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_label.resize(600, 30); }

    void onlyTheMarkedEndHasTheAccentColour()
    {
        m_label.setLine(u"48 words · "_s);
        QVERIFY(has(quiet()));
        QVERIFY(!has(accent()));
        m_label.setLine(u"48 words · "_s, u"Save writes animals.lwx"_s);
        QVERIFY(has(quiet()));
        QVERIFY(has(accent()));
        m_label.setLine({}, u"Save writes animals.lwx"_s);
        QVERIFY(!has(quiet()));
    }

    void aTextThatIsTooLongIsItsToolTipAsPlainText()
    {
        m_label.setLine(u"<b>a</b> & "_s + QString(300, u'x'));
        showToolTip();
        QVERIFY2(QToolTip::text().startsWith(u"<p>&lt;b&gt;a&lt;/b&gt; &amp; xxx"_s),
                 qPrintable(QToolTip::text()));
        m_label.setLine(u"short"_s);
        showToolTip();
        QTRY_VERIFY(QToolTip::text().isEmpty());
    }

    void aTextIsAnnouncedOnceItStays()
    {
        m_label.setLine(u"before"_s);
        QTRY_COMPARE(m_label.accessibleName(), u"before"_s);
        m_label.setLine(u"while typing"_s);
        QCOMPARE(m_label.accessibleName(), u"before"_s);
        m_label.setLine(u"after"_s);
        QTRY_VERIFY(m_label.accessibleName() != u"before"_s);
        QCOMPARE(m_label.accessibleName(), u"after"_s);
    }

private:
    QuietLabel m_label;

    [[nodiscard]] QRgb quiet() const { return quietColour(m_label.palette()).rgb(); }
    [[nodiscard]] QRgb accent() const { return accentColour(m_label.palette()).rgb(); }

    // Whether some pixel has the colour. Letters have some that they cover whole.
    bool has(QRgb colour)
    {
        const QImage image = m_label.grab().toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) == colour)
                    return true;
        return false;
    }

    void showToolTip()
    {
        m_label.show();
        QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), m_label.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&m_label, &event);
    }
};

QTEST_MAIN(QuietLabel_test)
#include "QuietLabel_test.moc"
