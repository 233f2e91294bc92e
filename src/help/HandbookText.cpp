// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/HandbookText.h"

#include <QImage>

namespace {

// In place of the pages' own style sheet, which is for browsers.
const QString StyleSheet = QStringLiteral("h1 { font-size: 24px; } h2 { font-size: 18px; }"
                                          "td, th { padding-right: 16px; padding-bottom: 4px; }");

} // namespace

HandbookText::HandbookText(QWidget *parent) : QTextBrowser(parent)
{
    setOpenExternalLinks(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // the width for pictures does not change
    document()->setDocumentMargin(16);
}

QVariant HandbookText::loadResource(int type, const QUrl &name)
{
    if (type == QTextDocument::StyleSheetResource)
        return StyleSheet;
    QVariant resource = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource)
        return resource;
    const QImage picture = QImage::fromData(resource.toByteArray());
    const int room = viewport()->width() - 2 * int(document()->documentMargin());
    return picture.width() > room ? picture.scaledToWidth(room, Qt::SmoothTransformation) : picture;
}
