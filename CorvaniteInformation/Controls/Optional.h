// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Makes its one delegate while a condition holds, at its own place among its siblings. A Loader of
/// Qt 6.4 cannot make a bound component, and a Repeater costs more than most of what it would make.
class Optional : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_CLASSINFO("DefaultProperty", "delegate")

    Q_PROPERTY(bool when READ when WRITE setWhen NOTIFY whenChanged REQUIRED FINAL)
    /// An item; not to be replaced.
    Q_PROPERTY(QQmlComponent* delegate MEMBER m_delegate FINAL)

public:
    using QQuickItem::QQuickItem;

    bool when() const { return m_when; }
    void setWhen(bool when);

Q_SIGNALS:
    void whenChanged();

protected:
    void componentComplete() override;

private:
    void makeItem();
    void removeItem();

    bool m_when = false;
    QQmlComponent* m_delegate = nullptr;
    QPointer<QQuickItem> m_item;
};
