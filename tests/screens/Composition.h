// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QPointer>

#include <private/qinputmethod_p.h>
#include <qpa/qplatforminputcontext.h>

/// A word that an input method is being written with: where nobody ends it before the field loses
/// the keyboard, its raw letters become part of the text.
class Composition final : public QPlatformInputContext
{
public:
    /// @param field has the keyboard
    Composition(QObject* field, const QString& letters) : m_field(field), m_letters(letters)
    {
        context() = this;
        QInputMethodEvent begin(letters, {});
        QCoreApplication::sendEvent(field, &begin);
    }
    ~Composition() override { context() = nullptr; }
    Q_DISABLE_COPY_MOVE(Composition)

    void reset() override { end({}); }
    void commit() override { end(m_letters); }

private:
    static QPlatformInputContext*& context()
    {
        return QInputMethodPrivate::get(QGuiApplication::inputMethod())->testContext;
    }

    void end(const QString& text)
    {
        if (m_field && !m_letters.isEmpty()) {
            QInputMethodEvent last;
            last.setCommitString(text);
            m_letters.clear();
            QCoreApplication::sendEvent(m_field, &last);
        }
    }

    const QPointer<QObject> m_field;
    QString m_letters;
};
