// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the dialog about an existing word. CTest runs this on screens of several sizes.
#include "platform/QuietLabel.h"
#include "support/LargeType.h"
#include "support/Layout.h"
#include "transfer/WordExistForm.h"

using namespace Module1;

namespace {

void ask(const std::function<void(const WordExistForm &)> &use)
{
    const FreshState state;
    DialogAnswers answers;
    gVocabList().AddVocab(u"Glacier"_s, u"a slow river of ice"_s, u"The glacier moves."_s);
    WordExistQuestion(u"glacier|a mass of ice|A glacier ends in the sea."_s)
        .ask(answers, [&](const WordExistForm &form) {
            use(form);
            form.close();
        });
}

} // namespace

class dlgWordExist_Layout_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itFitsTheScreen_data() { Layout::addTypeSizes(); }

    void itFitsTheScreen()
    {
        QFETCH(double, type);
        const LargeType font(type);
        ask([](const WordExistForm &form) { Layout::checkFitsTheScreen(form.form); });
    }

    void theCharactersThatTheListCannotKeepAreShownWhole_data() { Layout::addTypeSizes(); }

    void theCharactersThatTheListCannotKeepAreShownWhole()
    {
        QFETCH(double, type);
        const LargeType font(type);
        ask([](const WordExistForm &form) {
            form.click("cmdAllowModify");
            // The first four cannot be seen and are named by their numbers.
            Controls::find<QLineEdit>(form.form, "txtCurWord")
                .setText(u"\u200B\u200C\u200D\u2060\u0416\u0429\u03A9\u221E\u6F22"_s);
            Layout::checkFitsTheScreen(form.form);
            const auto &line = Controls::find<QuietLabel>(form.form, "lblQuiet");
            QVERIFY(line.text().endsWith(u"U+2060, \u0416, \u0429, \u03A9, \u221E, …"_s));
            Layout::checkHasRoomFor(line, line.text());
        });
    }

    // The dialog opens with the size that it had last, but never larger than the screen.
    void itFitsTheScreenAgain_data() { Layout::addTypeSizes(); }
    void itFitsTheScreenAgain() { itFitsTheScreen(); }
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgWordExist_Layout_test>(argc, argv);
}

#include "dlgWordExist_Layout_test.moc"
