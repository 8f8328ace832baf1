// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>

/// The font families of the program, picked once from those installed. They are asked for by name,
/// since the desktop's default for Chinese text depends on the locale and is often Japanese.
class FontFamilies : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(QString sans READ sans CONSTANT FINAL)
    /// For titles; the sans family where no serif one for Chinese is installed.
    Q_PROPERTY(QString serif READ serif CONSTANT FINAL)

public:
    using IsInstalled = std::function<bool(const QString& family)>;

    /// Picks from the families of this machine.
    explicit FontFamilies(QObject* parent = nullptr);
    FontFamilies(const IsInstalled& isInstalled, const QString& systemFamily,
                 QObject* parent = nullptr);

    const QString& sans() const { return m_sans; }
    const QString& serif() const { return m_serif; }

private:
    QString m_sans;
    QString m_serif;
};
