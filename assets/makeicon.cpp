// SPDX-License-Identifier: GPL-3.0-or-later
// Draws an SVG icon as the program itself does: makeicon <SVG file> <pixels> <PNG file>.
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char *argv[])
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: makeicon <SVG file> <pixels> <PNG file>\n");
        return 1;
    }
    const int pixels = QByteArray(argv[2]).toInt();
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer picture(QString::fromLocal8Bit(argv[1]));
    QPainter painter(&image);
    picture.render(&painter);
    painter.end();
    if (!picture.isValid() || !image.save(QString::fromLocal8Bit(argv[3]))) {
        std::fprintf(stderr, "makeicon: %s cannot be made of %s\n", argv[3], argv[1]);
        return 1;
    }
    return 0;
}
