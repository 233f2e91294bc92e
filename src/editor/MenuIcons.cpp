// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/MenuIcons.h"

#include "editor/ui_frmMain.h"

#include <QIcon>

#include <array>

namespace {

struct ItemIcon
{
    const char *item;
    const char *icon; // a name that icon themes share
};

constexpr std::array Icons{
    ItemIcon{"mnuNew", "document-new"},
    ItemIcon{"mnuOpen", "document-open"},
    ItemIcon{"mnuSave", "document-save"},
    ItemIcon{"mnuSaveAs", "document-save-as"},
    ItemIcon{"mnuCreateTextFile", "text-x-generic"},
    ItemIcon{"mnuPageSetup", "document-page-setup"},
    ItemIcon{"mnuPrinterSetup", "printer"},
    ItemIcon{"mnuPrint", "document-print"},
    ItemIcon{"mnuPrintWholeList", "document-print"},
    ItemIcon{"mnuExport", "document-export"},
    ItemIcon{"mnuImport", "document-import"},
    ItemIcon{"mnuExit", "application-exit"},
    ItemIcon{"mnuDeleteWord", "edit-delete"},
    ItemIcon{"mnuPlayScramble", "applications-games"},
    ItemIcon{"mnuQuickFlash", "x-office-presentation"},
    ItemIcon{"mnuMusic", "audio-x-generic"},
    ItemIcon{"mnuHandbook", "help-contents"},
    ItemIcon{"mnuKeyboard", "input-keyboard"},
    ItemIcon{"mnuAbout", "help-about"},
};

void showIconsOf(const QMenu &menu)
{
    for (QAction *item : menu.actions()) {
        const QObject &named = item->menu() ? static_cast<QObject &>(*item->menu()) : *item;
        for (const auto &[name, icon] : Icons)
            if (named.objectName() == QLatin1String(name))
                item->setIcon(QIcon::fromTheme(QLatin1String(icon)));
    }
}

} // namespace

void showMenuIcons(const Ui::frmMain &ui)
{
    for (QMenu *menu : {ui.mnuFile, ui.mnuEdit, ui.mnuGame, ui.mnuHelp})
        QObject::connect(
            menu, &QMenu::aboutToShow, menu, [menu] { showIconsOf(*menu); },
            Qt::SingleShotConnection);
}
