// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/Soak.h"

#include "platform/Paths.h"
#include "platform/sndPlaySoundA.h"
#include "runtime/RandomNumbers.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr char CopyTimer[] = "tmrUnsavedCopy";

std::vector<Action> allActions()
{
    std::vector<Action> all;
    for (const auto &some :
         {editorActions(), pasteActions(), gridActions(), fileActions(), importActions(),
          exportActions(), printActions(), flashActions(), gameActions()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

// The answer of Esc and of the close box; none if they do nothing.
QMessageBox::StandardButton answerOfEsc(const QMessageBox &box)
{
    if (box.standardButtons() == QMessageBox::Ok)
        return QMessageBox::Ok;
    if (box.button(QMessageBox::Cancel))
        return QMessageBox::Cancel;
    const bool isAboutSaving = box.text().contains(u" save"_s);
    return !isAboutSaving ? QMessageBox::No : QMessageBox::NoButton;
}

QString nameOf(const QWidget *window)
{
    return window ? QLatin1String(window->metaObject()->className()) + u' ' + window->objectName()
                  : u"no window"_s;
}

bool isTypeable(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar character) { return character >= u' ' && character <= u'~'; });
}

} // namespace

Soak::Soak(unsigned seed) : m_random(seed), m_actions(allActions())
{
    setSoundPlayer([](const QString & /*file*/, unsigned /*flags*/) {});
    RandomNumbers::setSource([numbers = std::mt19937(seed)]() mutable {
        return static_cast<float>(numbers() >> 8) / static_cast<float>(1 << 24);
    });
    startAnew();
}

Soak::~Soak()
{
    allowFiles();
    m_main.reset();
    RandomNumbers::setSource({});
    setSoundPlayer({});
}

void Soak::startAnew()
{
    if (m_main) {
        compareDisk(); // the files at the end of the program
        allowFiles();
    }
    m_main.reset();
    m_main = std::make_unique<MainWindow>(MainWindow::Start::Hidden);
    m_main->control<QTimer>(CopyTimer).setInterval(std::chrono::hours(1));
    model = {};
    layOutFiles();
    m_main->show();
}

void Soak::step()
{
    ++m_steps;
    std::vector<const Action *> possible;
    int weights = 0;
    for (const Action &action : m_actions) {
        if (!action.isPossible(*this))
            continue;
        possible.push_back(&action);
        weights += action.weight;
    }
    int place = roll(weights);
    const Action *chosen = nullptr;
    for (const Action *action : possible) {
        chosen = action;
        place -= action->weight;
        if (place < 0)
            break;
    }
    note(QLatin1String(chosen->name));
    chosen->run(*this);
    waitFor(game() ? *game() : m_main->window());
    if (chance(80))
        letCopyBeWritten();
    compare();
}

// As if the program were idle for a moment.
void Soak::letCopyBeWritten()
{
    auto &timer = m_main->control<QTimer>(CopyTimer);
    check(timer.isActive() == model.copyIsDue,
          model.copyIsDue ? u"no copy is going to be written"_s : u"a copy is to be written"_s);
    if (!timer.isActive())
        return;
    timer.stop();
    QMetaObject::invokeMethod(&timer, "timeout", Qt::DirectConnection);
    model.writeCopy(pathOf(Place::WordLists));
}

void Soak::waitFor(QWidget &window)
{
    QCoreApplication::processEvents(); // a menu that has closed may leave no window active
    if (!QTest::qWaitForWindowActive(&window))
        failTest(u"%1 does not become active, but %2"_s.arg(window.objectName(),
                                                            nameOf(QApplication::activeWindow())));
}

void Soak::note(const QString &what)
{
    const QString line = QString(what).replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s);
    std::printf("step %d: %s\n", m_steps, qUtf8Printable(line));
    std::fflush(stdout);
}

QWidget *Soak::game() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (window->objectName() == u"frmTanglewit"_s && window->isVisible())
            return window;
    return nullptr;
}

int Soak::roll(int sides)
{
    return int(m_random() % unsigned(sides));
}

// One of a few words, so that duplicates are frequent.
QString Soak::word()
{
    static const QStringList words{u"apple"_s,
                                   u"Bread"_s,
                                   u"cream"_s,
                                   u"dough"_s,
                                   u"flour"_s,
                                   u"salt"_s,
                                   u"sugar"_s,
                                   u"big cat"_s,
                                   u"ox"_s,
                                   u"a"_s,
                                   u"naïve"_s,
                                   u"Straße"_s,
                                   u"ПЕРЕЦ"_s,
                                   u"\u2014"_s,
                                   u"\U0001F600"_s,
                                   u"-1"_s,
                                   u"7"_s,
                                   u"it's"_s,
                                   u"&c."_s,
                                   u"<b>x</b>"_s,
                                   u"%1 %2"_s,
                                   u"e\u0301"_s,
                                   u"antidisestablishmentarianism, or longer still"_s};
    QString word = oneOf(words);
    if (chance(15))
        word = word.toUpper();
    if (chance(10))
        word = u' ' + word + u"  "_s;
    return word;
}

QString Soak::text()
{
    switch (roll(8)) {
    case 0:
        return {};
    case 1:
        return word() + u"\r\n"_s + word();
    case 2:
        return QString(roll(300), u'x');
    case 3:
        return u"The %1 was there. %1 and %1s!"_s.arg(word());
    default:
        return u"what %1 is (%2)"_s.arg(word()).arg(roll(100));
    }
}

void Soak::expectMsgBox(const QString &text, QMessageBox::StandardButton answer)
{
    const int way = roll(3);
    note(u"then \""_s + text + u'"');
    answers().useMsgBox(text, [answer, way](QMessageBox &box) {
        const auto esc = answerOfEsc(box);
        if (way == 1 && (esc == answer || esc == QMessageBox::NoButton))
            press(box, Qt::Key_Escape);
        if (way == 2 && (esc == answer || esc == QMessageBox::NoButton))
            box.close();
        if (box.isVisible())
            Controls::click(*box.button(answer));
    });
}

void Soak::expectRunTimeError(int number)
{
    const QString start = u"Run-time error '%1':"_s.arg(number);
    note(u"then "_s + start);
    answers().expectAnyMsgBox(QMessageBox::Ok, [start](QMessageBox &box) {
        if (!box.text().startsWith(start))
            failTest(u"\"%1\" instead of %2"_s.arg(box.text(), start));
    });
}

void Soak::expectPage(int first)
{
    constexpr int overflow = 6;
    if (model.overflowsOnPage(first))
        expectRunTimeError(overflow);
}

void Soak::expectPageOfNewWord()
{
    if (model.count() > 0)
        expectPage(std::max(1, model.count() - 21));
}

bool Soak::isUsable(const QWidget &control)
{
    return control.isVisible() && control.isEnabled();
}

bool Soak::isUsable(const char *control)
{
    return !game() && isUsable(m_main->control<QWidget>(control));
}

void Soak::fill(QWidget &box, const QString &text)
{
    if (isTypeable(text) && text.size() < 50) {
        Controls::type(box, text);
        return;
    }
    Controls::type(box, {});
    QGuiApplication::clipboard()->setText(text);
    press(box, Qt::Key_V, Qt::ControlModifier);
}

void Soak::press(QWidget &control, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&control, key, modifiers);
}

QString Soak::inLists(const QString &name) const
{
    return pathOf(Place::WordLists) + u'/' + name;
}

QStringList Soak::files(const QString &ending) const
{
    QStringList found;
    for (const auto &[path, bytes] : model.disk)
        if (path.endsWith(ending))
            found += path;
    return found;
}
