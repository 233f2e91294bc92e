// SPDX-License-Identifier: GPL-3.0-or-later
// Pastes and drops into the boxes of the editor, in each way that a box offers.
#include "soak/Soak.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

bool hasBox(Soak &soak)
{
    return soak.isUsable("txtWord");
}

// Data that another program has copied, or that is dragged: often a text, sometimes nothing.
std::unique_ptr<QMimeData> someData(Soak &soak)
{
    auto data = std::make_unique<QMimeData>();
    switch (soak.roll(9)) {
    case 0:
        break; // a clipboard without an owner
    case 1:
        data->setImageData(QImage(4, 4, QImage::Format_RGB32));
        break;
    case 2:
        data->setUrls({QUrl::fromLocalFile(soak.inLists(u"few.lwx"_s))});
        break;
    case 3:
        data->setHtml(u"<p>a <b>bold</b> word"_s);
        break;
    case 4:
        data->setText(soak.word() + u"\n"_s); // a cell of a spreadsheet
        break;
    case 5:
        data->setText(soak.text() + u"\t\r\n"_s + soak.word() + QChar(0));
        break;
    default:
        data->setText(soak.text());
    }
    soak.note(u"\"%1\" (%2)"_s.arg(data->text(), data->formats().join(u' ')));
    return data;
}

// The widget of the box that gets the mouse events.
QWidget &surface(QWidget &box)
{
    auto *lines = qobject_cast<QPlainTextEdit *>(&box);
    return lines ? *lines->viewport() : box;
}

void pasteByKeys(Soak &soak, QWidget &box)
{
    box.setFocus();
    if (soak.chance(50))
        Soak::press(box, Qt::Key_V, Qt::ControlModifier);
    else
        Soak::press(box, Qt::Key_Insert, Qt::ShiftModifier);
}

void pasteByMenu(Soak & /*soak*/, QWidget &box)
{
    QWidget &place = surface(box);
    const QPoint middle = place.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, place.mapToGlobal(middle));
    QCoreApplication::sendEvent(&place, &event);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu)
        return failTest(u"no menu opens over "_s + box.objectName());
    const QList<QAction *> items = menu->actions();
    for (QAction *item : items)
        if (item->text().startsWith(u"&Paste"_s) && item->isEnabled())
            item->trigger();
    menu->close();
    box.activateWindow(); // a window manager does it, but this display may have none
}

// Pastes the selection, on displays that have one.
void pasteByMiddleClick(Soak & /*soak*/, QWidget &box)
{
    QTest::mouseClick(&surface(box), Qt::MiddleButton);
}

using Way = void (*)(Soak &, QWidget &);

void paste(Soak &soak, Way way)
{
    constexpr const char *boxes[] = {"txtWord", "txtDefinition", "txtSentence"};
    auto &box = soak.main().control<QWidget>(soak.oneOf(boxes));
    if (!box.isEnabled())
        return;
    const bool hadTwoLines = soak.main().text("txtWord").contains(u'\n');
    soak.note(u"into "_s + box.objectName());
    way(soak, box);
    if (!hadTwoLines && soak.main().text("txtWord").contains(u'\n'))
        failTest(u"the word has two lines"_s);
}

template <Way How> void pasteBy(Soak &soak)
{
    QGuiApplication::clipboard()->setMimeData(someData(soak).release());
    paste(soak, How);
}

void dropOn(Soak &soak, QWidget &box)
{
    const std::unique_ptr<QMimeData> data = someData(soak);
    QWidget &place = surface(box);
    const QPoint middle = place.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&place, &enter);
    if (!enter.isAccepted())
        return;
    QDragMoveEvent move(middle, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&place, &move);
    QDropEvent drop(middle, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&place, &drop);
}

void drop(Soak &soak)
{
    paste(soak, dropOn);
}

} // namespace

std::vector<Action> pasteActions()
{
    return {
        {"paste by keys", 10, hasBox, pasteBy<pasteByKeys>},
        {"paste by the context menu", 4, hasBox, pasteBy<pasteByMenu>},
        {"paste by a middle click", 2, hasBox, pasteBy<pasteByMiddleClick>},
        {"drop", 4, hasBox, drop},
    };
}
