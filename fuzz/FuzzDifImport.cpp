// SPDX-License-Identifier: GPL-3.0-or-later
// Input: a DIF file. The import gives the same list, questions, messages and error as reading the
// file line by line. The letters of its first line, which an import ignores, are the answers to
// the questions.
#include "Fuzzing.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/MsgBox.h"
#include "runtime/TextToNumber.h"
#include "runtime/Windows1252.h"
#include "standin/transfer/dlgWordExist.h"
#include "transfer/Import.h"

#include <QStringList>
#include <QTemporaryFile>

#include <array>
#include <cctype>

using namespace Module1;

namespace {

enum class Answer { Yes, No, YesToAll, NoToAll, Abort, Close };

// The answers to the questions, repeated from the start at the end.
class Answers
{
public:
    explicit Answers(std::string letters = {}) : m_letters(std::move(letters)) {}

    Answer next()
    {
        const std::size_t asked = m_asked++;
        if (m_letters.empty())
            return Answer::No;
        return Answer(static_cast<unsigned char>(m_letters[asked % m_letters.size()]) % 6);
    }
    [[nodiscard]] std::size_t asked() const { return m_asked; }

private:
    std::string m_letters;
    std::size_t m_asked = 0;
};

Answers person;
QStringList messages;
std::size_t conflicts = 0; // as the last question says
bool isCutShort = false;   // by an answer after which no more questions come

using Entry = std::array<QString, 3>;

const std::vector<Entry> Before{{QStringLiteral("cat"), QStringLiteral("old"), {}},
                                {QStringLiteral("Dog"), {}, QStringLiteral("old")},
                                {QString(), {}, {}}};

// The state after an import.
struct Outcome
{
    std::vector<Entry> entries;
    QStringList messages;
    std::size_t asked = 0;
    bool changed = false;
    int error = 0;

    friend bool operator==(const Outcome &, const Outcome &) = default;
};

// A line ends at CR or CR LF; in a file without any CR at LF.
std::vector<std::string_view> linesOf(std::string_view bytes)
{
    const char lineEnd = bytes.find('\r') == std::string_view::npos ? '\n' : '\r';
    std::vector<std::string_view> lines;
    lines.reserve(64);
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find(lineEnd), bytes.size());
        lines.push_back(bytes.substr(0, end));
        const bool isPair = bytes.substr(end, 2) == "\r\n";
        bytes.remove_prefix(std::min(end + (isPair ? 2 : 1), bytes.size()));
    }
    return lines;
}

class PlainImport
{
public:
    PlainImport(std::string_view bytes, Answers answers)
        : m_lines(linesOf(bytes)), m_answers(std::move(answers))
    {
        m_outcome.entries.reserve(16);
        m_outcome.entries = Before;
    }

    Outcome run()
    {
        try {
            importRows();
            m_outcome.messages += QString::number(m_added) + QStringLiteral(" words added");
        } catch (const RunTimeError &error) {
            m_outcome.error = error.number();
        }
        m_outcome.asked = m_answers.asked();
        return m_outcome;
    }

private:
    [[nodiscard]] std::string_view line(std::size_t number) const
    {
        if (number > m_lines.size())
            throw RunTimeError(RunTimeError::SubscriptOutOfRange);
        return m_lines[number - 1];
    }

    [[nodiscard]] QString countOf(std::size_t number) const
    {
        std::string_view text = line(number);
        const std::size_t comma = text.find(',');
        text = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
        return fromWindows1252(text.empty() ? "0" : text);
    }

    [[nodiscard]] QString value(std::size_t number) const
    {
        const std::string_view text = line(number);
        if (text.size() < 2)
            throw RunTimeError(RunTimeError::InvalidProcedureCall);
        return fromWindows1252(text.substr(1, text.size() - 2));
    }

    void importRows()
    {
        const double vectors = toNumber(countOf(5));
        const Integer tuples = toInteger(countOf(8));
        std::size_t i = 14;
        while (vectors >= 1 && !m_stop) {
            if (line(i) != "BOT") {
                i += 1;
            } else {
                i += 2;
                m_entry[0] = value(i);
                if (tuples == 2 || tuples == 3) {
                    i += 2;
                    m_entry[std::size_t(tuples.toInt() - 1)] = value(i);
                }
                takeRow();
            }
            m_stop |= line(i) == "EOD";
        }
    }

    void takeRow()
    {
        if (!m_addAll) {
            if (!isInList())
                add();
            else if (!m_skipAll)
                ask();
        }
        if (m_addThis || m_addAll)
            add();
    }

    [[nodiscard]] bool isInList() const
    {
        const auto isSame = [word = m_entry[0].toLower()](const Entry &entry) {
            return entry[0].toLower() == word;
        };
        return std::any_of(m_outcome.entries.begin(), m_outcome.entries.end(), isSame);
    }

    void add()
    {
        m_outcome.entries.push_back(m_entry);
        m_outcome.changed = true;
        ++m_added;
    }

    void ask()
    {
        const Answer answer = m_answers.next();
        m_addThis = answer == Answer::Yes;
        m_addAll = answer == Answer::YesToAll;
        m_skipAll |= answer == Answer::NoToAll;
        m_stop = answer == Answer::Abort;
    }

    std::vector<std::string_view> m_lines;
    Answers m_answers;
    Entry m_entry;
    Outcome m_outcome;
    int m_added = 0;
    bool m_addThis = false;
    bool m_addAll = false;
    bool m_skipAll = false;
    bool m_stop = false;
};

void fillList()
{
    gVocabList().ClearList();
    for (const Entry &entry : Before)
        gVocabList().AddVocab(entry[0], entry[1], entry[2]);
}

void fillFile(QByteArrayView bytes)
{
    static QTemporaryFile file;
    require(file.isOpen() || file.open());
    file.seek(0);
    require(file.write(bytes.data(), bytes.size()) == bytes.size());
    require(file.flush() && file.resize(bytes.size()));
    gFileName = file.fileName();
}

Outcome importedOutcome()
{
    fillList();
    gImportWord = gImportDef = gImportSen = QString();
    gDifLines = Array<QString>(); // as after an empty file
    gSkipAll = gChanged = false;
    messages.clear();
    conflicts = 0;
    isCutShort = false;
    Outcome outcome;
    outcome.entries.reserve(16);
    try {
        Import().ImportDif();
    } catch (const RunTimeError &error) {
        outcome.error = error.number();
    }
    for (Integer i = 1; i <= gVocabList().NumWords(); ++i) {
        const VocabRecord &record = gVocabList().entry(i);
        outcome.entries.push_back({record.Word, record.Definition, record.Sentence});
    }
    outcome.messages = messages;
    outcome.asked = person.asked();
    outcome.changed = gChanged;
    return outcome;
}

} // namespace

// Without deletions the number of conflicts is known from the first question on.
void dlgWordExist::showConflict(int number, int total)
{
    require(std::size_t(number) == person.asked() + 1 && number <= total);
    require(conflicts == 0 || conflicts == std::size_t(total));
    conflicts = std::size_t(total);
}

void dlgWordExist::exec()
{
    const Answer answer = person.next();
    isCutShort = answer == Answer::YesToAll || answer == Answer::NoToAll || answer == Answer::Abort;
    gAddThis = answer == Answer::Yes;
    gAddAll = answer == Answer::YesToAll;
    if (answer == Answer::NoToAll)
        gSkipAll = true;
    if (answer != Answer::Close)
        gStopImport = answer == Answer::Abort;
}

MsgBoxAnswer MsgBox(const QString &text, MsgBoxButtons /*buttons*/, MsgBoxEsc /*esc*/,
                    MsgBoxDefault /*defaultButton*/)
{
    messages += text;
    return MsgBoxAnswer::Ok;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes = bytesOf(data, size);
    const std::string_view characters(bytes.data(), size);
    std::string letters(characters.substr(0, characters.find_first_of("\r\n")));
    std::erase_if(letters, [](unsigned char c) { return std::isalpha(c) == 0; });

    fillFile(bytes);
    person = Answers(letters);
    const Outcome outcome = importedOutcome();
    require(isCutShort || conflicts == outcome.asked);
    require(outcome == PlainImport(characters, Answers(letters)).run());
    return 0;
}
