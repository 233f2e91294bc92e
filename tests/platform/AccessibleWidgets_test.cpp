// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AccessibleWidgets.h"

#include "support/FormTest.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface &seenAs(QAbstractButton &button)
{
    return *QAccessible::queryAccessibleInterface(&button);
}

void choose(QAbstractButton &button)
{
    seenAs(button).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
}

} // namespace

class AccessibleWidgets_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anOptionIsClicked()
    {
        QWidget window;
        QRadioButton first(u"&First"_s, &window);
        QRadioButton second(u"Second"_s, &window);
        first.setChecked(true);
        const QSignalSpy clicks(&second, &QRadioButton::clicked);
        choose(second);
        QCOMPARE(clicks.size(), 1);
        QVERIFY(second.isChecked() && !first.isChecked());
        QVERIFY(seenAs(second).state().checked && !seenAs(first).state().checked);
    }

    void anOptionThatIsChosenIsClickedAgain()
    {
        QRadioButton option(u"First"_s);
        option.setChecked(true);
        const QSignalSpy clicks(&option, &QRadioButton::clicked);
        choose(option);
        QCOMPARE(clicks.size(), 1);
        QVERIFY(option.isChecked());
    }

    void aCheckBoxIsClicked()
    {
        QCheckBox box(u"Numbers"_s);
        const QSignalSpy clicks(&box, &QCheckBox::clicked);
        choose(box);
        QVERIFY(box.isChecked());
        choose(box);
        QVERIFY(!box.isChecked());
        QCOMPARE(clicks.size(), 2);
    }

    void namesRolesAndStatesAreThoseOfQt()
    {
        QRadioButton option(u"&First"_s);
        QCheckBox box(u"Numbers"_s);
        QCOMPARE(seenAs(option).text(QAccessible::Name), u"First"_s);
        QCOMPARE(seenAs(option).role(), QAccessible::RadioButton);
        QCOMPARE(seenAs(box).role(), QAccessible::CheckBox);
        QVERIFY(seenAs(box).state().checkable && seenAs(box).state().focusable);
        box.setAccessibleName(u"Print numbers"_s);
        QCOMPARE(seenAs(box).text(QAccessible::Name), u"Print numbers"_s);
    }

    void windowsAndPlainFramesAreNotTakenForOthers()
    {
        QWidget window;
        QFrame frame(&window);
        QLabel label(&window);
        QWidget part(&window);
        const auto roleOf = [](QWidget &widget) {
            return QAccessible::queryAccessibleInterface(&widget)->role();
        };
        QCOMPARE(roleOf(window), QAccessible::Window);
        QCOMPARE(roleOf(frame), QAccessible::Grouping);
        QCOMPARE(roleOf(label), QAccessible::StaticText);
        QCOMPARE(roleOf(part), QAccessible::Client);
    }

    void aDisabledOptionHasNoSuchAction()
    {
        QRadioButton option(u"First"_s);
        option.setEnabled(false);
        QVERIFY(!seenAs(option).actionInterface()->actionNames().contains(
            QAccessibleActionInterface::toggleAction()));
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<AccessibleWidgets_test>(argc, argv);
}

#include "AccessibleWidgets_test.moc"
