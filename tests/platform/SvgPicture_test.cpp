// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SvgPicture.h"

#include "support/TestFiles.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Size(64, 48);

// Vertical stripes, one unit wide: at twice the size their edges must be sharp.
QByteArray stripes()
{
    QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 64 48'>"
                     "<rect width='64' height='48' fill='#fff'/>";
    for (int x = 0; x < Size.width(); x += 2)
        svg += "<rect x='" + QByteArray::number(x) + "' width='1' height='48' fill='#000'/>";
    return svg + "</svg>";
}

QImage drawn(SvgPicture &picture, qreal ratio)
{
    QImage image(picture.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    picture.render(&image);
    return image;
}

} // namespace

class SvgPicture_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { writeFile(path(), stripes()); }

    void thePictureFillsItsWidget()
    {
        SvgPicture picture;
        picture.resize(Size);
        picture.setSource(path());
        QCOMPARE(picture.source(), path());
        const QImage image = drawn(picture, 1);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                QCOMPARE(image.pixelColor(x, y), QColor(x % 2 == 0 ? Qt::black : Qt::white));
    }

    void thePictureIsDrawnAnewForADenserScreen()
    {
        SvgPicture picture;
        picture.resize(Size);
        picture.setSource(path());
        const QImage image = drawn(picture, 2);
        QCOMPARE(image.size(), Size * 2);
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixelColor(x, 40), QColor(x / 2 % 2 == 0 ? Qt::black : Qt::white));
    }

    void aPictureOfAnotherShapeKeepsItsProportions()
    {
        const TestFolder folder;
        const QString disc = folder.write(
            u"disc.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>"
                           "<rect width='100' height='100' fill='#fff'/>"
                           "<circle cx='50' cy='50' r='20' fill='#000'/></svg>");
        SvgPicture picture;
        picture.resize(200, 100);
        picture.setSource(disc);
        const QImage image = drawn(picture, 1);
        int across = 0;
        int down = 0;
        for (int x = 0; x < image.width(); ++x)
            across += image.pixelColor(x, 50).lightness() < 128 ? 1 : 0;
        for (int y = 0; y < image.height(); ++y)
            down += image.pixelColor(100, y).lightness() < 128 ? 1 : 0;
        QVERIFY(across > 0);
        QVERIFY2(qAbs(across - down) <= 1, qPrintable(u"%1 x %2"_s.arg(across).arg(down)));
    }

    void withoutASourceNothingIsDrawn()
    {
        SvgPicture picture;
        picture.resize(Size);
        picture.setAttribute(Qt::WA_NoSystemBackground);
        QImage image(Size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::magenta);
        picture.render(&image, {}, {}, QWidget::RenderFlags());
        QCOMPARE(image.pixelColor(10, 10), QColor(Qt::magenta));
    }

private:
    [[nodiscard]] QString path() const { return m_folder.filePath(u"stripes.svg"_s); }

    QTemporaryDir m_folder;
};

QTEST_MAIN(SvgPicture_test)
#include "SvgPicture_test.moc"
