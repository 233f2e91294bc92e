// SPDX-License-Identifier: GPL-3.0-or-later
// Uses the program at random, and compares it with a model after each step.
//
// An action changes the model to the expected result, queues the expected dialogs with their
// answers, and then clicks or types. All random decisions come from the seed.
#pragma once

#include "editor/MainWindow.h"
#include "soak/Model.h"

#include <QStringList>

#include <memory>
#include <random>
#include <vector>

class Soak;

struct Action
{
    const char *name;
    int weight; // how often it is chosen, relative to the other possible actions
    bool (*isPossible)(Soak &);
    void (*run)(Soak &);
};

class Soak final
{
public:
    explicit Soak(unsigned seed);
    ~Soak();
    Q_DISABLE_COPY_MOVE(Soak)

    // Runs one of the actions that are possible now and compares the program with the model.
    void step();
    [[nodiscard]] int steps() const { return m_steps; }

    Model model;
    [[nodiscard]] MainWindow &main() { return *m_main; }
    [[nodiscard]] DialogAnswers &answers() { return m_main->answers; }
    // The window of the game while one is open.
    [[nodiscard]] QWidget *game() const;

    // 0 to sides - 1.
    [[nodiscard]] int roll(int sides);
    [[nodiscard]] bool chance(int percent) { return roll(100) < percent; }
    template <class List> [[nodiscard]] auto oneOf(const List &list)
    {
        return *(std::begin(list) + roll(int(std::size(list))));
    }
    [[nodiscard]] QString word();
    [[nodiscard]] QString text(); // of a definition or sentence

    // Adds to the text that is printed for this step.
    void note(const QString &what);

    // Gives this answer by the button, by its key, or by Esc or the close box where they mean it.
    void expectMsgBox(const QString &text, QMessageBox::StandardButton answer = QMessageBox::Ok);
    void expectRunTimeError(int number);
    // The grid shows the page that begins with this entry; error 6 if its numbers exceed 16 bits.
    void expectPage(int first);
    void expectPageOfNewWord();
    // Waits until the window is active.
    static void waitFor(QWidget &window);
    // Whether the control is visible and enabled.
    [[nodiscard]] static bool isUsable(const QWidget &control);
    [[nodiscard]] bool isUsable(const char *control);
    // Types the text, or pastes it if it has characters that a keyboard lacks.
    void fill(QWidget &box, const QString &text);
    static void press(QWidget &control, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

    // A path in the folder of lists, and the paths of all files there with this ending.
    [[nodiscard]] QString inLists(const QString &name) const;
    [[nodiscard]] QStringList files(const QString &ending) const;
    // Writes a file in the folder of lists, as another program would.
    void put(const QString &name, const QByteArray &bytes);
    // A path in the fresh home, outside that folder.
    [[nodiscard]] QString path(const QString &name) const { return m_main->path(name); }

    // Starts the program again, in another home folder.
    void startAnew();

private:
    void letCopyBeWritten();
    void layOutFiles();
    void allowFiles();
    void compare();
    void compareList();
    void compareTitle();
    void compareEditor();
    void compareGrid();
    void compareDisk();
    void check(bool condition, const QString &what, Caller caller = Caller::current()) const;

    std::mt19937 m_random;
    std::unique_ptr<MainWindow> m_main;
    std::vector<Action> m_actions;
    int m_steps = 0;
};

// The actions by window and theme. A new control needs a line in one of them.
[[nodiscard]] std::vector<Action> editorActions();
[[nodiscard]] std::vector<Action> pasteActions();
[[nodiscard]] std::vector<Action> gridActions();
[[nodiscard]] std::vector<Action> fileActions();
[[nodiscard]] std::vector<Action> importActions();
[[nodiscard]] std::vector<Action> exportActions();
[[nodiscard]] std::vector<Action> printActions();
[[nodiscard]] std::vector<Action> flashActions();
[[nodiscard]] std::vector<Action> gameActions();
