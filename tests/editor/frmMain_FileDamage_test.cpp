// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/OpenList.h"
#include "support/FormTest.h"

#include <optional>
#include <random>

using namespace Qt::StringLiterals;

namespace {

// The entries in the bytes, up to their end. Nothing if the count is negative.
std::optional<Entries> readable(const QByteArray &bytes)
{
    const auto byteAt = [&bytes](qsizetype position) {
        return static_cast<unsigned char>(bytes.at(position));
    };
    qsizetype position = 0;
    const auto nextNumber = [&] {
        if (bytes.size() - position < 2) {
            position = bytes.size();
            return 0;
        }
        const int number = byteAt(position) | byteAt(position + 1) << 8;
        position += 2;
        return number;
    };
    const int count = nextNumber();
    if (count > 32767)
        return std::nullopt;
    Entries entries;
    for (int i = 0; i < count; ++i) {
        QStringList entry;
        for (int field = 0; field < 3; ++field) {
            const int length = nextNumber();
            const QByteArray text = bytes.mid(position, length);
            entry += QString::fromLatin1(text);
            position += text.size();
        }
        entries += entry;
    }
    return entries;
}

} // namespace

class frmMain_FileDamage_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDamagedFileOpensAsFarAsItGoesOrLeavesTheOpenListWhole()
    {
        MainWindow main;
        const QString path = main.path(u"damaged.lwx"_s);
        openList(main, wholeFile(main));
        int refused = 0;
        for (int i = 0; i < 300; ++i) {
            const QByteArray bytes = damagedBytes(i % 5);
            writeFile(path, bytes);
            const OpenList before(main);
            const std::optional<Entries> expected = readable(bytes);
            main.answers.expectMsgBox(EndLesson, QMessageBox::Ok);
            main.answers.chooseFile(path);
            if (!expected) {
                ++refused;
                main.answers.expectAnyMsgBox(QMessageBox::Ok, [](QMessageBox &box) {
                    QVERIFY(box.text().startsWith(
                        u"Run-time error '9':\n\nSubscript out of range\n"_s));
                });
            }
            main.choose("mnuOpen");
            QVERIFY(main.answers.allSeen());
            const QByteArray about = "file "_ba + QByteArray::number(i);
            if (expected)
                QVERIFY2(sameText(openEntries(), *expected), about.constData());
            else
                QVERIFY2(OpenList(main) == before, about.constData());
            QCOMPARE(readFile(path), bytes);
            Module1::gOpenedFile.clear(); // the next one bears the same name
        }
        QVERIFY(refused > 20);
        QVERIFY(refused < 280);
    }

private:
    [[nodiscard]] static Entries wholeEntries() { return someEntries(40, u"animal"_s); }

    static QString wholeFile(MainWindow &main)
    {
        const QString path = main.path(u"whole.lwx"_s);
        writeFile(path, listBytes(wholeEntries()));
        return path;
    }

    int random(int below) { return int(m_random() % unsigned(below)); }

    QByteArray damagedBytes(int kind)
    {
        QByteArray bytes = listBytes(wholeEntries());
        switch (kind) {
        case 0: // cut
            bytes.truncate(random(int(bytes.size())));
            break;
        case 1: // a few bytes changed
            for (int n = 1 + random(20); n > 0; --n)
                bytes[random(int(bytes.size()))] = char(random(256));
            break;
        case 2: // another count
            bytes.replace(0, 2, number16(random(65536)));
            break;
        case 3: // a hole
            bytes.remove(2 + random(int(bytes.size()) - 2), 1 + random(50));
            break;
        default: // anything
            bytes.resize(random(5000));
            for (char &byte : bytes)
                byte = char(random(256));
        }
        return bytes;
    }

    // Without the bytes from 80 to 9F, which Windows-1252 and Latin 1 read as different characters.
    static bool sameText(const Entries &found, const Entries &expected)
    {
        if (found.size() != expected.size())
            return false;
        for (qsizetype i = 0; i < found.size(); ++i) {
            for (qsizetype field = 0; field < 3; ++field) {
                const QString &a = found.at(i).at(field);
                const QString &b = expected.at(i).at(field);
                if (a.size() != b.size())
                    return false;
                for (qsizetype k = 0; k < a.size(); ++k)
                    if (a.at(k) != b.at(k) && (b.at(k).unicode() & 0xFFE0) != 0x80)
                        return false;
            }
        }
        return true;
    }

    std::mt19937 m_random{20260214};
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_FileDamage_test>(argc, argv);
}

#include "frmMain_FileDamage_test.moc"
