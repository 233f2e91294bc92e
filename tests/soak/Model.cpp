// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/Model.h"

#include "runtime/Integer.h"
#include "runtime/Windows1252.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int PermissionDenied = 70;
constexpr int PathNotFound = 76;
constexpr int RowsOfPage = 23;
const QString ListEnding = u".lwx"_s;

// Reads the numbers and texts of a list file one after the other, and zeros after its end.
class Fields
{
public:
    explicit Fields(const QByteArray &bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool areWhole() const { return m_position <= m_bytes.size(); }
    int number()
    {
        int value = 0;
        // A number of which the second byte is missing is read as zero.
        if (m_position + 2 <= m_bytes.size())
            value = int(quint8(m_bytes[m_position])) + 256 * quint8(m_bytes[m_position + 1]);
        m_position += 2;
        return value;
    }
    QString text()
    {
        const int length = number();
        const QByteArray part = m_bytes.mid(std::min(m_position, m_bytes.size()), length);
        m_position += length;
        return fromWindows1252(part);
    }

private:
    const QByteArray &m_bytes;
    qsizetype m_position = 0;
};

QByteArray number(qsizetype value)
{
    return QByteArray().append(char(value & 0xFF)).append(char(value >> 8 & 0xFF));
}

QByteArray text(const QString &text)
{
    const QByteArray bytes = toWindows1252(text);
    return number(bytes.size()) + bytes;
}

} // namespace

bool Model::overflowsOnPage(int first) const
{
    return count() + 1 > Integer::Max || first + RowsOfPage > Integer::Max;
}

QString Model::captionOf(const QString &title)
{
    return u"LexiBrook- The Tanglewit: "_s + (title.isEmpty() ? u"(Untitled)"_s : title);
}

void Model::add(const Entry &entry)
{
    entries.push_back(entry);
    m_behind.reset();
    m_searchPos = 0;
    markAsUnsaved();
}

void Model::edit(int position, const Entry &entry)
{
    entries.at(index(position)) = entry;
    m_searchPos = 0;
    markAsUnsaved();
}

void Model::remove(int position)
{
    m_behind = entries.back();
    entries.erase(entries.begin() + position - 1);
    markAsUnsaved();
}

void Model::replaceBy(std::vector<Entry> newEntries)
{
    entries = std::move(newEntries);
    m_behind.reset();
    m_searchPos = 0;
    if (!changed)
        copy.clear(); // its changes were not asked about, so it stays on the disk
    forgetCopy();
}

void Model::markAsSaved()
{
    changed = false;
    canSave = false;
    forgetCopy();
}

int Model::find(const QString &word, int start) const
{
    const QString wanted = word.toLower();
    for (int position = start; position <= count(); ++position)
        if (entry(position).word.toLower() == wanted)
            return position;
    return 0;
}

int Model::search(const QString &word)
{
    m_searchPos = find(word, m_searchPos + 1);
    if (m_searchPos == 0)
        m_searchPos = find(word, 1);
    return m_searchPos;
}

int Model::readError(const QString &path)
{
    const QFileInfo file(path);
    if (!QFileInfo::exists(file.path()))
        return PathNotFound;
    const bool allowed = file.exists() ? file.isReadable() : QFileInfo(file.path()).isWritable();
    return allowed ? 0 : PermissionDenied;
}

int Model::writeError(const QString &path)
{
    const QFileInfo file(path);
    if (!QFileInfo::exists(file.path()))
        return PathNotFound;
    // An old file is read, too, because its tail stays.
    const bool allowed = file.exists() ? file.isReadable() && file.isWritable()
                                       : QFileInfo(file.path()).isWritable();
    return allowed ? 0 : PermissionDenied;
}

void Model::write(const QString &path, const QByteArray &bytes)
{
    QByteArray &content = disk[path];
    content = bytes + content.mid(bytes.size());
    m_copyIsForeign = m_copyIsForeign || path == copy;
}

// A list that an import or an export has marked as saved gets no copy, but an existing copy is
// written at each change.
void Model::writeCopy(const QString &folder)
{
    copyIsDue = false;
    if (!changed && copy.isEmpty())
        return;
    const QString title = fileTitle.isEmpty()              ? u"Untitled"_s
                          : fileTitle.endsWith(ListEnding) ? fileTitle.chopped(ListEnding.size())
                                                           : fileTitle;
    QString path = copy;
    if (copy.isEmpty() || m_copyIsForeign || title != m_copyTitle)
        path = freePath(folder + QLatin1Char('/') + title + u" (not saved)"_s);
    disk[path] = listBytes(entries, count());
    if (path != copy)
        removeOwnCopy();
    copy = path;
    m_copyTitle = title;
    m_copyIsForeign = false;
}

void Model::forgetCopy()
{
    removeOwnCopy();
    copyIsDue = false;
}

void Model::removeOwnCopy()
{
    if (!m_copyIsForeign && copy != fileName)
        disk.erase(copy);
    copy.clear();
}

QString Model::freePath(const QString &start) const
{
    QString path = start + ListEnding;
    for (int number = 2; disk.count(path) != 0; ++number)
        path = start + QLatin1Char(' ') + QString::number(number) + ListEnding;
    return path;
}

QByteArray Model::listBytes() const
{
    std::vector<Entry> records = entries;
    if (m_behind)
        records.push_back(*m_behind);
    return listBytes(records, count());
}

QByteArray Model::listBytes(const std::vector<Entry> &records, int count)
{
    QByteArray bytes = number(count);
    for (const Entry &record : records)
        bytes += text(record.word) + text(record.definition) + text(record.sentence);
    return bytes;
}

QByteArray Model::textBytes() const
{
    QString text;
    for (const Entry &entry : entries)
        text += entry.word + u'\t' + entry.definition + u'\t' + entry.sentence + u"\r\n"_s;
    return toWindows1252(text);
}

std::optional<std::vector<Entry>> Model::listOf(const QByteArray &bytes)
{
    Fields fields(bytes);
    const auto count = qint16(fields.number());
    if (count < 0)
        return {};
    std::vector<Entry> list(std::size_t(count), Entry{});
    for (Entry &entry : list) {
        entry.word = fields.text();
        entry.definition = fields.text();
        entry.sentence = fields.text();
    }
    return list;
}

bool Model::isWhole(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return true;
    Fields fields(bytes);
    for (int texts = 3 * fields.number(); texts > 0 && fields.areWhole(); --texts)
        static_cast<void>(fields.text());
    return fields.areWhole();
}
