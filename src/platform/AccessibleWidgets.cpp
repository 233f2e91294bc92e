// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AccessibleWidgets.h"

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QFrame>
#include <QRadioButton>

namespace {

class Option final : public QAccessibleWidget
{
public:
    Option(QAbstractButton &button, QAccessible::Role role)
        : QAccessibleWidget(&button, role), m_button(button)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && m_button.accessibleName().isEmpty())
            return m_button.text().remove(QLatin1Char('&'));
        return QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = m_button.isChecked();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_button.isEnabled())
            names.prepend(toggleAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name == toggleAction())
            m_button.click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QAbstractButton &m_button;
};

// Called with the object's class and, while no factory knows it, its base classes.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (auto *option = qobject_cast<QRadioButton *>(object))
        return new Option(*option, QAccessible::RadioButton);
    if (auto *box = qobject_cast<QCheckBox *>(object))
        return new Option(*box, QAccessible::CheckBox);
    auto *widget = qobject_cast<QWidget *>(object);
    if (className == QLatin1String("QWidget") && widget->isWindow())
        return new QAccessibleWidget(widget, QAccessible::Window);
    if (className == QLatin1String("QFrame") && object->metaObject() == &QFrame::staticMetaObject)
        return new QAccessibleWidget(widget, QAccessible::Grouping);
    return nullptr;
}

} // namespace

void refineAccessibility()
{
    QAccessible::installFactory(makeInterface);
}
