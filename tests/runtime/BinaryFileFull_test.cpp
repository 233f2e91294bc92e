// SPDX-License-Identifier: GPL-3.0-or-later
// Writing more than the limit on the size of files allows: the old file stays whole.
#include "runtime/BinaryFile.h"

#include "runtime/ChildProcess.h"
#include "support/TestFiles.h"

#include <QTest>

#include <array>
#include <csignal>
#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

const QString Name = u"list.lwx"_s;

bool limitFileSize(rlim_t size)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{size, size};
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

// From now on write() returns 0 in this process, without an error.
bool takeNothing()
{
    std::array<sock_filter, 4> steps{{
        {BPF_LD | BPF_W | BPF_ABS, 0, 0, offsetof(seccomp_data, nr)},
        {BPF_JMP | BPF_JEQ | BPF_K, 0, 1, SYS_write},
        {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ERRNO}, // with error 0
        {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW},
    }};
    const sock_fprog filter{steps.size(), steps.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

} // namespace

class BinaryFileFull_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileThatMayNotGrowStaysWhole_data()
    {
        QTest::addColumn<bool>("inPlace");
        QTest::addColumn<int>("oldSize");
        QTest::addColumn<int>("newSize");
        for (const bool inPlace : {false, true}) {
            const char *kind = inPlace ? "in place" : "replaced";
            QTest::addRow("%s, small over small", kind) << inPlace << 100 << 12'000;
            QTest::addRow("%s, small over empty", kind) << inPlace << 0 << 12'000;
            QTest::addRow("%s, large over small", kind) << inPlace << 100 << 100'000;
            QTest::addRow("%s, large over middle", kind) << inPlace << 3'000 << 100'000;
            QTest::addRow("%s, very large", kind) << inPlace << 3'000 << 3'000'000;
        }
    }

    void aFileThatMayNotGrowStaysWhole()
    {
        QFETCH(bool, inPlace);
        QFETCH(int, oldSize);
        QFETCH(int, newSize);
        const TestFolder folder;
        const QByteArray before = randomBytes(oldSize, 1);
        const QByteArray content = randomBytes(newSize, 2);
        const QString path = folder.write(Name, before);
        // No temporary file can be made in a read-only folder.
        QVERIFY(folder.setMode(inPlace ? 0555 : 0755));
        const int error = inChildProcess([&] {
            return dropPrivileges() && limitFileSize(8'000)
                       ? int(errorNumberOf([&] { BinaryFile::overwrite(path, content); }))
                       : 254;
        });
        QVERIFY(folder.setMode(0755));
        QCOMPARE(error, int(RunTimeError::DiskFull));
        QCOMPARE(folder.bytes(Name), before);
        QCOMPARE(folder.names(), QStringList{Name});
    }

    void aNewFileThatDoesNotFitIsNotLeftBehind()
    {
        const TestFolder folder;
        const QString path = folder.path(Name);
        const QByteArray content = randomBytes(100'000, 1);
        const int error = inChildProcess([&] {
            return limitFileSize(8'000)
                       ? int(errorNumberOf([&] { BinaryFile::overwrite(path, content); }))
                       : 254;
        });
        QCOMPARE(error, int(RunTimeError::DiskFull));
        QCOMPARE(folder.names(), QStringList());
    }

    void anOldTailThatDoesNotFitIsAnError()
    {
        const TestFolder folder;
        const QByteArray before = randomBytes(100'000, 1);
        const QString path = folder.write(Name, before);
        const int error = inChildProcess([&] {
            return limitFileSize(8'000)
                       ? int(errorNumberOf([&] { BinaryFile::overwrite(path, "abc"); }))
                       : 254;
        });
        QCOMPARE(error, int(RunTimeError::DiskFull));
        QCOMPARE(folder.bytes(Name), before);
        QCOMPARE(folder.names(), QStringList{Name});
    }

    void aDiskThatTakesNothingIsADeviceError()
    {
        const TestFolder folder;
        const QByteArray before = randomBytes(100, 1);
        const QString path = folder.write(Name, before);
        const int error = inChildProcess([&] {
            showErrorsToSanitizer();
            if (!takeNothing())
                return 254;
            return int(errorNumberOf([&] { BinaryFile::overwrite(path, randomBytes(100, 2)); }));
        });
        QCOMPARE(error, int(RunTimeError::DeviceIoError));
        QCOMPARE(folder.bytes(Name), before);
        QCOMPARE(folder.names(), QStringList{Name});
    }

    // The old file is longer than the limit, so not even its own bytes can be written again.
    void anOldContentThatCannotBeRestoredIsReported()
    {
        const TestFolder folder;
        const QString path = folder.write(Name, randomBytes(20'000, 1));
        const QByteArray content = randomBytes(10'000, 2);
        QVERIFY(folder.setMode(0555));
        const int told = inChildProcess([&] {
            if (!dropPrivileges() || !limitFileSize(8'000))
                return 254;
            std::signal(SIGXFSZ, [](int) {
                const rlimit none{0, 0};
                setrlimit(RLIMIT_FSIZE, &none);
            });
            const QString report = reportOf([&] { BinaryFile::overwrite(path, content); });
            const bool isDiskFull = report.startsWith(u"Run-time error '61':\n\nDisk full\n"_s);
            return isDiskFull && report.endsWith(u". The old content could not be put back"_s) ? 1
                                                                                               : 0;
        });
        QVERIFY(folder.setMode(0755));
        QCOMPARE(told, 1);
    }
};

QTEST_GUILESS_MAIN(BinaryFileFull_test)
#include "BinaryFileFull_test.moc"
