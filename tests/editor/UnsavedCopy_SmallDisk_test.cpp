// SPDX-License-Identifier: GPL-3.0-or-later
// The copy of an unsaved list on a full disk: a file system of 64 KiB for the lists' folder.
#include "editor/UnsavedCopy.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/Paths.h"
#include "runtime/ChildProcess.h"
#include "runtime/SmallDisk.h"
#include "support/TestFiles.h"

#include <QCoreApplication>
#include <QTest>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

enum Result { AsItShould, CannotMount, NoCopy, OlderCopyChanged, SomethingLeft, NoCopyAfterwards };

// The window's list with its copy, in a process of its own.
class CopiedList
{
public:
    CopiedList() { gChanged = true; }

    void add(int characters)
    {
        gVocabList().AddVocab(u"word"_s, QString(characters, u'x'), {});
        settle();
    }
    void removeLast()
    {
        gVocabList().DeleteVocab();
        settle();
    }
    [[nodiscard]] QByteArray bytes() const
    {
        return readFile(pathOf(Place::WordLists) + u"/Untitled (not saved).lwx"_s);
    }
    [[nodiscard]] bool isCopied() const { return bytes() == gVocabList().fileBytes(); }

private:
    void settle() const
    {
        while (m_timer.isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    int m_argumentCount = 1;
    char m_name[5] = "test";
    char *m_arguments[2]{m_name, nullptr};
    QCoreApplication m_application{m_argumentCount, m_arguments};
    QObject m_window;
    UnsavedCopy m_copy{&m_window};
    QTimer &m_timer = *m_window.findChild<QTimer *>();
};

Result fillDisk()
{
    const QString folder = pathOf(Place::WordLists);
    if (!QDir().mkpath(folder) || !mountSmallDisk(folder))
        return CannotMount;
    CopiedList list;
    list.add(20'000);
    if (!list.isCopied())
        return NoCopy;
    const QByteArray before = list.bytes();
    list.add(50'000); // the old copy and the new one do not fit together
    if (list.bytes() != before)
        return OlderCopyChanged;
    if (QDir(folder).entryList(QDir::Files | QDir::Hidden).size() != 1)
        return SomethingLeft;
    list.removeLast();
    list.add(10);
    return list.isCopied() ? AsItShould : NoCopyAfterwards;
}

} // namespace

class UnsavedCopy_SmallDisk_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!canMountSmallDisk())
            QSKIP("This system lets no ordinary process mount a file system.");
    }

    void aFullDiskLeavesTheOlderCopyWhole()
    {
        const TestFolder home;
        qputenv("HOME", QFile::encodeName(home.path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
        QCOMPARE(inChildProcess([] { return int(fillDisk()); }), int(AsItShould));
    }
};

QTEST_APPLESS_MAIN(UnsavedCopy_SmallDisk_test)
#include "UnsavedCopy_SmallDisk_test.moc"
