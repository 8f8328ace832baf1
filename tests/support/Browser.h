#pragma once

#include <QDesktopServices>
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
    explicit Browser(const QStringList& otherSchemes = {})
        : m_schemes(QStringList{u"https"_qs, u"http"_qs} + otherSchemes)
    {
        for (const auto& scheme : m_schemes) {
            QDesktopServices::setUrlHandler(scheme, this, "take");
        }
    }
    ~Browser() override
    {
        for (const auto& scheme : m_schemes) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }

    QList<QUrl> opened;

public Q_SLOTS:
    void take(const QUrl& url) { opened.append(url); }

private:
    QStringList m_schemes;
};
