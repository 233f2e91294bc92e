// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/dlgAbout.h"

#include "platform/Paths.h"
#include "support/Controls.h"
#include "support/FormTest.h"
#include "support/FreshHome.h"
#include "support/LargeType.h"
#include "support/Layout.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

class dlgAbout_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itSaysWhatTheProgramIs()
    {
        const FreshHome home;
        dlgAbout dialog(nullptr);
        dialog.show();
        Controls::waitUntilActive(dialog);
        const auto label = [&dialog](const char *name) {
            return Controls::find<QLabel>(dialog, name).text();
        };
        QCOMPARE(label("lblVersion"), u"Version "_s + QApplication::applicationVersion());
        QVERIFY(!QApplication::applicationVersion().isEmpty());
        QCOMPARE(label("lblLegalNotice"), Application::LegalCopyright());
        QVERIFY(label("lblLicence").contains(u"GNU General Public License, version 3 or later"_s));
        QCOMPARE(label("lblBuiltWith"), u"C++20 and Qt %1"_s.arg(QLatin1String(qVersion())));
        const auto &folder = Controls::find<QLineEdit>(dialog, "txtWordLists");
        QCOMPARE(folder.text(), pathOf(Place::WordLists));
        QVERIFY(folder.isReadOnly());
        Controls::press(Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
    }

    void itFitsTheScreen_data() { Layout::addTypeSizes(); }

    void itFitsTheScreen()
    {
        QFETCH(double, type);
        const LargeType font(type);
        dlgAbout dialog(nullptr);
        dialog.show();
        Controls::waitUntilActive(dialog);
        Layout::checkFitsTheScreen(dialog);
        dialog.resize(dialog.minimumSize());
        Layout::checkFitsTheScreen(dialog);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgAbout_test>(argc, argv);
}
#include "dlgAbout_test.moc"
