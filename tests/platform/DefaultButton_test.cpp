// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DefaultButton.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

bool press(const DefaultButton &button, Qt::Key key, QWidget *focus)
{
    return button.press(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier), focus);
}

} // namespace

class DefaultButton_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_first = new QPushButton(m_window.get());
        m_second = new QPushButton(m_window.get());
        m_box = new QLineEdit(m_window.get());
        m_window->show();
    }

    void cleanup() { m_window.reset(); }

    void oneButtonIsTheDefault()
    {
        DefaultButton button;
        button.set(m_first);
        QVERIFY(m_first->isDefault());
        QVERIFY(!m_second->isDefault());
        button.set(m_second);
        QVERIFY(!m_first->isDefault());
        QVERIFY(m_second->isDefault());
        button.set(m_second);
        QVERIFY(m_second->isDefault());
        button.set(nullptr);
        QVERIFY(!m_second->isDefault());
    }

    void enterPressesItWhicheverControlHasTheFocus_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
    }

    void enterPressesItWhicheverControlHasTheFocus()
    {
        QFETCH(Qt::Key, key);
        DefaultButton button;
        button.set(m_first);
        const QSignalSpy first(m_first, &QPushButton::clicked);
        const QSignalSpy second(m_second, &QPushButton::clicked);
        QVERIFY(press(button, key, m_box));
        QVERIFY(press(button, key, nullptr));
        QVERIFY(press(button, key, m_window.get()));
        QCOMPARE(first.count(), 3);
        QCOMPARE(second.count(), 0);
    }

    void aButtonWithTheFocusComesFirst()
    {
        DefaultButton button;
        button.set(m_first);
        const QSignalSpy first(m_first, &QPushButton::clicked);
        const QSignalSpy second(m_second, &QPushButton::clicked);
        QVERIFY(press(button, Qt::Key_Return, m_second));
        QCOMPARE(first.count(), 0);
        QCOMPARE(second.count(), 1);
        button.set(nullptr);
        QVERIFY(press(button, Qt::Key_Return, m_second));
        QCOMPARE(second.count(), 2);
    }

    void otherKeysAreLeftAlone()
    {
        DefaultButton button;
        button.set(m_first);
        const QSignalSpy first(m_first, &QPushButton::clicked);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape, Qt::Key_A, Qt::Key_Tab})
            QVERIFY(!press(button, key, m_box));
        QCOMPARE(first.count(), 0);
    }

    void withoutAButtonEnterDoesNothing()
    {
        const DefaultButton button;
        QVERIFY(press(button, Qt::Key_Return, m_box));
        QVERIFY(press(button, Qt::Key_Return, nullptr));
    }

    void aDisabledButtonIsNotPressed()
    {
        DefaultButton button;
        button.set(m_first);
        m_first->setEnabled(false);
        const QSignalSpy first(m_first, &QPushButton::clicked);
        QVERIFY(press(button, Qt::Key_Return, m_box));
        QCOMPARE(first.count(), 0);
    }

    void aDeletedButtonIsNoDefaultButton()
    {
        DefaultButton button;
        auto gone = std::make_unique<QPushButton>();
        button.set(gone.get());
        gone.reset();
        QVERIFY(press(button, Qt::Key_Return, m_box));
        button.set(m_first);
        QVERIFY(m_first->isDefault());
    }

private:
    std::unique_ptr<QWidget> m_window;
    QPushButton *m_first = nullptr;
    QPushButton *m_second = nullptr;
    QLineEdit *m_box = nullptr;
};

QTEST_MAIN(DefaultButton_test)

#include "DefaultButton_test.moc"
