// SPDX-License-Identifier: GPL-3.0-or-later
// A person who uses the program at random, with a model of what it has to show.
//
// An action tells the model what has to become of it, queues the dialogs that have to come with
// their answers, and then presses. Every random decision comes from the seed.
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
    int weight; // how often, beside the others that are possible
    bool (*isPossible)(Soak &);
    void (*run)(Soak &);
};

class Soak final
{
public:
    explicit Soak(unsigned seed);
    ~Soak();
    Q_DISABLE_COPY_MOVE(Soak)

    // Does something that is possible now and looks whether all is as it should be.
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

    // Adds to what is noted of this step.
    void note(const QString &what);

    // A message box; it is answered in one of the ways that give this answer.
    void expectMsgBox(const QString &text, QMessageBox::StandardButton answer = QMessageBox::Ok);
    void expectRunTimeError(int number);
    // A page of the grid that begins there; an error where the numbers give out.
    void expectPage(int first);
    void expectPageOfNewWord();
    // Until the window is active again, as it is before a person can go on.
    static void waitFor(QWidget &window);
    // Whether the control is there to be used.
    [[nodiscard]] static bool isUsable(const QWidget &control);
    [[nodiscard]] bool isUsable(const char *control);
    // Types what a keyboard has, pastes the rest.
    void fill(QWidget &box, const QString &text);
    static void press(QWidget &control, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

    // A path in the lists' folder, and those of all files there that end so.
    [[nodiscard]] QString inLists(const QString &name) const;
    [[nodiscard]] QStringList files(const QString &ending) const;
    // Puts a file there, as it comes from elsewhere.
    void put(const QString &name, const QByteArray &bytes);
    // A path in the fresh home, outside that folder.
    [[nodiscard]] QString path(const QString &name) const { return m_main->path(name); }

    // The program has ended; it is started anew in another home.
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

// By window and theme. A control that is added gets a line in one of them.
[[nodiscard]] std::vector<Action> editorActions();
[[nodiscard]] std::vector<Action> pasteActions();
[[nodiscard]] std::vector<Action> gridActions();
[[nodiscard]] std::vector<Action> fileActions();
[[nodiscard]] std::vector<Action> importActions();
[[nodiscard]] std::vector<Action> exportActions();
[[nodiscard]] std::vector<Action> printActions();
[[nodiscard]] std::vector<Action> flashActions();
[[nodiscard]] std::vector<Action> gameActions();
