// SPDX-License-Identifier: GPL-3.0-or-later
// The owner and the group of a file that was overwritten. Only root can set this up.
#include "runtime/BinaryFile.h"

#include "runtime/ChildProcess.h"
#include "support/TestFiles.h"

#include <QTest>

#include <grp.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t Teacher = 54'321;
constexpr uid_t Pupil = 54'322;
constexpr gid_t Class = 65'432;
constexpr gid_t Others = 65'433;
const QString Name = u"list.lwx"_s;

// Owner, group and permissions: "1000:1000 644".
QString ownersOf(const QString &path)
{
    struct stat status
    {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0
               ? u"%1:%2 %3"_s.arg(status.st_uid)
                     .arg(status.st_gid)
                     .arg(status.st_mode & 07777, 0, 8)
               : u"missing"_s;
}

// What happens when a pupil of the group saves.
int errorOfPupil(gid_t group, const QString &path, QByteArrayView content)
{
    return inChildProcess([&] {
        return setgroups(1, &group) == 0 && setresgid(Pupil, Pupil, Pupil) == 0 &&
                       setresuid(Pupil, Pupil, Pupil) == 0
                   ? int(errorNumberOf([&] { BinaryFile::overwrite(path, content); }))
                   : 254;
    });
}

} // namespace

class BinaryFileOwner_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (geteuid() != 0)
            QSKIP("Only root gives files away.");
    }

    void rootLeavesTheOwnerAndTheGroup_data()
    {
        QTest::addColumn<int>("mode");
        for (const int mode : {0600, 0640, 0664, 04755, 02775})
            QTest::addRow("%o", unsigned(mode)) << mode;
    }

    void rootLeavesTheOwnerAndTheGroup()
    {
        QFETCH(int, mode);
        const TestFolder folder;
        const QString path = teachersFile(folder, mode_t(mode));
        BinaryFile::overwrite(path, "abc");
        QCOMPARE(folder.bytes(Name), "abc3456789"_ba);
        QCOMPARE(ownersOf(path), u"54321:65432 %1"_s.arg(mode, 0, 8));
    }

    void aFileOfTheGroupKeepsItsGroup()
    {
        const TestFolder folder;
        const QString path = teachersFile(folder, 0660);
        QVERIFY(folder.setMode(0777));
        QCOMPARE(errorOfPupil(Class, path, "abc"), int(NoRunTimeError));
        QCOMPARE(folder.bytes(Name), "abc3456789"_ba);
        QCOMPARE(ownersOf(path), u"54322:65432 660"_s);
    }

    // Only the owner may set the set-user-ID and set-group-ID bits.
    void withoutOwnerAndGroupThePermissionsAreKept()
    {
        const TestFolder folder;
        const QString path = teachersFile(folder, 06666);
        QVERIFY(folder.setMode(0777));
        QCOMPARE(errorOfPupil(Others, path, "abc"), int(NoRunTimeError));
        QCOMPARE(folder.bytes(Name), "abc3456789"_ba);
        QCOMPARE(ownersOf(path), u"54322:54322 666"_s);
        QCOMPARE(folder.names(), QStringList{Name});
    }

    // In a folder like /tmp (sticky bit) a user cannot replace a file of another user.
    void aFileThatMayNotBeReplacedIsWrittenInPlace()
    {
        const TestFolder folder;
        const QString path = teachersFile(folder, 0666);
        QVERIFY(folder.setMode(01777));
        QCOMPARE(errorOfPupil(Others, path, "abc"), int(NoRunTimeError));
        QCOMPARE(folder.bytes(Name), "abc3456789"_ba);
        QCOMPARE(ownersOf(path), u"54321:65432 666"_s);
        QCOMPARE(folder.names(), QStringList{Name});
    }

private:
    static QString teachersFile(const TestFolder &folder, mode_t mode,
                                Caller caller = Caller::current())
    {
        const QString path = folder.write(Name, "0123456789"_ba);
        const QByteArray name = QFile::encodeName(path);
        if (chown(name, Teacher, Class) != 0 || chmod(name, mode) != 0)
            failTest(u"cannot give a file away"_s, caller);
        return path;
    }
};

QTEST_GUILESS_MAIN(BinaryFileOwner_test)
#include "BinaryFileOwner_test.moc"
