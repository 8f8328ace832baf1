// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>

/// Stands in for the browser while it lives, and for whatever would take addresses of the other
/// schemes that are given.
class Browser : public QObject
{
    Q_OBJECT

public:
    explicit Browser(const QStringList& otherSchemes = {});
    ~Browser() override;

    QList<QUrl> opened;

public Q_SLOTS:
    void take(const QUrl& url);

private:
    QStringList m_schemes;
};
