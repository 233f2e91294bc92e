// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/SameFile.h"

#include "support/TestFiles.h"

#include <QTest>

#include <filesystem>

using namespace Qt::StringLiterals;

class SameFile_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"lists"_s));
        QVERIFY(QFile::link(path(u"lists"_s), path(u"linked folder"_s)));
        for (const QString &name : {u"lists/a.lwx"_s, u"lists/b.lwx"_s})
            m_folder->write(name, {});
        QVERIFY(QFile::link(path(u"lists/a.lwx"_s), path(u"link"_s)));
        std::filesystem::create_hard_link(path(u"lists/a.lwx"_s).toStdString(),
                                          path(u"twin"_s).toStdString());
    }

    void isTheSameFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("other");
        QTest::addColumn<bool>("same");
        const auto row = [](const char *what, const char *name, const char *other, bool same) {
            QTest::newRow(what) << QString::fromLatin1(name) << QString::fromLatin1(other) << same;
        };
        row("itself", "lists/a.lwx", "lists/a.lwx", true);
        row("another file", "lists/a.lwx", "lists/b.lwx", false);
        row("through another folder", "lists/a.lwx", "lists/../lists/a.lwx", true);
        row("by a symbolic link", "lists/a.lwx", "link", true);
        row("in a linked folder", "lists/a.lwx", "linked folder/a.lwx", true);
        row("by a hard link", "lists/a.lwx", "twin", true);
        row("a new file", "lists/new.lwx", "lists/new.lwx", true);
        row("a new file in a linked folder", "lists/new.lwx", "linked folder/new.lwx", true);
        row("another new file", "lists/new.lwx", "lists/newer.lwx", false);
        row("a new file of that name elsewhere", "lists/new.lwx", "new.lwx", false);
    }

    void isTheSameFile()
    {
        QFETCH(QString, name);
        QFETCH(QString, other);
        QTEST(isSameFile(path(name), path(other)), "same");
        QTEST(isSameFile(path(other), path(name)), "same");
    }

    void noNameIsNoFile()
    {
        QVERIFY(!isSameFile({}, {}));
        QVERIFY(!isSameFile(path(u"lists/a.lwx"_s), {}));
        QVERIFY(!isSameFile({}, path(u"lists/a.lwx"_s)));
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->path(name); }

    std::unique_ptr<TestFolder> m_folder;
};

QTEST_APPLESS_MAIN(SameFile_test)
#include "SameFile_test.moc"
