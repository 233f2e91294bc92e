// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/MenuIcons.h"

#include "editor/ui_frmMain.h"

#include <QIcon>

#include <array>

namespace {

struct ItemIcon
{
    const char *item;
    const char *icon; // a standard name
};

constexpr std::array Icons{
    ItemIcon{"mnuNew", "document-new"},
    ItemIcon{"mnuOpen", "document-open"},
    ItemIcon{"mnuSave", "document-save"},
    ItemIcon{"mnuSaveAs", "document-save-as"},
    ItemIcon{"mnuPageSetup", "document-page-setup"},
    ItemIcon{"mnuPrinterSetup", "printer"},
    ItemIcon{"mnuPrint", "document-print"},
    ItemIcon{"mnuExit", "application-exit"},
    ItemIcon{"mnuDeleteWord", "edit-delete"},
    ItemIcon{"mnuPlayScramble", "applications-games"},
    ItemIcon{"mnuHandbook", "help-contents"},
    ItemIcon{"mnuKeyboard", "input-keyboard"},
    ItemIcon{"mnuAbout", "help-about"},
};

void showIconsOf(const QMenu &menu)
{
    for (QAction *item : menu.actions())
        for (const auto &[name, icon] : Icons)
            if (item->objectName() == QLatin1String(name))
                item->setIcon(QIcon::fromTheme(QLatin1String(icon)));
}

} // namespace

void showMenuIcons(const Ui::frmMain &ui)
{
    for (QMenu *menu : {ui.mnuFile, ui.mnuEdit, ui.mnuGame, ui.mnuHelp})
        QObject::connect(
            menu, &QMenu::aboutToShow, menu, [menu] { showIconsOf(*menu); },
            Qt::SingleShotConnection);
}
