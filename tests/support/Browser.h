#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QUrl>

/// Stands in for the browser while it lives.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser()
    {
        QDesktopServices::setUrlHandler(u"https"_qs, this, "take");
        QDesktopServices::setUrlHandler(u"http"_qs, this, "take");
    }
    ~Browser() override
    {
        QDesktopServices::unsetUrlHandler(u"https"_qs);
        QDesktopServices::unsetUrlHandler(u"http"_qs);
    }

    QList<QUrl> opened;

public Q_SLOTS:
    void take(const QUrl& url) { opened.append(url); }
};
